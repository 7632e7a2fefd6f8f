// What both commuter programs read of the price of travelling.
#pragma once

#include <array>
#include <string>

namespace model {

/// How commuters travel and what it costs. The four shares are those of driving alone, of public
/// transport, of two persons in one car, and of walking or cycling.
struct TravelParameters {
  double dollars_per_car_mile = 0;
  double fare = 0;  ///< dollars per day of who goes by public transport
  std::array<double, 4> mode_shares{};
};

/// Reads "costpar.txt": a line with the two prices, and a line with 0 and the four shares. Refuses shares
/// that do not total 1 within 0.02.
TravelParameters read_travel_parameters();

/// What one occupation earns, and how readily its work is done elsewhere.
struct OccupationParameters {
  double wage = 0;   ///< dollars per day
  double sigma = 0;  ///< elasticity of substitution between workplaces
};

/// Reads the files "sig" and "wage" of an occupation. Refuses a wage of 0.
OccupationParameters read_occupation_parameters(int code);

}  // namespace model
