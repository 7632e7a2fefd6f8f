#include "commuter/model_files.h"

#include "runtime/text/print_line.h"

namespace commuter {

using runtime::text::print_line;
using runtime::text::zone;

void write_variation(std::ostream& stream, const Value& speed, const Value& highway_share) {
  print_line(stream, {speed, zone, highway_share});
}

void write_output_head(std::ostream& stream, const std::string& output_base, std::int16_t zone_count) {
  print_line(stream, {output_base});
  print_line(stream, {zone_count});
}

void write_cost_head(std::ostream& stream, std::int16_t zone_count, const std::string& reliability_mode,
                     const char* which_case) {
  print_line(stream, {zone_count});
  print_line(stream, {reliability_mode});
  print_line(stream, {which_case});
}

void write_cost_parameters(std::ostream& stream, const std::vector<Value>& fields) {
  print_line(stream, {fields.at(4), zone, fields.at(5)});
  print_line(stream, {"0", zone, fields.at(0), fields.at(1), fields.at(2), fields.at(3)});
}

}  // namespace commuter
