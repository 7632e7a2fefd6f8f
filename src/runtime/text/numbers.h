// Numbers from text and text from numbers. Nothing here depends on the locale: the point is always ".".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/value.h"

namespace runtime::text {

/// The number at the start of `text`, 0 when there is none. Leading blanks are skipped; then come a sign,
/// digits with or without a point, and an exponent. Whatever follows is passed over, so that "1_2_" is 1,
/// "12 34" is 12 and "Information" is 0. A number too small to hold is 0; too large a one is Fault 6.
double val(std::string_view text);

/// The number that a text is, blanks around it aside; nothing for any other text, "inf" and "nan" included.
/// A number beyond the range of double precision is none either.
std::optional<double> number_in(std::string_view text);

/// `number` as a 16-bit whole number, a half going to the even one. Outside -32768 to 32767: Fault 6.
std::int16_t whole_16(double number);

/// What Print # writes for Null.
inline constexpr std::string_view null_word = "Null";

/// A value as Print # writes it: " 12 ", " .5 ", "-3.5 ", a text as it is, Null as `null_word`.
/// Numbers have the fewest digits that read back to the same value, at most 15 (7 in single precision), and
/// an exponent ("1E+16", "1.5E-20") only outside 1E-15 to 1E15. An infinite number is Fault 6.
std::string printed(const Value& value);

/// A value as it is joined to other text: "12", "0.5", "-3.5", a text as it is, Null as nothing. Digits,
/// exponent and Fault 6 as for `printed`.
std::string joined(const Value& value);

/// What `printed` and `joined` give, put behind `line`: for writers of many numbers, which keep one string.
void append_printed(std::string& line, std::int64_t number);
void append_printed(std::string& line, float number);
void append_printed(std::string& line, double number);
void append_joined(std::string& line, std::int64_t number);
void append_joined(std::string& line, float number);
void append_joined(std::string& line, double number);

}  // namespace runtime::text
