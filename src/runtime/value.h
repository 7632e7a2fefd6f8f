// A field's value as the program handles it, apart from any store.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace runtime {

/// Null, a whole number, a single- or double-precision number, or a text in UTF-8.
using Value = std::variant<std::monostate, std::int64_t, float, double, std::string>;

inline bool is_null(const Value& value) {
  return std::holds_alternative<std::monostate>(value);
}

}  // namespace runtime
