// The statements that the program issues, turned into the store's language.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace runtime::engine::dialect {

enum class Verb { Delete, Drop, Create, Insert, Update };

/// A statement in the store's language.
struct Translation {
  Verb verb;
  std::string sql;
  std::vector<std::string> tables;  ///< Those that it names; the first is the one that it changes.
};

/// One statement that gives no rows: DELETE [*] FROM, DROP TABLE, CREATE TABLE, INSERT INTO .. SELECT,
/// UPDATE .. SET; a semicolon may end it. Tables are created so that a word in a number field is a fault.
/// Syntax faults: 3144 in UPDATE, 3134 in INSERT, 3290 in CREATE TABLE, 3295 in DROP TABLE, 3075 in DELETE,
/// 3129 for any other statement and for none.
Translation translated(std::string_view sql);
std::string statement_to_sql(std::string_view sql);

/// What a recordset is opened on.
struct Selection {
  std::string table;
  std::string condition;  ///< As written; empty for all rows.
};

/// A table's name, or "select * from T [where ...]". Fault 3075.
Selection parse_selection(std::string_view source);

}  // namespace runtime::engine::dialect
