#include "tons_to_trucks/convert.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "commercial_files/industries.h"
#include "common/parameters.h"
#include "common/refusal.h"
#include "common/zone_pairs.h"
#include "tons_to_trucks/commodities.h"
#include "tons_to_trucks/commodity_file.h"
#include "tons_to_trucks/input_name.h"
#include "tons_to_trucks/trip_file.h"

namespace model {

namespace fs = std::filesystem;

namespace {

constexpr auto commodity_copy = "commodity.txt";
constexpr auto request_file = "ttc.txt";

/// What the front end asks for.
struct Request {
  fs::path directory;  ///< of the analyst's commodity file
  int zones = 0;
  FactorTable factors;
};

/// Something for each industry, in the order of their codes.
template <typename Thing>
using ByIndustry = std::array<Thing, industry_codes.size()>;

/// Trucks a day from one zone to each zone.
using TruckRows = ByIndustry<std::vector<double>>;

Request read_request() {
  LineReader file(request_file);
  // The front end's paths count from its own directory, and the programs run one below.
  Request request{fs::path("..") / fs::path(file.next()), read_zone_count(file), {}};
  file.expect_end();
  request.factors = read_factors();
  return request;
}

std::size_t place_of(int industry) {
  const auto* const place = std::ranges::find(industry_codes, industry);
  return static_cast<std::size_t>(place - industry_codes.begin());
}

/// Adds up the shipments from `origin` in `rows`; `miles` lead to each zone.
void load_trucks(const Request& request, CommodityFile& commodities, int origin,
                 const std::vector<double>& miles, TruckRows& rows) {
  for (auto& row : rows) std::ranges::fill(row, 0);
  while (const auto shipment = commodities.next_from(origin)) {
    const auto& factors = request.factors[static_cast<std::size_t>(shipment->commodity - 1)];
    if (!factors) commodities.refuse("commodity " + std::to_string(shipment->commodity) + " has no factors");
    const auto destination = static_cast<std::size_t>(shipment->destination - 1);
    rows[place_of(industry_of(shipment->commodity))][destination] +=
        factors->trucks_a_day(shipment->tons, miles[destination]);
  }
}

/// Walks through all pairs once, a row at a time, and hands the trucks from each origin to `use`.
void for_each_origin(const Request& request, const std::function<void(int, const TruckRows&)>& use) {
  const auto zones = static_cast<std::size_t>(request.zones);
  ZonePairs distances("Dist.txt", request.zones);
  CommodityFile commodities(commodity_copy, request.zones);
  std::vector<double> miles(zones);
  TruckRows rows;
  for (auto& row : rows) row.resize(zones);
  for (int origin = 1; origin <= request.zones; ++origin) {
    distances.read_row(miles);
    load_trucks(request, commodities, origin, miles, rows);
    use(origin, rows);
  }
  distances.finish();
}

void refuse_what_is_too_wide(int origin, const std::vector<double>& row) {
  const auto wide = std::ranges::find_if_not(row, fits_column);
  if (wide == row.end()) return;
  throw Refusal(commodity_copy, "the trips from " + std::to_string(origin) + " to " +
                                    std::to_string(wide - row.begin() + 1) + " do not fit in 10 columns");
}

/// Looks at all input; tells which industries have trips.
ByIndustry<bool> check_input(const Request& request) {
  ByIndustry<bool> has_trips{};
  for_each_origin(request, [&](int origin, const TruckRows& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      refuse_what_is_too_wide(origin, rows[i]);
      if (std::ranges::any_of(rows[i], [](double trucks) { return trucks > 0; })) has_trips[i] = true;
    }
  });
  if (std::ranges::find(has_trips, true) == has_trips.end()) {
    throw Refusal(commodity_copy, "none of the tons go by truck");
  }
  return has_trips;
}

using TripFiles = ByIndustry<std::unique_ptr<TripFile>>;

fs::path trip_path(const fs::path& stem, std::size_t industry) {
  return stem.string() + '_' + std::string(industry_name(industry_codes[industry])) + "_trip.txt";
}

/// Opens a file for each industry that has trips.
TripFiles open_files(const fs::path& stem, const ByIndustry<bool>& has_trips) {
  TripFiles files;
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (has_trips[i]) files[i] = std::make_unique<TripFile>(trip_path(stem, i));
  }
  return files;
}

/// All or, as far as the file system allows it, none: a run would take those of an earlier conversion for
/// this one's.
void publish(const fs::path& stem, const TripFiles& files) {
  for (const auto& file : files) {
    if (file) file->close();
  }
  for (std::size_t i = 0; i < files.size(); ++i) {
    const fs::path path = trip_path(stem, i);
    std::error_code ignored;
    if (files[i]) {
      files[i]->take_place();
    } else if (fs::is_regular_file(path, ignored)) {
      fs::remove(path, ignored);
    }
  }
}

}  // namespace

void convert() {
  const auto request = read_request();
  const auto has_trips = check_input(request);
  const auto stem = original_of(commodity_copy, request.directory, request_file);
  const auto files = open_files(stem, has_trips);
  for_each_origin(request, [&files](int origin, const TruckRows& rows) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      if (files[i]) files[i]->write_row(origin, rows[i]);
    }
  });
  publish(stem, files);
}

}  // namespace model
