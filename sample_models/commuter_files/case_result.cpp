#include "commuter_files/case_result.h"

#include "common/line_reader.h"
#include "common/numbers.h"
#include "common/parameters.h"
#include "common/text_file.h"

namespace model {

namespace {

void read_heading(LineReader& file, int zones, CaseResult& result) {
  const auto line = file.next();
  const auto pieces = split_at_blanks(line);
  const auto mode = pieces.size() >= 2 ? parse_mode(pieces[1]) : std::nullopt;
  if (!mode || parse_whole(pieces[0]) != zones) {
    file.refuse("the results were made for another study");
  }
  result.mode = *mode;
  if (pieces.size() == 2) return;
  const auto speed = pieces.size() == 4 ? parse_number(pieces[2]) : std::nullopt;
  const auto share = pieces.size() == 4 ? parse_number(pieces[3]) : std::nullopt;
  if (!speed || !share) file.refuse("the speed and the highway share are damaged");
  result.roads = checked_roads(file, *speed, *share);
}

}  // namespace

Commuting& Commuting::operator+=(const Commuting& other) {
  commuters += other.commuters;
  minutes += other.minutes;
  miles += other.miles;
  dollars += other.dollars;
  return *this;
}

std::string result_file(Case which, int code) {
  return coded_file(which == Case::Base ? "costbase" : "costimp", code);
}

void write_result(Case which, int code, const CaseResult& result) {
  auto text = std::to_string(result.zones.size()) + ' ' + word_of(result.mode);
  if (result.roads) text += ' ' + plain(result.roads->speed) + ' ' + plain(result.roads->highway_share);
  text += '\n';
  int zone = 0;
  for (const auto& total : result.zones) {
    text += std::to_string(++zone);
    for (const double value : {total.commuters, total.minutes, total.miles, total.dollars}) {
      text += ' ' + plain(value);
    }
    text += '\n';
  }
  write_lines(result_file(which, code), text);
}

CaseResult read_result(Case which, int code, int zones) {
  LineReader file(result_file(which, code));
  CaseResult result;
  read_heading(file, zones, result);
  for (int zone = 1; zone <= zones; ++zone) {
    const auto values = read_numbers(file, 5);
    if (values[0] != zone) file.refuse("zone " + std::to_string(zone) + " is missing");
    result.zones.push_back({values[1], values[2], values[3], values[4]});
  }
  file.expect_end();
  return result;
}

}  // namespace model
