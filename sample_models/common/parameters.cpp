#include "common/parameters.h"

#include <algorithm>

#include "common/numbers.h"

namespace model {

std::string coded_file(std::string_view stem, int code) {
  return std::string(stem) + std::to_string(code) + ".txt";
}

std::string read_report_file(LineReader& file) {
  const std::string base(file.next());
  if (base.empty()) file.refuse("the output file has no name");
  return base + ".txt";
}

int read_zone_count(LineReader& file) {
  return read_whole(file, 1, most_zones);
}

int read_district_count(LineReader& file, int zones) {
  const auto line = file.next();
  const auto pieces = split_at_blanks(line);
  constexpr int unreadable = -1;
  const bool pair = pieces.size() == 2;
  const int flag = pair ? parse_whole(pieces[0]).value_or(unreadable) : unreadable;
  const int count = pair ? parse_whole(pieces[1]).value_or(unreadable) : unreadable;
  if (flag == 0 && count == 0) return 0;
  if (flag == 1 && count >= 1 && count <= zones) return count;
  file.refuse(quoted(line) + " is neither 0 and 0 nor 1 and a number of districts up to " +
              std::to_string(zones));
}

std::vector<int> read_codes(LineReader& file, std::span<const int> known) {
  std::vector<int> codes(static_cast<std::size_t>(read_whole(file, 1, static_cast<int>(known.size()))));
  for (auto place = codes.begin(); place != codes.end(); ++place) {
    const auto line = file.next();
    const auto code = parse_whole(line);
    if (!code || std::ranges::find(known, *code) == known.end())
      file.refuse(quoted(line) + " is not a known code");
    if (std::find(codes.begin(), place, *code) != place)
      file.refuse("code " + quoted(line) + " stands twice");
    *place = *code;
  }
  return codes;
}

double read_single_number(const std::string& name) {
  LineReader file(name);
  const double value = read_numbers(file, 1).front();
  file.expect_end();
  return value;
}

std::vector<int> read_districts(const std::string& name, int zones, int districts) {
  LineReader file(name);
  std::vector<int> district_of(static_cast<std::size_t>(zones), 0);
  for (int line = 1; line <= zones; ++line) {
    const auto text = file.next();
    const auto pieces = split_at_blanks(text);
    const auto zone = pieces.size() == 2 ? parse_whole(pieces[0]) : std::nullopt;
    const auto district = pieces.size() == 2 ? parse_whole(pieces[1]) : std::nullopt;
    if (!zone || !district) file.refuse(quoted(text) + " is not a zone and a district");
    if (*zone < 1 || *zone > zones) file.refuse("there is no zone " + std::to_string(*zone));
    if (*district < 1 || *district > districts)
      file.refuse("there is no district " + std::to_string(*district));
    int& place = district_of[static_cast<std::size_t>(*zone - 1)];
    if (place != 0) file.refuse("zone " + std::to_string(*zone) + " stands twice");
    place = *district;
  }
  file.expect_end();
  return district_of;
}

}  // namespace model
