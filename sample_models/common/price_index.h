// The price of a choice among many things.
#pragma once

namespace model {

/// The power mean of prices with exponent 1 - `sigma`, which is what they cost together to who substitutes
/// one for the other with that elasticity. The prices come one by one as multiples of the lowest of them, so
/// that no power can vanish for all of them at once.
class PriceIndex {
 public:
  explicit PriceIndex(double sigma) : sigma_(sigma) {}

  /// Takes in a price, 1 or greater. Returns `weight` times the price to the power
  /// of minus `sigma`: how much of the choice falls to it, relative to others.
  double add(double weight, double price);

  /// The mean over all that was added, as a multiple of the lowest price; needs a weight greater than 0.
  double over_lowest() const;

 private:
  double sigma_;
  double weights_ = 0;
  double power_sum_ = 0;
  double log_sum_ = 0;
};

}  // namespace model
