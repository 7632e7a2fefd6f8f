// What a field makes of a value, inside a statement; for this room only.
#pragma once

#include <string>

#include "runtime/engine/table_shape.h"

struct sqlite3;

namespace runtime::engine {

/// Registers the function that stored_sql() calls; as dialect::register_functions().
int register_stored_value(sqlite3* handle, int* fault);

/// The value of an expression in the store's language as the field keeps it. In a statement it faults with
/// 3421 when the field can't take it.
std::string stored_sql(const Field& field, const std::string& expression);

}  // namespace runtime::engine
