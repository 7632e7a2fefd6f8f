// One press of a run button: what the runs of the two markets share.
#pragma once

#include <cstdint>
#include <string>

#include "forms/program.h"
#include "runtime/engine/database.h"

namespace analysis {

using forms::Program;

/// The locals of one press of the button.
struct Run {
  Program& program;
  std::int16_t ZoneCount = 0;
  std::int16_t DistrictCount = 0;
  std::string ReliabilityMode = {};
  std::string OutputBase = {};
  std::string RunSummary = {};
  std::string PendingMessage = {};
  runtime::engine::Database db = {};
};

/// Whether a file of that path, which may hold wildcards, is there.
bool file_found(const Run& run, const std::string& path);

/// What every way back to the first step begins with: the picks are forgotten, the forms go, the numbers 1
/// and 2 are closed, and the message that was put off is told.
void take_down(Run& run);

/// What both runs tell when a choice is missing.
inline constexpr const char* no_output_message = "No Output File Specified!";
inline constexpr const char* no_reliability_message = "Please select an option for reliability analysis!";
inline constexpr const char* no_districts_message =
    "Please specify number of Districts under - Prepare Inputs - Menu Item! ";
inline constexpr const char* many_districts_message = "Number of Districts greater than zones!";

}  // namespace analysis
