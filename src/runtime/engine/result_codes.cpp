#include "runtime/engine/result_codes.h"

#include <sqlite3.h>

#include <array>
#include <string_view>
#include <utility>

namespace runtime::engine {

namespace {

// What a statement that does not compile was refused for is told in words only. What an analyst types is no
// statement until its syntax was looked at, so words that are not known here tell of one of the program's
// own.
Fault fault_of_statement(std::string_view message) {
  constexpr std::array prefixes{
      std::pair{std::string_view("no such table: "), 3078},
      std::pair{std::string_view("no such column: "), 3061},
      std::pair{std::string_view("ambiguous column name: "), 3079},
      std::pair{std::string_view("no such function: "), 3085},
      std::pair{std::string_view("duplicate column name: "), 3191},
      std::pair{std::string_view("too many arguments on function "), 3360},
      std::pair{std::string_view("parser stack overflow"), 3360},
      std::pair{std::string_view("Expression tree is too large"), 3360},
  };
  for (const auto& [prefix, number] : prefixes)
    if (message.starts_with(prefix)) return Fault(number, std::string(message.substr(prefix.size())));

  if (message.ends_with(" values were supplied")) return Fault(3346);

  // The name stands in the quotes that the statement gave it.
  constexpr std::string_view table = "table \"";
  constexpr std::string_view exists = "\" already exists";
  if (message.starts_with(table) && message.find(exists) != std::string_view::npos)
    return Fault(3010, std::string(message.substr(table.size(), message.find(exists) - table.size())));
  return Fault(51, std::string(message));
}

int fault_number(int code) {
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return 3260;
    case SQLITE_FULL:
      return 3026;
    case SQLITE_READONLY:
      return 3027;
    case SQLITE_CORRUPT:
      return 3049;
    case SQLITE_NOTADB:
      return 3343;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return 75;
    case SQLITE_IOERR:
      return 57;
    case SQLITE_NOMEM:
      return 7;
    default:
      return 51;
  }
}

}  // namespace

Fault fault_of(int code, const std::string& message, const std::filesystem::path& file) {
  if (code == SQLITE_READONLY_DBMOVED) return Fault(1032, file.string());
  switch (code & 0xff) {
    case SQLITE_ERROR:
      return fault_of_statement(message);
    case SQLITE_AUTH:  // typed, and beyond the fence
      return Fault(3075, message);
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      return Fault(3421, message);
    default:
      break;
  }
  const int number = fault_number(code);
  return Fault(number, number == 51 ? message : file.string());
}

}  // namespace runtime::engine
