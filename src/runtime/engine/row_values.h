// A field set to a value for each row, in one statement; for this room only.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

struct sqlite3;

namespace runtime::engine {

class Connection;

/// Asked once for each row, in the order of the keys: the value that the row gets, valid until the next call;
/// nothing when it keeps its own.
using ValueOfRow = std::function<const std::int64_t*(std::int64_t key)>;

/// Registers what set_rows() needs; `fault` as for dialect::register_functions(), `rows` must outlive the
/// connection too.
struct RowValues {
  int* fault;
  ValueOfRow value;
  std::int64_t given = 0;
};
int register_row_values(sqlite3* handle, RowValues* rows);

/// Sets a field of the rows that meet a condition in the store's language, or of all when it is empty. Rows
/// that hold their value already are not written.
void set_rows(Connection& connection, const std::string& table, const std::string& field,
              const std::string& condition, ValueOfRow value);

}  // namespace runtime::engine
