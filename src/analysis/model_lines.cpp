#include "analysis/model_lines.h"

#include "runtime/text/print_line.h"

namespace analysis {

using runtime::text::print_line;
using runtime::text::zone;

void write_one_value(std::ostream& stream, const runtime::Value& value) {
  print_line(stream, {value});
}

void write_districts(std::ostream& stream, std::int16_t district_count) {
  print_line(stream, {"1", zone, district_count});
}

void write_no_districts(std::ostream& stream) {
  print_line(stream, {"0", zone, "0"});
}

void write_pick_count(std::ostream& stream, std::int16_t pick_count) {
  print_line(stream, {pick_count});
}

void write_pick(std::ostream& stream, const std::string& pick_code) {
  print_line(stream, {pick_code});
}

}  // namespace analysis
