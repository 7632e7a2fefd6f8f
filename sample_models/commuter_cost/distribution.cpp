#include "commuter_cost/distribution.h"

#include <algorithm>
#include <limits>

#include "common/price_index.h"

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

}  // namespace

Commuting commute(const Occupation& occupation, double commuters, const Row& row, std::span<double> prices) {
  if (commuters <= 0) return {};
  const auto& workplaces = occupation.population.working;
  const double lowest = price_workplaces(occupation, row, prices);
  PriceIndex index(occupation.parameters.sigma);
  double weights = 0;
  double minutes = 0;
  double miles = 0;
  for (std::size_t i = 0; i < prices.size(); ++i) {
    if (workplaces[i] <= 0) continue;
    const double weight = index.add(workplaces[i], prices[i] / lowest);
    weights += weight;
    minutes += weight * row.minutes[i];
    miles += weight * row.miles[i];
  }
  const double price = lowest * index.over_lowest();
  // Rounding must not make a cost of nothing negative.
  const double daily = std::max(0.0, price - occupation.parameters.wage);
  return {commuters, commuters * minutes / weights, commuters * miles / weights, commuters * daily};
}

}  // namespace model
