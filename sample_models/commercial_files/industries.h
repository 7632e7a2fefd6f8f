// The industries of the commercial models.
#pragma once

#include <array>
#include <string_view>

namespace model {

/// The codes that the front end gives to the industries.
inline constexpr std::array industry_codes{1, 2, 4, 9};

/// An industry's name by its code, for people and in the names of files.
std::string_view industry_name(int code);

}  // namespace model
