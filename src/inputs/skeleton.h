// What a launch of the grid prepares beside it: the description of the grid's columns and the skeleton of its
// rows, from which the grid makes its staging table.
#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <string_view>

#include "forms/program.h"
#include "runtime/progress.h"

namespace inputs {

struct Skeleton {
  std::string_view template_file;  ///< Describes the columns that every row begins with.
  int first_column;                ///< The number of the first column behind them.
  std::string_view listed_type;    ///< The type word in the column list.
  const char* words;               ///< Told while the rows are written.
  void (*write_rows)(std::ostream& stream, std::int64_t zones, const runtime::Progress& progress);
};

extern const Skeleton skeleton_of_times;        // a row for each pair of zones
extern const Skeleton skeleton_of_industries;   // a row for each pair of zones
extern const Skeleton skeleton_of_occupations;  // a row for each zone

inline constexpr const char* no_zones_message = "Please enter the number of zones!";

/// Makes "schema.ini", without the columns that are not in every row, in the current directory.
void copy_template(forms::Program& program, const Skeleton& skeleton);

/// Puts the columns into "schema.ini" and behind those that the column list has, and makes "trips.csv". After
/// a fault no file stays open.
void write_skeleton(forms::Program& program, const Skeleton& skeleton,
                    std::span<const std::string_view> columns, std::int16_t zones);

}  // namespace inputs
