#include "commuter_cost/daily_cost.h"

namespace model {

namespace {

constexpr double minutes_of_work = 8 * 60;
constexpr double worth_of_travel_time = 0.5;
constexpr double weight_of_unexpected_minute = 2;
constexpr double ways_a_day = 2;

}  // namespace

DailyCost daily_cost(double wage, const TravelParameters& travel, const std::optional<Roads>& roads) {
  const double minute = worth_of_travel_time * wage / minutes_of_work;
  const auto& [alone, public_transport, shared_car, on_foot] = travel.mode_shares;
  static_cast<void>(on_foot);
  const double car_mile = travel.dollars_per_car_mile * (alone + shared_car / 2);
  const double unexpected_minutes = roads ? unexpected_minutes_per_mile(*roads) : 0;
  return {ways_a_day * minute,
          ways_a_day * (car_mile + minute * weight_of_unexpected_minute * unexpected_minutes),
          travel.fare * public_transport};
}

}  // namespace model
