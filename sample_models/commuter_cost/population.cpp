#include "commuter_cost/population.h"

#include <numeric>
#include <optional>
#include <string_view>

#include "common/line_reader.h"
#include "common/numbers.h"
#include "common/refusal.h"

namespace model {

namespace {

constexpr std::size_t field_width = 10;

double read_persons(const LineReader& file, std::string_view field) {
  if (field.find_first_not_of(' ') == std::string_view::npos) return 0;
  const auto persons = parse_number(field);
  if (!persons) file.refuse(quoted(field) + " is not a number");
  if (*persons < 0) file.refuse(quoted(field) + " is negative");
  return *persons;
}

}  // namespace

Population read_population(const std::string& name, int zones) {
  LineReader file(name);
  Population result{std::vector<double>(static_cast<std::size_t>(zones)),
                    std::vector<double>(static_cast<std::size_t>(zones)), 0};
  std::vector<bool> seen(static_cast<std::size_t>(zones));
  for (int line = 1; line <= zones; ++line) {
    const auto text = file.next();
    if (text.size() != 3 * field_width) file.refuse("the line must have three fields of 10 columns");
    const auto zone = parse_whole(text.substr(0, field_width));
    if (!zone) file.refuse(quoted(text.substr(0, field_width)) + " is not a zone");
    if (*zone < 1 || *zone > zones) file.refuse("there is no zone " + std::to_string(*zone));
    const auto place = static_cast<std::size_t>(*zone - 1);
    if (seen[place]) file.refuse("zone " + std::to_string(*zone) + " stands twice");
    seen[place] = true;
    result.living[place] = read_persons(file, text.substr(field_width, field_width));
    result.working[place] = read_persons(file, text.substr(2 * field_width));
  }
  file.expect_end();
  result.workplaces = std::accumulate(result.working.begin(), result.working.end(), 0.0);
  const double persons = std::accumulate(result.living.begin(), result.living.end(), 0.0);
  if (persons > 0 && result.workplaces <= 0)
    throw Refusal(name, "persons live in the zones but none works there");
  return result;
}

}  // namespace model
