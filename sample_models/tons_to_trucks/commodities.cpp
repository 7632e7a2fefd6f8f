#include "tons_to_trucks/commodities.h"

#include <algorithm>
#include <string>

#include "common/line_reader.h"

namespace model {

namespace {

constexpr double miles_of_a_long_haul = 100;
constexpr double most_days = 366;

// Farm products are agriculture's; ores, coal and stone are mining's; food, wood and paper, petroleum and
// chemicals, metals, machinery and vehicles are manufacturing's; parcels and mixed goods are service's.
constexpr std::array<int, commodity_classes> industries{1, 2, 4, 4, 4, 4, 4, 9};

ConversionFactors checked(const LineReader& file, const ConversionFactors& factors) {
  if (factors.tons_per_truck <= 0) file.refuse("the tons per truck must be greater than 0");
  if (factors.truck_share > 1) file.refuse("the truck share must be from 0 to 1");
  if (factors.days_a_year <= 0 || factors.days_a_year > most_days) {
    file.refuse("the days a year must be greater than 0 and at most 366");
  }
  return factors;
}

}  // namespace

int industry_of(int commodity) {
  return industries.at(static_cast<std::size_t>(commodity - 1));
}

double ConversionFactors::trucks_a_day(double tons, double miles) const {
  const double length = std::min(1.0, miles / miles_of_a_long_haul);
  const double share = 1 - (1 - truck_share) * length;
  return tons * share / tons_per_truck / days_a_year;
}

FactorTable read_factors() {
  LineReader file("tontotruck.txt");
  FactorTable table;
  do {
    const auto values = read_numbers(file, 4);
    auto& place =
        table[static_cast<std::size_t>(whole_number(file, "commodity", values[0], commodity_classes) - 1)];
    if (place) file.refuse("the commodity stands twice");
    place = checked(file, {values[1], values[2], values[3]});
  } while (!file.at_end());
  return table;
}

}  // namespace model
