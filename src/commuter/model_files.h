// The text files of the commuter model, written from data into a stream. Lines end in CR LF; the models read
// them by position.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "runtime/value.h"

namespace commuter {

using runtime::Value;

/// A `sig` or `wage` file: one value.
void write_one_value(std::ostream& stream, const Value& value);

/// `base_var.txt` or `imp_var.txt`: the speed and the highway share of one case.
void write_variation(std::ostream& stream, const Value& speed, const Value& highway_share);

/// `outpar.txt`, lines 1 and 2.
void write_output_head(std::ostream& stream, const std::string& output_base, std::int16_t zone_count);
/// `outpar.txt`, line 3, with and without a district file.
void write_districts(std::ostream& stream, std::int16_t district_count);
void write_no_districts(std::ostream& stream);

/// The third line of a parameter file tells `CC.EXE` which case it runs.
inline constexpr const char* base_case = "0";
inline constexpr const char* improvement_case = "1";

/// `ccpar.txt` or `ccpar2.txt`, lines 1 to 3.
void write_cost_head(std::ostream& stream, std::int16_t zone_count, const std::string& reliability_mode,
                     const char* which_case);

/// The number of picks, line 4 of all three parameter files, and one line for each of them.
void write_pick_count(std::ostream& stream, std::int16_t pick_count);
void write_pick(std::ostream& stream, const std::string& pick_code);

/// `costpar.txt`: two lines from the fields of the mode share record in stored order: four mode shares, then
/// the two parameters of the cost model.
inline constexpr int cost_parameter_fields = 6;
void write_cost_parameters(std::ostream& stream, const std::vector<Value>& fields);

}  // namespace commuter
