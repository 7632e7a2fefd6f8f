// The text files of the commercial model and of the conversion, written from data into a stream. Lines end in
// CR LF; the models read them by position.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "analysis/model_lines.h"
#include "runtime/value.h"

namespace commercial {

using runtime::Value;

/// `base_var.txt` or `imp_var.txt`: two values that follow each other directly.
void write_variation(std::ostream& stream, const Value& first, const Value& second);

/// A `cost` file: value, unit cost, reliability cost, just-in-time factor and load factor of an industry.
struct IndustryCosts {
  Value value;
  Value unit_cost;
  Value reliability_cost;
  Value jit_factor;
  Value load_factor;
};
void write_costs(std::ostream& stream, const IndustryCosts& costs);

/// `outpar.txt`: line 1 and, behind the district line, lines 3 to 5.
void write_zone_count(std::ostream& stream, std::int16_t zone_count);
void write_mode_and_output(std::ostream& stream, const std::string& reliability_mode,
                           const std::string& output_base, std::int16_t pick_count);

/// `tontotruck.txt`: one line for each row, each value behind two blanks and without blanks of its own.
void write_conversion_row(std::ostream& stream, const std::vector<Value>& row);

/// `ttc.txt`: the directory of the commodity file with its separator, and the number of zones.
void write_conversion_parameters(std::ostream& stream, const std::string& directory, std::int16_t zone_count);

}  // namespace commercial
