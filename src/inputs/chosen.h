// The industries or occupations that the analyst has chosen, as the project database keeps them.
#pragma once

#include <string>
#include <string_view>

#include "runtime/engine/recordset.h"

namespace inputs {

inline constexpr std::string_view chosen_industries = "select * from industries where industry_number >0";
inline constexpr std::string_view chosen_occupations = "select * from occupations where occupation_number >0";

/// The name of the row's column and file.
std::string description_of(const runtime::engine::Recordset& chosen);

}  // namespace inputs
