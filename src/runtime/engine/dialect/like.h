// Matching a text with a pattern.
#pragma once

#include <string_view>

namespace runtime::engine::dialect {

/// Whether the whole text matches: "*" any characters, "?" one, "#" a digit, "[a-z]" one of these, "[!a-z]"
/// one of no these. Letters match without regard to case. A bracket without an end matches nothing.
bool is_like(std::string_view text, std::string_view pattern);

}  // namespace runtime::engine::dialect
