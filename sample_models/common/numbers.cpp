#include "common/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace model {

namespace {

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

template <typename Number>
std::optional<Number> parse(std::string_view text) {
  Number value{};
  const auto end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end) return std::nullopt;
  return value;
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
  const auto value = parse<double>(trimmed(text));
  // "inf" and "nan" are numbers to the parser and to nobody else.
  return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> parse_whole(std::string_view text) {
  return parse<int>(trimmed(text));
}

std::vector<std::string_view> split_at_blanks(std::string_view line) {
  std::vector<std::string_view> pieces;
  for (auto first = line.find_first_not_of(' '); first != std::string_view::npos;) {
    const auto end = std::min(line.find(' ', first), line.size());
    pieces.push_back(line.substr(first, end - first));
    first = line.find_first_not_of(' ', end);
  }
  return pieces;
}

std::string plain(double value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return {digits.data(), end};
}

std::string grouped(double value, int decimals) {
  std::array<char, 400> digits{};  // the largest double has 309 digits before its point
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), std::abs(value),
                                 std::chars_format::fixed, decimals)
                       .ptr;
  std::string text(digits.data(), end);
  const bool is_zero = text.find_first_not_of("0.") == std::string::npos;
  const auto point = text.find('.');
  for (auto place = point == std::string::npos ? text.size() : point; place > 3;)
    text.insert(place -= 3, 1, ',');
  return value < 0 && !is_zero ? "-" + text : text;
}

}  // namespace model
