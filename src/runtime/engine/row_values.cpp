#include "runtime/engine/row_values.h"

#include <sqlite3.h>

#include <exception>
#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

bool holds(sqlite3_value* field, std::int64_t value) {
  return sqlite3_value_type(field) == SQLITE_INTEGER && sqlite3_value_int64(field) == value;
}

// No exception may pass through the store.
void differs(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
  auto& rows = *static_cast<RowValues*>(sqlite3_user_data(context));
  try {
    const auto* const value = rows.value(sqlite3_value_int64(values[0]));
    const bool is_new = value != nullptr && !holds(values[1], *value);
    if (is_new) rows.given = *value;
    sqlite3_result_int(context, is_new ? 1 : 0);
  } catch (const Fault& fault) {
    *rows.fault = fault.number;
    sqlite3_result_error(context, fault.what(), -1);
  } catch (const std::exception&) {
    sqlite3_result_error_nomem(context);
  }
}

void given(sqlite3_context* context, int /*count*/, sqlite3_value** /*values*/) {
  sqlite3_result_int64(context, static_cast<RowValues*>(sqlite3_user_data(context))->given);
}

class Lending {
 public:
  Lending(RowValues& rows, ValueOfRow value) : rows_(rows) { rows_.value = std::move(value); }
  ~Lending() { rows_.value = {}; }
  Lending(const Lending&) = delete;
  Lending& operator=(const Lending&) = delete;

 private:
  RowValues& rows_;
};

}  // namespace

int register_row_values(sqlite3* handle, RowValues* rows) {
  const int code =
      sqlite3_create_function(handle, "q_differs", 2, SQLITE_UTF8, rows, differs, nullptr, nullptr);
  if (code != SQLITE_OK) return code;
  return sqlite3_create_function(handle, "q_given", 0, SQLITE_UTF8, rows, given, nullptr, nullptr);
}

void set_rows(Connection& connection, const std::string& table, const std::string& field,
              const std::string& condition, ValueOfRow value) {
  const auto column = dialect::quoted_name(field);
  const auto differs = "q_differs(rowid, " + column + ")";
  // A case, because the store may ask the parts of an AND in any order.
  const auto rows =
      condition.empty() ? differs : "CASE WHEN " + condition + " THEN " + differs + " ELSE 0 END";
  Statement update(connection, "UPDATE " + dialect::quoted_name(table) + " NOT INDEXED SET " + column +
                                   " = q_given() WHERE " + rows);
  const Lending lending(connection.row_values(), std::move(value));
  update.step();
}

}  // namespace runtime::engine
