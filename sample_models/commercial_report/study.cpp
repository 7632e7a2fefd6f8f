#include "commercial_report/study.h"

#include "commercial_files/industries.h"
#include "common/line_reader.h"
#include "common/parameters.h"

namespace model {

namespace {

/// The front end hands over the base case's speed and highway share in one file, and the base case's highway
/// share and the improvement's speed in the other: in a commercial run the improvement changes no share.
BothRoads read_roads_of_database() {
  LineReader base_file("base_var.txt");
  const auto base = read_numbers(base_file, 2);
  const auto base_roads = checked_roads(base_file, base[0], base[1]);
  base_file.expect_end();
  LineReader improvement_file("imp_var.txt");
  const auto improvement = read_numbers(improvement_file, 2);
  const auto improvement_roads = checked_roads(improvement_file, improvement[1], improvement[0]);
  improvement_file.expect_end();
  return {base_roads, improvement_roads};
}

std::optional<BothRoads> read_roads(ReliabilityMode mode) {
  switch (mode) {
    case ReliabilityMode::Database:
      return read_roads_of_database();
    case ReliabilityMode::File:
      return read_supplied_roads();
    case ReliabilityMode::None:
      break;
  }
  return std::nullopt;
}

Industry read_industry(int code, const std::optional<BothRoads>& roads) {
  const auto parameters = read_industry_parameters(code);
  if (!roads) return {code, parameters, trip_cost(parameters, {}), trip_cost(parameters, {})};
  return {code, parameters, trip_cost(parameters, roads->base), trip_cost(parameters, roads->improvement)};
}

}  // namespace

Study read_study() {
  LineReader file("outpar.txt");
  Study study;
  study.zones = read_zone_count(file);
  study.districts = read_district_count(file, study.zones);
  study.mode = read_mode(file);
  study.report_file = read_report_file(file);
  const auto codes = read_codes(file, industry_codes);
  file.expect_end();
  if (study.districts > 0) study.district_of = read_districts("district.txt", study.zones, study.districts);
  study.roads = read_roads(study.mode);
  for (const int code : codes) study.industries.push_back(read_industry(code, study.roads));
  return study;
}

}  // namespace model
