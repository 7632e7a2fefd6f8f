#include "commuter_cost/run_case.h"

#include <cmath>
#include <filesystem>
#include <system_error>

#include "common/parameters.h"
#include "common/refusal.h"
#include "common/zone_pairs.h"
#include "commuter_files/occupations.h"

namespace model {

namespace {

CaseRequest read_request() {
  LineReader file("ccpar.txt");
  CaseRequest request;
  request.zones = read_zone_count(file);
  request.mode = read_mode(file);
  request.which = read_whole(file, 0, 1) == 0 ? Case::Base : Case::Improvement;
  request.codes = read_codes(file, occupation_codes);
  file.expect_end();
  return request;
}

/// Results of an earlier run must not be reported as this one's. The base case opens a new run, so it takes
/// the improvement's along.
void remove_old_results(Case which) {
  std::error_code ignored;
  for (const int code : occupation_codes) {
    std::filesystem::remove(result_file(which, code), ignored);
    if (which == Case::Base) std::filesystem::remove(result_file(Case::Improvement, code), ignored);
  }
}

/// The front end's table gives each case a file of its own.
Roads read_roads_of_case(Case which) {
  LineReader file(which == Case::Base ? "base_var.txt" : "imp_var.txt");
  const auto values = read_numbers(file, 2);
  const auto roads = checked_roads(file, values[0], values[1]);
  file.expect_end();
  return roads;
}

std::optional<Roads> read_supplied_roads_of_case(Case which) {
  const auto roads = read_supplied_roads();
  if (!roads) return std::nullopt;
  return which == Case::Base ? roads->base : roads->improvement;
}

std::optional<Roads> read_roads(const CaseRequest& request) {
  switch (request.mode) {
    case ReliabilityMode::Database:
      return read_roads_of_case(request.which);
    case ReliabilityMode::File:
      return read_supplied_roads_of_case(request.which);
    case ReliabilityMode::None:
      break;
  }
  return std::nullopt;
}

std::vector<Occupation> read_occupations(const CaseRequest& request, const std::optional<Roads>& roads) {
  const auto travel = read_travel_parameters();
  std::vector<Occupation> occupations;
  for (const int code : request.codes) {
    const auto parameters = read_occupation_parameters(code);
    occupations.push_back({code, parameters, daily_cost(parameters.wage, travel, roads),
                           read_population(coded_file("popemp", code), request.zones)});
  }
  return occupations;
}

void refuse_what_is_too_large(const Commuting& total, int code) {
  for (const double value : {total.minutes, total.miles, total.dollars}) {
    if (!std::isfinite(value)) {
      throw Refusal(coded_file("popemp", code), "the numbers are too large to be computed with");
    }
  }
}

/// Walks through all pairs once, a row at a time, for all occupations together.
std::vector<CaseResult> compute(const CaseRequest& request, const std::vector<Occupation>& occupations,
                                const std::optional<Roads>& roads) {
  const auto zones = static_cast<std::size_t>(request.zones);
  std::vector<CaseResult> results(occupations.size(), {request.mode, roads, std::vector<Commuting>(zones)});
  ZonePairs times(request.which == Case::Base ? "base_time.txt" : "imp_time.txt", request.zones);
  ZonePairs distances("Dist.txt", request.zones);
  std::vector<double> minutes(zones);
  std::vector<double> miles(zones);
  std::vector<double> prices(zones);
  for (std::size_t origin = 0; origin < zones; ++origin) {
    times.read_row(minutes);
    distances.read_row(miles);
    for (std::size_t i = 0; i < occupations.size(); ++i) {
      auto& total = results[i].zones[origin];
      total = commute(occupations[i], occupations[i].population.living[origin], {minutes, miles}, prices);
      refuse_what_is_too_large(total, occupations[i].code);
    }
  }
  times.finish();
  distances.finish();
  return results;
}

}  // namespace

void run_case() {
  const auto request = read_request();
  remove_old_results(request.which);
  const auto roads = read_roads(request);
  const auto occupations = read_occupations(request, roads);
  const auto results = compute(request, occupations, roads);
  for (std::size_t i = 0; i < results.size(); ++i) {
    write_result(request.which, occupations[i].code, results[i]);
  }
}

}  // namespace model
