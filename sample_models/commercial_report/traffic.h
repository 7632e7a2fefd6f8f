// What the trips of a study take and cost in both cases.
#pragma once

#include <span>
#include <vector>

#include "commercial_report/study.h"

namespace model {

/// Trips of trucks of a day, added up; minutes, miles and dollars are those of all of them together. Adding
/// the traffic of several zones gives that of their trips together.
struct Traffic {
  double trips = 0;
  double miles = 0;
  double base_minutes = 0;
  double improved_minutes = 0;
  double base_dollars = 0;
  double improved_dollars = 0;  ///< of the same trips
  double new_choice = 0;        ///< dollars that it is worth to deliver elsewhere than in the base case

  Traffic& operator+=(const Traffic& other);

  /// Dollars that the improvement is worth.
  double benefit() const { return base_dollars - improved_dollars + new_choice; }
};

/// The ways out of one zone: minutes in both cases and miles to each zone.
struct Row {
  std::span<const double> base_minutes;
  std::span<const double> improved_minutes;
  std::span<const double> miles;
};

/// The traffic of `industry` out of the origin of `row`, with its `trips` to each zone.
Traffic traffic_of(const Industry& industry, const Row& row, std::span<const double> trips);

/// One industry's traffic; place z - 1 holds that out of zone z.
using TrafficByZone = std::vector<Traffic>;

/// Reads "Dist.txt", "base_time.txt", "imp_time.txt" and each industry's file "trktrp", a row of each at a
/// time, and computes the traffic of each industry of the study.
std::vector<TrafficByZone> compute_traffic(const Study& study);

}  // namespace model
