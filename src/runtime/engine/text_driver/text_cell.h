// A field of a line of a text file; for this room only.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

namespace runtime::engine {

/// Null, a number or a text that lies elsewhere.
using TextCell = std::variant<std::monostate, std::int64_t, double, std::string_view>;

}  // namespace runtime::engine
