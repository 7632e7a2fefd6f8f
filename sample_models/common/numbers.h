// Numbers to text and back, the same on every machine whatever its locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace model {

/// The number that `text` is: digits with a point, a sign or an exponent as they are needed, blanks around
/// it allowed. Empty for anything else, also for words like "inf" and for numbers out of range.
std::optional<double> parse_number(std::string_view text);

/// The same for a whole number without point or exponent.
std::optional<int> parse_whole(std::string_view text);

/// The pieces of `line` between blanks.
std::vector<std::string_view> split_at_blanks(std::string_view line);

/// The shortest digits that read back as `value`: "12", "0.5".
std::string plain(double value);

/// `value` with so many `decimals` and a comma between thousands: "1,234.50". Never "-0.00".
std::string grouped(double value, int decimals);

}  // namespace model
