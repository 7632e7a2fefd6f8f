#include "commuter_cost/population.h"

#include <numeric>

#include "common/line_reader.h"
#include "common/refusal.h"

namespace model {

Population read_population(const std::string& name, int zones) {
  LineReader file(name);
  Population result{std::vector<double>(static_cast<std::size_t>(zones)),
                    std::vector<double>(static_cast<std::size_t>(zones))};
  std::vector<bool> seen(static_cast<std::size_t>(zones));
  for (int line = 1; line <= zones; ++line) {
    const auto [zone_field, living, working] = read_fields(file);
    const int zone = zone_of(file, zone_field);
    if (zone < 1 || zone > zones) file.refuse("there is no zone " + std::to_string(zone));
    const auto place = static_cast<std::size_t>(zone - 1);
    if (seen[place]) file.refuse("zone " + std::to_string(zone) + " stands twice");
    seen[place] = true;
    result.living[place] = number_of(file, living);
    result.working[place] = number_of(file, working);
  }
  file.expect_end();
  const double workplaces = std::accumulate(result.working.begin(), result.working.end(), 0.0);
  const double persons = std::accumulate(result.living.begin(), result.living.end(), 0.0);
  if (persons > 0 && workplaces <= 0) throw Refusal(name, "persons live in the zones but none works there");
  return result;
}

}  // namespace model
