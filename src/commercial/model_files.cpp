#include "commercial/model_files.h"

#include "runtime/text/numbers.h"
#include "runtime/text/print_line.h"

namespace commercial {

using runtime::text::print_line;
using runtime::text::zone;

void write_variation(std::ostream& stream, const Value& first, const Value& second) {
  print_line(stream, {first, second});
}

void write_costs(std::ostream& stream, const IndustryCosts& costs) {
  print_line(stream, {costs.value, zone, costs.unit_cost, zone, costs.reliability_cost, zone,
                      costs.jit_factor, zone, costs.load_factor});
}

void write_zone_count(std::ostream& stream, std::int16_t zone_count) {
  print_line(stream, {zone_count});
}

void write_mode_and_output(std::ostream& stream, const std::string& reliability_mode,
                           const std::string& output_base, std::int16_t pick_count) {
  print_line(stream, {reliability_mode});
  print_line(stream, {output_base});
  analysis::write_pick_count(stream, pick_count);
}

void write_conversion_row(std::ostream& stream, const std::vector<Value>& row) {
  std::string line;
  for (const Value& value : row) line += "  " + runtime::text::joined(value);
  print_line(stream, {line});
}

void write_conversion_parameters(std::ostream& stream, const std::string& directory,
                                 std::int16_t zone_count) {
  print_line(stream, {directory});
  print_line(stream, {zone_count});
}

}  // namespace commercial
