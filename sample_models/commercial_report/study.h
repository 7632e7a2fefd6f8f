// What a commercial run is asked to compute.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commercial_report/trip_cost.h"
#include "common/reliability.h"

namespace model {

/// One industry of the study.
struct Industry {
  int code = 0;
  IndustryParameters parameters;
  TripCost base;
  TripCost improvement;
};

/// The study as the parameter files tell it.
struct Study {
  int zones = 0;
  int districts = 0;             ///< 0 when the study has none
  std::vector<int> district_of;  ///< place z - 1 holds the district of zone z; empty without districts
  ReliabilityMode mode = ReliabilityMode::None;
  std::optional<BothRoads> roads;  ///< empty when no reliability data are used
  std::string report_file;
  std::vector<Industry> industries;  ///< at least one, in the order of their picks
};

/// Reads "outpar.txt" and the parameters, reliability data and districts that it asks for. Refuses what is
/// not as it must be.
Study read_study();

}  // namespace model
