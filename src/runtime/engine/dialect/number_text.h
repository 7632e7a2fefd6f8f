// Numbers and the texts that stand for them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace runtime::engine::dialect {

/// The number that a text is, blanks around it aside; nothing for any other text, "inf" and "nan" included.
/// A number beyond the range of double precision is none either.
std::optional<double> number_in(std::string_view text);

/// The number that a text begins with, 0 for none.
double leading_number(std::string_view text);

/// A number in a joined text: "12", "0.5"; the shortest digits that read back, up to 15 for double and 7 for
/// single precision, and no exponent between 1E-15 and 1E15.
std::string joined_form(double number);
std::string joined_form(float number);

}  // namespace runtime::engine::dialect
