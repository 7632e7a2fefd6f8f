// What the data entry grid serves: a word that its launcher leaves in a hidden box of Form2, and the other
// things about the study that the grid reads there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/program.h"

namespace inputs {

namespace mode {
inline constexpr std::string_view commercial = "commercial";        // trips between zones by industry
inline constexpr std::string_view timdist = "timdist";              // distance and times between zones
inline constexpr std::string_view commuter_data = "commuter_data";  // population, then employment by zone
inline constexpr std::string_view commuter_trip = "commuter_trip";  // no menu entry leads here
}  // namespace mode

/// The mode word as it stands. Loads Form2 when it is not loaded, as do the others.
std::string mode_word(forms::Program& program);
void set_mode_word(forms::Program& program, std::string_view word);

/// ", name DOUBLE" for each chosen column, in order, without the first blank.
std::string column_list(forms::Program& program);
void set_column_list(forms::Program& program, const std::string& columns);
/// Puts a column behind those that the list has: a comma, its name and its type.
void add_to_column_list(forms::Program& program, std::string_view name, std::string_view type);

/// The number of zones as its box shows it; 0 for an empty box.
std::int16_t zone_count(forms::Program& program);

}  // namespace inputs
