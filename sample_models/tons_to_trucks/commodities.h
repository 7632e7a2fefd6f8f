// The classes of commodities, and how their tons become trips of trucks.
#pragma once

#include <array>
#include <optional>

namespace model {

/// Classes are numbered from 1 to this.
inline constexpr int commodity_classes = 8;

/// The code of the industry whose trucks carry a class of commodities.
int industry_of(int commodity);

/// How a class of commodities is carried.
struct ConversionFactors {
  double tons_per_truck = 0;
  double truck_share = 0;  ///< share of the tons that goes by truck where trains can carry it, 0 to 1
  double days_a_year = 0;  ///< days on which trucks run

  /// Trucks a day that carry `tons` a year over so many miles, one way. Short hauls are left to trucks alone;
  /// the farther the haul, the more goes by train or ship, until from 100 miles on the truck share is
  /// reached.
  double trucks_a_day(double tons, double miles) const;
};

/// The factors of each class; place c - 1 holds class c, empty where the table has none.
using FactorTable = std::array<std::optional<ConversionFactors>, commodity_classes>;

/// Reads "tontotruck.txt": a line with the class, the tons per truck, the truck share and the days a year for
/// each class that has factors. Refuses a class that stands twice and factors that no truck could keep.
FactorTable read_factors();

}  // namespace model
