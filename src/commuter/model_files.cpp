#include "commuter/model_files.h"

#include "runtime/text/print_line.h"

namespace commuter {

using runtime::text::print_line;
using runtime::text::zone;

void write_one_value(std::ostream& stream, const Value& value) {
  print_line(stream, {value});
}

void write_variation(std::ostream& stream, const Value& speed, const Value& highway_share) {
  print_line(stream, {speed, zone, highway_share});
}

void write_output_head(std::ostream& stream, const std::string& output_base, std::int16_t zone_count) {
  print_line(stream, {output_base});
  print_line(stream, {zone_count});
}

void write_districts(std::ostream& stream, std::int16_t district_count) {
  print_line(stream, {"1", zone, district_count});
}

void write_no_districts(std::ostream& stream) {
  print_line(stream, {"0", zone, "0"});
}

void write_cost_head(std::ostream& stream, std::int16_t zone_count, const std::string& reliability_mode,
                     const char* which_case) {
  print_line(stream, {zone_count});
  print_line(stream, {reliability_mode});
  print_line(stream, {which_case});
}

void write_pick_count(std::ostream& stream, std::int16_t pick_count) {
  print_line(stream, {pick_count});
}

void write_pick(std::ostream& stream, const std::string& pick_code) {
  print_line(stream, {pick_code});
}

void write_cost_parameters(std::ostream& stream, const std::vector<Value>& fields) {
  print_line(stream, {fields.at(4), zone, fields.at(5)});
  print_line(stream, {"0", zone, fields.at(0), fields.at(1), fields.at(2), fields.at(3)});
}

}  // namespace commuter
