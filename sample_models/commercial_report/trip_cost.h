// The price of a truck's trip.
#pragma once

#include <optional>

#include "common/reliability.h"

namespace model {

/// What the front end says of an industry.
struct IndustryParameters {
  double sigma = 0;             ///< elasticity of substitution between the places that are delivered to
  double value = 0;             ///< dollars that a load is worth
  double unit_cost = 0;         ///< dollars per hour of a truck, besides its driver
  double reliability_cost = 0;  ///< dollars per hour that a load comes unexpectedly late
  double just_in_time = 0;      ///< how much of the loads is waited for
  double load_factor = 0;       ///< per cent of the trips that carry a load
};

/// Reads the files "sig" and "cost" of an industry. Refuses a load worth nothing and a load factor above 100.
IndustryParameters read_industry_parameters(int code);

/// What time costs a trip: so much per minute on the road, and per mile for what comes unexpected. Dollars.
struct TripCost {
  double per_minute = 0;
  double per_mile = 0;

  double of(double minutes, double miles) const { return per_minute * minutes + per_mile * miles; }
};

/// The prices for the trips of an industry. An hour on the road takes the driver, the truck, and a
/// ten-thousandth of what the load is worth. Without `roads` no delay is unexpected.
TripCost trip_cost(const IndustryParameters& parameters, const std::optional<Roads>& roads);

}  // namespace model
