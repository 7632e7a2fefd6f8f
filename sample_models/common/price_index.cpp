#include "common/price_index.h"

#include <cmath>

namespace model {

double PriceIndex::add(double weight, double price) {
  const double log_price = std::log(price);
  const double chosen = weight * std::exp(-sigma_ * log_price);
  weights_ += weight;
  power_sum_ += chosen * price;
  log_sum_ += weight * log_price;
  return chosen;
}

double PriceIndex::over_lowest() const {
  // Close to an elasticity of 1 the power mean becomes the geometric mean, and its formula loses all digits.
  constexpr double close = 1e-6;
  if (std::abs(1 - sigma_) < close) return std::exp(log_sum_ / weights_);
  return std::pow(power_sum_ / weights_, 1 / (1 - sigma_));
}

}  // namespace model
