// Names and texts as the store's language writes them.
#pragma once

#include <string>
#include <string_view>

namespace runtime::engine::dialect {

/// The word between `quote`s, those inside it doubled.
inline std::string quoted(std::string_view word, char quote) {
  std::string result(1, quote);
  for (const char c : word) {
    if (c == quote) result += quote;
    result += c;
  }
  return result += quote;
}

/// A table or column, so that a name such as index is no keyword.
inline std::string quoted_name(std::string_view name) {
  return quoted(name, '"');
}
inline std::string quoted_text(std::string_view text) {
  return quoted(text, '\'');
}

}  // namespace runtime::engine::dialect
