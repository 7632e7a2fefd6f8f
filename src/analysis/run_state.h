// The run state that lies in Form3, and the ways out that are alike in every analysis.
#pragma once

#include <cstdint>
#include <string>

#include "forms/program.h"
#include "inputs/grid_mode.h"

namespace analysis {

using forms::Program;

using inputs::zone_count;
/// Its twin: the number of districts that the hidden Form2 holds.
std::int16_t district_count(Program& program);

/// Empties the entries 0 to PickCount of the picks, then PickCount, OutputFile and DistrictFile.
void forget_picks(Program& program);

/// The workflow's way back to its first step: spec_CuCo off, spec_timdist on.
void reopen_time_and_distance(Program& program);

/// What stands before the first "." of the whole path, also one in a directory's name; all of a path
/// without one.
std::string output_base(const std::string& output_file);

/// The path of a file in a model directory: `name` brings its own leading "/".
std::string model_path(const Program& program, const std::string& directory, const std::string& name);

/// Shown when there is no number of zones.
inline constexpr const char* no_zones_message =
    "The number of zones for this analysis has not been specified!";

}  // namespace analysis
