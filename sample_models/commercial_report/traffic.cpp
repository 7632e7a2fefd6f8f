#include "commercial_report/traffic.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "common/parameters.h"
#include "common/price_index.h"
#include "common/refusal.h"
#include "common/zone_pairs.h"

namespace model {

namespace {

/// What a load costs where it arrives, in both cases.
struct Delivery {
  double base = 0;
  double improved = 0;

  double ratio() const { return improved / base; }
};

Delivery delivery(const Industry& industry, const Row& row, std::size_t destination) {
  const double miles = row.miles[destination];
  const double value = industry.parameters.value;
  return {value + industry.base.of(row.base_minutes[destination], miles),
          value + industry.improvement.of(row.improved_minutes[destination], miles)};
}

double lowest_ratio(const Industry& industry, const Row& row, std::span<const double> trips) {
  double lowest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < trips.size(); ++i) {
    if (trips[i] > 0) lowest = std::min(lowest, delivery(industry, row, i).ratio());
  }
  return lowest;
}

/// What the improvement is worth to those who send loads out of one zone and can choose anew where they send
/// them: by so much fall the prices of their deliveries as a whole.
double worth_with_choice(const Industry& industry, const Row& row, std::span<const double> trips) {
  const double lowest = lowest_ratio(industry, row, trips);
  PriceIndex index(industry.parameters.sigma);
  double spent = 0;
  for (std::size_t i = 0; i < trips.size(); ++i) {
    if (trips[i] <= 0) continue;
    const auto prices = delivery(industry, row, i);
    index.add(trips[i] * prices.base, prices.ratio() / lowest);
    spent += trips[i] * prices.base;
  }
  return spent * (1 - lowest * index.over_lowest());
}

void refuse_what_is_too_large(const Traffic& traffic, int code) {
  for (const double value :
       {traffic.trips, traffic.miles, traffic.base_minutes, traffic.improved_minutes, traffic.base_dollars,
        traffic.improved_dollars, traffic.new_choice, traffic.benefit()}) {
    if (!std::isfinite(value)) {
      throw Refusal(coded_file("trktrp", code), "the numbers are too large to be computed with");
    }
  }
}

/// The trip files of the study's industries.
std::vector<ZonePairs> open_trip_files(const Study& study) {
  std::vector<ZonePairs> files;
  for (const auto& industry : study.industries) {
    files.emplace_back(coded_file("trktrp", industry.code), study.zones, PairLayout::Columns);
  }
  return files;
}

}  // namespace

Traffic& Traffic::operator+=(const Traffic& other) {
  trips += other.trips;
  miles += other.miles;
  base_minutes += other.base_minutes;
  improved_minutes += other.improved_minutes;
  base_dollars += other.base_dollars;
  improved_dollars += other.improved_dollars;
  new_choice += other.new_choice;
  return *this;
}

Traffic traffic_of(const Industry& industry, const Row& row, std::span<const double> trips) {
  Traffic sum;
  for (std::size_t i = 0; i < trips.size(); ++i) {
    const double base_minutes = row.base_minutes[i];
    const double improved_minutes = row.improved_minutes[i];
    const double miles = row.miles[i];
    sum += {trips[i],
            trips[i] * miles,
            trips[i] * base_minutes,
            trips[i] * improved_minutes,
            trips[i] * industry.base.of(base_minutes, miles),
            trips[i] * industry.improvement.of(improved_minutes, miles),
            0};
  }
  if (sum.trips <= 0) return sum;
  sum.new_choice = worth_with_choice(industry, row, trips) - (sum.base_dollars - sum.improved_dollars);
  return sum;
}

std::vector<TrafficByZone> compute_traffic(const Study& study) {
  const auto zones = static_cast<std::size_t>(study.zones);
  std::vector<TrafficByZone> result(study.industries.size(), TrafficByZone(zones));
  ZonePairs base_times("base_time.txt", study.zones);
  ZonePairs improved_times("imp_time.txt", study.zones);
  ZonePairs distances("Dist.txt", study.zones);
  auto trip_files = open_trip_files(study);
  std::vector<double> base_minutes(zones);
  std::vector<double> improved_minutes(zones);
  std::vector<double> miles(zones);
  std::vector<double> trips(zones);
  Traffic all;
  for (std::size_t origin = 0; origin < zones; ++origin) {
    base_times.read_row(base_minutes);
    improved_times.read_row(improved_minutes);
    distances.read_row(miles);
    for (std::size_t i = 0; i < result.size(); ++i) {
      trip_files[i].read_row(trips);
      const auto& industry = study.industries[i];
      result[i][origin] = traffic_of(industry, {base_minutes, improved_minutes, miles}, trips);
      all += result[i][origin];
      refuse_what_is_too_large(all, industry.code);
    }
  }
  for (auto* const file : {&base_times, &improved_times, &distances}) file->finish();
  for (auto& file : trip_files) file.finish();
  return result;
}

}  // namespace model
