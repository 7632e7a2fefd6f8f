#include "runtime/engine/dialect/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace runtime::engine::dialect {

namespace {

constexpr std::string_view digits = "0123456789";

std::string_view without_blanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// Reads from the start of `text`, and tells in `length` how far the number reaches: 0 for none.
double read_number(std::string_view text, std::size_t& length) {
  length = 0;
  const std::size_t plus = !text.empty() && text.front() == '+' ? 1 : 0;
  const std::size_t sign = !text.empty() && (text.front() == '-' || plus == 1) ? 1 : 0;
  const auto body = text.substr(sign);
  // from_chars would take the words for infinity and for no number at all.
  const bool has_digit =
      !body.empty() &&
      (digits.find(body[0]) != std::string_view::npos ||
       (body[0] == '.' && body.size() > 1 && digits.find(body[1]) != std::string_view::npos));
  if (!has_digit) return 0;
  double number = 0;
  const auto read = std::from_chars(text.data() + plus, text.data() + text.size(), number);
  if (read.ec != std::errc{}) return 0;
  length = static_cast<std::size_t>(read.ptr - text.data());
  return number;
}

// Digits and exponent ("1.25e+20") laid out as plain decimals.
std::string plain_decimals(std::string_view scientific) {
  const bool negative = scientific.front() == '-';
  if (negative) scientific.remove_prefix(1);
  const auto mark = scientific.find('e');
  int exponent = 0;
  const auto exponent_text = scientific.substr(mark + (scientific[mark + 1] == '+' ? 2 : 1));
  std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), exponent);

  std::string figures;
  for (const char c : scientific.substr(0, mark))
    if (c != '.') figures += c;
  while (figures.size() > 1 && figures.back() == '0') figures.pop_back();

  if (exponent < 0) {
    figures.insert(0, static_cast<std::size_t>(-exponent), '0');
    exponent = 0;
  }
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (figures.size() < whole) figures.resize(whole, '0');
  if (figures.size() > whole) figures.insert(whole, 1, '.');
  return (negative ? "-" : "") + figures;
}

template <typename Number>
std::string joined(Number number, int most_digits) {
  if (number == 0) return "0";
  std::array<char, 64> buffer{};
  auto end = std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::scientific);
  const auto shortest = std::string_view(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  const auto figures = shortest.find('e') - shortest.find_first_of(digits);
  if (figures > static_cast<std::size_t>(most_digits) + 1)
    end = std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::scientific, most_digits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));

  const auto size = std::fabs(static_cast<double>(number));
  if (size >= 1e-15 && size < 1e15) return plain_decimals(text);
  std::string result(text);
  result[result.find('e')] = 'E';
  return result;
}

}  // namespace

std::optional<double> number_in(std::string_view text) {
  const auto trimmed = without_blanks(text);
  std::size_t length = 0;
  const double number = read_number(trimmed, length);
  if (length == 0 || length != trimmed.size()) return std::nullopt;
  return number;
}

double leading_number(std::string_view text) {
  std::string packed;  // blanks inside a number are passed over
  for (const char c : text)
    if (c != ' ' && c != '\t' && c != '\n') packed += c;
  std::size_t length = 0;
  return read_number(packed, length);
}

std::string joined_form(double number) {
  return joined(number, 15);
}
std::string joined_form(float number) {
  return joined(number, 7);
}

}  // namespace runtime::engine::dialect
