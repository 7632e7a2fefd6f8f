// Texts that are numbers.
#pragma once

#include <optional>
#include <string_view>

namespace runtime::engine::dialect {

/// The number that a text is, blanks around it aside; nothing for any other text, "inf" and "nan" included.
/// A number beyond the range of double precision is none either.
std::optional<double> number_in(std::string_view text);

}  // namespace runtime::engine::dialect
