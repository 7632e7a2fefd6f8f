#include "runtime/text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <system_error>
#include <type_traits>

#include "runtime/fault.h"

namespace runtime::text {

namespace {

constexpr int overflow = 6;

// The digits of a number without its sign and point, and the power of ten of the first of them.
struct Decimal {
  std::array<char, 17> digits;
  int count = 0;
  int exponent = 0;

  std::string_view from(int first, int last) const {
    return {digits.data() + first, static_cast<std::size_t>(last - first)};
  }
};

Decimal taken_apart(const char* begin, const char* end) {
  Decimal decimal;
  const char* at = begin;
  for (; at != end && *at != 'e'; ++at) {
    if (*at != '.') decimal.digits[static_cast<std::size_t>(decimal.count++)] = *at;
  }
  while (decimal.count > 1 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0')
    --decimal.count;
  const char* const exponent = at + (at[1] == '+' ? 2 : 1);
  std::from_chars(exponent, end, decimal.exponent);
  return decimal;
}

template <std::floating_point Number>
Decimal decimal_of(Number number) {
  constexpr int most_digits = std::numeric_limits<Number>::digits10 + (std::is_same_v<Number, float> ? 1 : 0);
  std::array<char, 32> buffer;
  char* const begin = buffer.data();
  char* const end = begin + buffer.size();
  const auto shortest = std::to_chars(begin, end, number, std::chars_format::scientific);
  Decimal decimal = taken_apart(begin, shortest.ptr);
  if (decimal.count <= most_digits) return decimal;
  const auto cut = std::to_chars(begin, end, number, std::chars_format::scientific, most_digits - 1);
  return taken_apart(begin, cut.ptr);
}

void append_exponent_form(std::string& line, const Decimal& decimal) {
  line += decimal.digits[0];
  if (decimal.count > 1) (line += '.') += decimal.from(1, decimal.count);
  line += decimal.exponent < 0 ? "E-" : "E+";
  line += std::to_string(std::abs(decimal.exponent));
}

void append_plain_form(std::string& line, const Decimal& decimal, std::string_view zero_before_point) {
  const int whole_digits = decimal.exponent + 1;
  if (whole_digits <= 0) {
    (line += zero_before_point) += '.';
    line.append(static_cast<std::size_t>(-whole_digits), '0') += decimal.from(0, decimal.count);
  } else if (whole_digits >= decimal.count) {
    line += decimal.from(0, decimal.count);
    line.append(static_cast<std::size_t>(whole_digits - decimal.count), '0');
  } else {
    (line += decimal.from(0, whole_digits)) += '.';
    line += decimal.from(whole_digits, decimal.count);
  }
}

// A number of at most four decimals, as most are. The quotient is the double next to these digits, so where
// it is the number itself, they are the shortest that read back to it. Spares the search for them.
bool append_few_decimals(std::string& line, double magnitude, std::string_view zero_before_point) {
  constexpr std::int64_t scale = 10000;
  constexpr double limit = 1e11;  // 15 digits at most
  if (!(magnitude < limit)) return false;
  const auto scaled = static_cast<std::int64_t>(magnitude * scale + 0.5);
  if (static_cast<double>(scaled) / scale != magnitude) return false;

  std::array<char, 24> buffer;
  char* end = buffer.data();
  if (scaled >= scale) end = std::to_chars(end, end + 16, scaled / scale).ptr;
  const auto decimals = static_cast<int>(scaled % scale);
  if (decimals != 0) {
    if (scaled < scale) end = std::copy(zero_before_point.begin(), zero_before_point.end(), end);
    *end++ = '.';
    for (int rest = decimals, unit = static_cast<int>(scale) / 10; rest != 0; rest %= unit, unit /= 10)
      *end++ = static_cast<char>('0' + rest / unit);
  }
  line.append(buffer.data(), end);
  return true;
}

template <std::floating_point Number>
void append_magnitude(std::string& line, Number magnitude, std::string_view zero_before_point) {
  if (!std::isfinite(magnitude)) throw Fault(overflow);
  if (magnitude == 0) {
    line += '0';
    return;
  }
  if constexpr (std::is_same_v<Number, double>)
    if (append_few_decimals(line, magnitude, zero_before_point)) return;
  const Decimal decimal = decimal_of(magnitude);
  const bool is_limit = decimal.exponent == 15 && decimal.count == 1 && decimal.digits[0] == '1';
  const bool is_plain = (decimal.exponent >= -15 && decimal.exponent < 15) || is_limit;
  if (is_plain) {
    append_plain_form(line, decimal, zero_before_point);
  } else {
    append_exponent_form(line, decimal);
  }
}

template <std::floating_point Number>
void append_printed_number(std::string& line, Number number) {
  line += number < 0 ? '-' : ' ';
  append_magnitude(line, std::abs(number), "");
  line += ' ';
}

template <std::floating_point Number>
void append_joined_number(std::string& line, Number number) {
  if (number < 0) line += '-';
  append_magnitude(line, std::abs(number), "0");
}

// Of a number that a double cannot hold: whether it lies next to 0, and not beyond the largest.
bool is_tiny(std::string_view number) {
  const auto exponent = number.find_first_of("eE");
  if (exponent != std::string_view::npos) return number[exponent + 1] == '-';
  return number[number.find_first_not_of("-0")] == '.';
}

}  // namespace

double val(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const std::string_view unsigned_text = text.substr(text.find_first_of("+-") == 0 ? 1 : 0);
  // Words such as "nan" and "inf" count as numbers to from_chars, but not here.
  if (unsigned_text.empty() ||
      std::string_view("0123456789.").find(unsigned_text.front()) == std::string_view::npos) {
    return 0;
  }
  if (text.front() == '+') text = unsigned_text;
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc::result_out_of_range) return number;
  if (is_tiny(text.substr(0, static_cast<std::size_t>(end - text.data())))) return 0;
  throw Fault(overflow);
}

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

std::int16_t whole_16(double number) {
  const double rounded = std::nearbyint(number);
  const bool fits = rounded >= std::numeric_limits<std::int16_t>::min() &&
                    rounded <= std::numeric_limits<std::int16_t>::max();
  if (!fits) throw Fault(overflow);
  return static_cast<std::int16_t>(rounded);
}

void append_printed(std::string& line, std::int64_t number) {
  if (number >= 0) line += ' ';
  append_joined(line, number);
  line += ' ';
}

void append_printed(std::string& line, float number) {
  append_printed_number(line, number);
}
void append_printed(std::string& line, double number) {
  append_printed_number(line, number);
}

void append_joined(std::string& line, std::int64_t number) {
  std::array<char, 20> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  line.append(buffer.data(), written.ptr);
}

void append_joined(std::string& line, float number) {
  append_joined_number(line, number);
}
void append_joined(std::string& line, double number) {
  append_joined_number(line, number);
}

namespace {

struct Printed {
  std::string operator()(std::monostate) const { return std::string(null_word); }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(auto number) const {
    std::string line;
    append_printed(line, number);
    return line;
  }
};

struct Joined {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(auto number) const {
    std::string line;
    append_joined(line, number);
    return line;
  }
};

}  // namespace

std::string printed(const Value& value) {
  return std::visit(Printed{}, value);
}

std::string joined(const Value& value) {
  return std::visit(Joined{}, value);
}

}  // namespace runtime::text
