#include "commercial_report/trip_cost.h"

#include "common/line_reader.h"
#include "common/parameters.h"

namespace model {

namespace {

constexpr double dollars_per_driver_hour = 20;
constexpr double worth_lost_in_an_hour = 0.0001;
constexpr double minutes_per_hour = 60;

}  // namespace

IndustryParameters read_industry_parameters(int code) {
  const double sigma = read_single_number(coded_file("sig", code));
  LineReader file(coded_file("cost", code));
  const auto costs = read_numbers(file, 5);
  const IndustryParameters result{sigma, costs[0], costs[1], costs[2], costs[3], costs[4]};
  if (result.value <= 0) file.refuse("the value must be greater than 0");
  if (result.load_factor > 100) file.refuse("the load factor must be from 0 to 100");
  file.expect_end();
  return result;
}

TripCost trip_cost(const IndustryParameters& parameters, const std::optional<Roads>& roads) {
  const double loaded = parameters.load_factor / 100;
  const double hour =
      dollars_per_driver_hour + parameters.unit_cost + loaded * parameters.value * worth_lost_in_an_hour;
  const double late_hour = loaded * parameters.just_in_time * parameters.reliability_cost;
  const double unexpected_minutes = roads ? unexpected_minutes_per_mile(*roads) : 0;
  return {hour / minutes_per_hour, late_hour * unexpected_minutes / minutes_per_hour};
}

}  // namespace model
