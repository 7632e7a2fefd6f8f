// The lines that the parameter files of all models have in common.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/line_reader.h"

namespace model {

constexpr int most_zones = 9999;

/// The name of a file that exists once for each code: "sig", 7 gives "sig7.txt".
std::string coded_file(std::string_view stem, int code);

/// The next line as the path of the report without its ".txt"; the result has it.
std::string read_report_file(LineReader& file);

/// The next line as the number of zones of the study.
int read_zone_count(LineReader& file);

/// The next line as "0 0" (no districts: 0) or as 1 and the number of districts, at most `zones`.
int read_district_count(LineReader& file, int zones);

/// A line with the number of codes, then one code a line: each one of `known` and none twice. The order is
/// that of the file.
std::vector<int> read_codes(LineReader& file, std::span<const int> known);

/// A file of one line with one number, 0 or greater.
double read_single_number(const std::string& name);

/// A district file: for every zone one line "zone district", in any order of the zones. Place z - 1 of the
/// result holds the district of zone z, from 1 to `districts`.
std::vector<int> read_districts(const std::string& name, int zones, int districts);

}  // namespace model
