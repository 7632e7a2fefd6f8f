#include "runtime/fault.h"

#include <algorithm>
#include <array>
#include <utility>

namespace runtime {

namespace {

using NumberAndWords = std::pair<int, const char*>;

constexpr std::array words{
    NumberAndWords{5, "Invalid procedure call or argument"},
    NumberAndWords{6, "Overflow"},
    NumberAndWords{7, "Out of memory"},
    NumberAndWords{9, "Subscript out of range"},
    NumberAndWords{11, "Division by zero"},
    NumberAndWords{13, "Type mismatch"},
    NumberAndWords{51, "Internal error: |"},
    NumberAndWords{52, "Bad file name or number"},
    NumberAndWords{53, "File not found: |"},
    NumberAndWords{54, "Bad file mode"},
    NumberAndWords{55, "File already open: |"},
    NumberAndWords{57, "The file could not be read or written: |"},
    NumberAndWords{58, "File already exists: |"},
    NumberAndWords{61, "Disk full: |"},
    NumberAndWords{62, "Input past end of file: |"},
    NumberAndWords{67, "Too many files"},
    NumberAndWords{70, "Permission denied: |"},
    NumberAndWords{75, "Path/File access error: |"},
    NumberAndWords{76, "Path not found: |"},
    NumberAndWords{91, "Object variable not set"},
    NumberAndWords{94, "Invalid use of Null"},
    NumberAndWords{340, "Control array element '|' does not exist"},
    NumberAndWords{1032, "The database file was replaced while it was in use: |"},
    NumberAndWords{3010, "Table '|' already exists"},
    NumberAndWords{3011, "The text file was not found: |"},
    NumberAndWords{3020, "Update without AddNew or Edit"},
    NumberAndWords{3021, "No current record"},
    NumberAndWords{3024, "The project database was not found: |"},
    NumberAndWords{3026, "Not enough space on disk"},
    NumberAndWords{3027, "The project database cannot be changed; it is read-only: |"},
    NumberAndWords{3034, "A transaction was ended that was never begun"},
    NumberAndWords{3044, "There is no such directory: |"},
    NumberAndWords{3049, "The project database is damaged and cannot be read: |"},
    NumberAndWords{3061, "Too few parameters: '|' is not known"},
    NumberAndWords{3075, "Syntax error in expression: |"},
    NumberAndWords{3078, "The table '|' was not found"},
    NumberAndWords{3079, "'|' may be a field of more than one table"},
    NumberAndWords{3085, "Undefined function '|' in expression"},
    NumberAndWords{3129, "Invalid SQL statement"},
    NumberAndWords{3134, "Syntax error in INSERT INTO statement: |"},
    NumberAndWords{3144, "Syntax error in UPDATE statement: |"},
    NumberAndWords{3191, "Field '|' is defined more than once"},
    NumberAndWords{3251, "This cannot be done with this table"},
    NumberAndWords{3260, "The project database is in use by another program: |"},
    NumberAndWords{3265, "There is no field '|' in this table"},
    NumberAndWords{3290, "Syntax error in CREATE TABLE statement: |"},
    NumberAndWords{3295, "Syntax error in DROP TABLE statement: |"},
    NumberAndWords{3343, "This file is not a project database: |"},
    NumberAndWords{3346, "The number of values does not match the number of fields"},
    NumberAndWords{3349, "The text does not fit its description: |"},
    NumberAndWords{3360, "The expression is too complex"},
    NumberAndWords{3421, "The value has the wrong type for its field: |"},
    NumberAndWords{3464, "Data type mismatch in criteria expression"},
    NumberAndWords{3625, "No schema.ini describes the text file '|'"},
    NumberAndWords{6148, "There is no row | in the grid"},
    NumberAndWords{32755, "Cancel was selected"},
};

}  // namespace

std::string fault_description(int number, const std::string& detail) {
  const auto* const row =
      std::find_if(words.begin(), words.end(), [number](const auto& entry) { return entry.first == number; });
  if (row == words.end()) return "Application-defined or object-defined error";
  std::string text = row->second;
  const auto place = text.find('|');
  if (place == std::string::npos) return text;
  if (!detail.empty()) return text.replace(place, 1, detail);
  // Without a detail the colon or the quotes around its place would dangle.
  const auto dangling = text.find_first_of(":'");
  return text.substr(0, dangling == std::string::npos ? place : dangling);
}

Fault::Fault(int fault_number, const std::string& detail)
    : std::runtime_error(fault_description(fault_number, detail)), number(fault_number) {}

}  // namespace runtime
