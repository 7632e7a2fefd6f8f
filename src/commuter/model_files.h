// The text files of the commuter model, written from data into a stream. Lines end in CR LF; the models read
// them by position.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "analysis/model_lines.h"
#include "runtime/value.h"

namespace commuter {

using analysis::write_districts;
using analysis::write_no_districts;
using analysis::write_one_value;
using analysis::write_pick;
using analysis::write_pick_count;
using runtime::Value;

/// `base_var.txt` or `imp_var.txt`: the speed and the highway share of one case.
void write_variation(std::ostream& stream, const Value& speed, const Value& highway_share);

/// `outpar.txt`, lines 1 and 2.
void write_output_head(std::ostream& stream, const std::string& output_base, std::int16_t zone_count);
/// The third line of a parameter file tells `CC.EXE` which case it runs.
inline constexpr const char* base_case = "0";
inline constexpr const char* improvement_case = "1";

/// `ccpar.txt` or `ccpar2.txt`, lines 1 to 3.
void write_cost_head(std::ostream& stream, std::int16_t zone_count, const std::string& reliability_mode,
                     const char* which_case);

/// `costpar.txt`: two lines from the fields of the mode share record in stored order: four mode shares, then
/// the two parameters of the cost model.
inline constexpr int cost_parameter_fields = 6;
void write_cost_parameters(std::ostream& stream, const std::vector<Value>& fields);

}  // namespace commuter
