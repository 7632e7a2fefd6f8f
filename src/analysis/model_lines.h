// Lines that the parameter files of both markets share. The models read them by position.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "runtime/value.h"

namespace analysis {

/// A file of one value.
void write_one_value(std::ostream& stream, const runtime::Value& value);

/// The district line, with and without a district file.
void write_districts(std::ostream& stream, std::int16_t district_count);
void write_no_districts(std::ostream& stream);

/// The number of picks, and one line for each of them.
void write_pick_count(std::ostream& stream, std::int16_t pick_count);
void write_pick(std::ostream& stream, const std::string& pick_code);

}  // namespace analysis
