// The occupations of the commuter model.
#pragma once

#include <array>
#include <string_view>

namespace model {

/// The codes that the front end gives to the occupations.
inline constexpr std::array occupation_codes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

/// An occupation's name by its code, for people.
std::string_view occupation_name(int code);

}  // namespace model
