#include "runtime/engine/stored_value.h"

#include <sqlite3.h>

#include <cstdint>

#include "runtime/engine/dialect/call.h"

namespace runtime::engine {

namespace {

Value stored(const dialect::Arguments& arguments) {
  return converted({{}, static_cast<FieldKind>(std::get<std::int64_t>(arguments[0]))}, arguments[1]);
}

}  // namespace

int register_stored_value(sqlite3* handle, int* fault) {
  return sqlite3_create_function(handle, "q_stored", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, fault,
                                 dialect::call<stored>, nullptr, nullptr);
}

std::string stored_sql(const Field& field, const std::string& expression) {
  return "q_stored(" + std::to_string(static_cast<int>(field.kind)) + ", " + expression + ")";
}

}  // namespace runtime::engine
