// Expressions of the dialect for tests: their SQL, their faults, and their values over one row.
#pragma once

#include <sqlite3.h>

#include <string>

#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/dialect/functions.h"
#include "runtime/engine/project_file.h"

namespace runtime::engine::dialect {

using testing::fault_of;

inline const Names names{{"Zone", Kind::Number},
                         {"Sales", Kind::Number},
                         {"index", Kind::Number},
                         {"Unit Cost", Kind::Number},
                         {"description", Kind::Text}};

inline std::string sql_of(const std::string& text) {
  return expression_to_sql(text, names);
}
inline int fault_of_expression(const std::string& text) {
  return fault_of([&] { sql_of(text); });
}

/// Expressions with the functions that they need, over one row.
class Expression : public ::testing::Test {
 protected:
  Expression() {
    sqlite3_open(":memory:", &handle_);
    register_functions(handle_, &fault_);
    sqlite3_exec(
        handle_,
        "CREATE TABLE t (Zone INTEGER, Sales REAL, \"index\" INTEGER, \"Unit Cost\" REAL, description TEXT)"
        " STRICT; INSERT INTO t VALUES (7, 2.5, -3, NULL, 'Zoë')",
        nullptr, nullptr, nullptr);
  }
  ~Expression() override { sqlite3_close(handle_); }

  /// The value as text with its kind behind it, "Null", or "fault N".
  std::string value_of(const std::string& text) {
    try {
      return evaluate("SELECT " + sql_of(text) + " FROM t");
    } catch (const Fault& fault) {
      return "fault " + std::to_string(fault.number);
    }
  }

  bool holds(const std::string& text) {
    return evaluate("SELECT count(*) FROM t WHERE " + condition_to_sql(text, names)) == "1 whole";
  }

 private:
  std::string evaluate(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr);
    std::string result;
    if (statement == nullptr) {
      result = std::string("refused: ") + sqlite3_errmsg(handle_);
    } else if (sqlite3_step(statement) != SQLITE_ROW) {
      result = "fault " + std::to_string(fault_);
    } else {
      switch (sqlite3_column_type(statement, 0)) {
        case SQLITE_NULL:
          result = "Null";
          break;
        case SQLITE_INTEGER:
          result = testing::text_of(Value(std::int64_t{sqlite3_column_int64(statement, 0)})) + " whole";
          break;
        case SQLITE_FLOAT:
          result = testing::text_of(Value(sqlite3_column_double(statement, 0)));
          break;
        default:
          result = std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))) + " text";
      }
    }
    sqlite3_finalize(statement);
    return result;
  }

  sqlite3* handle_ = nullptr;
  int fault_ = 0;
};

}  // namespace runtime::engine::dialect
