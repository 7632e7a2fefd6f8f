#include "runtime/forms/grid/cell_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "runtime/text/numbers.h"

namespace runtime::forms::grid {

namespace {

using engine::FieldKind;
using WholeLimits = std::numeric_limits<std::int32_t>;

template <typename Number>
std::string shortest(Number number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

std::string trimmed(const std::string& text) {
  constexpr const char* blanks = " \t\r\n";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

[[noreturn]] void refuse(const std::string& text, const std::string& column, const std::string& reason) {
  throw Refusal("\"" + text + "\" can't be stored in the column \"" + column + "\": " + reason);
}

bool is_beyond_every_range(const std::string& text) {
  double number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  return read.ec == std::errc::result_out_of_range && read.ptr == text.data() + text.size();
}

double number_of(const std::string& text, const std::string& column) {
  const auto number = text::number_in(text);
  if (!number && text.find(',') != std::string::npos) {
    refuse(text, column, "it is not a number. Write a point for the decimals, and no thousands separator.");
  }
  if (!number && is_beyond_every_range(text)) refuse(text, column, "the number is too large.");
  if (!number) refuse(text, column, "it is not a number.");
  return *number;
}

Value whole_value(const std::string& text, const std::string& column) {
  const double number = number_of(text, column);
  if (number != std::trunc(number)) refuse(text, column, "only whole numbers can stand there.");
  if (number < WholeLimits::min() || number > WholeLimits::max()) {
    refuse(text, column, "the number is too large.");
  }
  return static_cast<std::int64_t>(number);
}

Value single_value(const std::string& text, const std::string& column) {
  const double number = number_of(text, column);
  if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
    refuse(text, column, "the number is too large.");
  }
  return static_cast<float>(number);
}

}  // namespace

std::string shown_text(const Value& value) {
  return text::joined(value);
}

std::string full_text(const Value& value) {
  if (const auto* single = std::get_if<float>(&value)) return shortest(*single);
  if (const auto* number = std::get_if<double>(&value)) return shortest(*number);
  return text::joined(value);
}

Value typed_value(const std::string& text, FieldKind kind, const std::string& column) {
  const std::string number = trimmed(text);
  if (text.empty() || (number.empty() && kind != FieldKind::Text)) return {};
  switch (kind) {
    case FieldKind::Whole:
      return whole_value(number, column);
    case FieldKind::Single:
      return single_value(number, column);
    case FieldKind::Double:
      return number_of(number, column);
    default:
      return text;
  }
}

}  // namespace runtime::forms::grid
