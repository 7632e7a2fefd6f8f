// What is known about how reliable the roads are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/line_reader.h"

namespace model {

/// Where a run's reliability data come from: `Database` from the front end's table, `File` from a file of
/// the analyst's, `None` when reliability is left out.
enum class ReliabilityMode { Database, File, None };

/// The mode that the word "DB", "FILE" or "NONE" stands for; empty for any other.
std::optional<ReliabilityMode> parse_mode(std::string_view word);

/// The word of a mode.
std::string word_of(ReliabilityMode mode);

/// The next line as a mode word.
ReliabilityMode read_mode(LineReader& file);

/// How the roads of a case are travelled: mean speed in miles per hour, and the share of the miles that
/// are driven on highways, from 0 to 1.
struct Roads {
  double speed = 0;
  double highway_share = 0;
};

/// The roads of both cases.
struct BothRoads {
  Roads base;
  Roads improvement;
};

/// `speed` and `highway_share` as the roads of a case; refuses, as a fault of the line that `file` read
/// last, a speed of 0 and a share above 1.
Roads checked_roads(const LineReader& file, double speed, double highway_share);

/// Reads "var.txt", an analyst's file with the speed and the highway share of the base case and of the
/// improvement case in one line. Empty without the file: nobody may have brought it here.
std::optional<BothRoads> read_supplied_roads();

/// Minutes of delay per mile that come unexpected. Free roads would be driven at 60 miles per hour on
/// highways and at 35 elsewhere; two fifths of what the mean speed stays behind that is unexpected.
double unexpected_minutes_per_mile(const Roads& roads);

}  // namespace model
