#include "runtime/engine/dialect/call.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>

#include "runtime/fault.h"

namespace runtime::engine::dialect {

namespace {

Value value_of(sqlite3_value* argument) {
  switch (sqlite3_value_type(argument)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_value_int64(argument)};
    case SQLITE_FLOAT:
      return sqlite3_value_double(argument);
    default:
      break;
  }
  const auto* const bytes = reinterpret_cast<const char*>(sqlite3_value_text(argument));
  if (bytes == nullptr) return std::string();
  return std::string(bytes, static_cast<std::size_t>(sqlite3_value_bytes(argument)));
}

void give(sqlite3_context* context, const Value& value) {
  if (const auto* const whole = std::get_if<std::int64_t>(&value))
    return sqlite3_result_int64(context, *whole);
  if (const auto* const number = std::get_if<double>(&value)) return sqlite3_result_double(context, *number);
  if (const auto* const single = std::get_if<float>(&value)) return sqlite3_result_double(context, *single);
  if (const auto* const text = std::get_if<std::string>(&value))
    return sqlite3_result_text64(context, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  sqlite3_result_null(context);
}

}  // namespace

void call_with(Function function, sqlite3_context* context, int count, sqlite3_value** values) {
  try {
    Arguments arguments;
    arguments.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) arguments.push_back(value_of(values[i]));
    give(context, function(arguments));
  } catch (const Fault& fault) {
    *static_cast<int*>(sqlite3_user_data(context)) = fault.number;
    sqlite3_result_error(context, fault.what(), -1);
  } catch (const std::exception&) {
    sqlite3_result_error_nomem(context);
  }
}

}  // namespace runtime::engine::dialect
