#include "commuter_cost/distribution.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace model {

namespace {

/// Sets the price of a day's work at every zone, wage and travel together, and returns the lowest at which
/// there is a workplace.
double price_workplaces(const Occupation& occupation, const Row& row, std::span<double> prices) {
  double lowest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < prices.size(); ++i) {
    prices[i] = occupation.parameters.wage + occupation.cost.of(row.minutes[i], row.miles[i]);
    if (occupation.population.working[i] > 0) lowest = std::min(lowest, prices[i]);
  }
  return lowest;
}

/// The price index over all workplaces, as a multiple of the lowest price: from the sum of the workplaces
/// weighted with (price / lowest)^(1 - sigma) and the one weighted with the logarithm.
double index_over_lowest(double sigma, double workplaces, double power_sum, double log_sum) {
  // Close to an elasticity of 1 the power mean becomes the geometric mean, and its formula loses all digits.
  constexpr double close = 1e-6;
  if (std::abs(1 - sigma) < close) return std::exp(log_sum / workplaces);
  return std::pow(power_sum / workplaces, 1 / (1 - sigma));
}

}  // namespace

Commuting commute(const Occupation& occupation, double commuters, const Row& row, std::span<double> prices) {
  if (commuters <= 0) return {};
  const double sigma = occupation.parameters.sigma;
  const auto& workplaces = occupation.population.working;
  const double lowest = price_workplaces(occupation, row, prices);
  double weights = 0;
  double minutes = 0;
  double miles = 0;
  double power_sum = 0;
  double log_sum = 0;
  for (std::size_t i = 0; i < prices.size(); ++i) {
    if (workplaces[i] <= 0) continue;
    // Relative to the lowest price no power can vanish for all workplaces at once.
    const double ratio = prices[i] / lowest;
    const double log_ratio = std::log(ratio);
    const double weight = workplaces[i] * std::exp(-sigma * log_ratio);
    weights += weight;
    minutes += weight * row.minutes[i];
    miles += weight * row.miles[i];
    power_sum += weight * ratio;
    log_sum += workplaces[i] * log_ratio;
  }
  const double price =
      lowest * index_over_lowest(sigma, occupation.population.workplaces, power_sum, log_sum);
  // Rounding must not make a cost of nothing negative.
  const double daily = std::max(0.0, price - occupation.parameters.wage);
  return {commuters, commuters * minutes / weights, commuters * miles / weights, commuters * daily};
}

}  // namespace model
