#include "runtime/engine/dialect/number_text.h"

#include <charconv>
#include <system_error>

namespace runtime::engine::dialect {

std::optional<double> number_in(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
  // The library knows no plus, and would take the words for infinity and for no number at all.
  if (text.starts_with("+-")) return std::nullopt;
  if (text.front() == '+') text.remove_prefix(1);
  if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos) return std::nullopt;

  double number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return number;
}

}  // namespace runtime::engine::dialect
