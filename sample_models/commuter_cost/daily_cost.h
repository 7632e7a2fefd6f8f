// The price of a commuter's day on the road.
#pragma once

#include "common/reliability.h"
#include "commuter_files/travel_parameters.h"

#include <optional>

namespace model {

/// What a working day's travel costs a commuter: so much per one-way minute, per one-way mile, and at any
/// distance. Dollars per day, both ways.
struct DailyCost {
  double per_minute = 0;
  double per_mile = 0;
  double fixed = 0;

  double of(double minutes, double miles) const { return per_minute * minutes + per_mile * miles + fixed; }
};

/// The prices for people of a `wage` (dollars per day of 8 hours). A minute on the road is worth half a
/// minute's wage, one of unexpected delay twice as much. Who drives alone pays for the car, two who share
/// it pay half each, public transport takes its fare, and walking costs nothing but time. Without `roads`
/// no delay is unexpected.
DailyCost daily_cost(double wage, const TravelParameters& travel, const std::optional<Roads>& roads);

}  // namespace model
