// All that the report tells about.
#pragma once

#include <string>
#include <vector>

#include "commuter_files/case_result.h"
#include "commuter_files/travel_parameters.h"

namespace model {

/// One occupation of the study, with its results in both cases.
struct ReportedOccupation {
  int code = 0;
  OccupationParameters parameters;
  CaseResult base;
  CaseResult improvement;
};

/// The study and its results.
struct Study {
  std::string report_file;
  int zones = 0;
  int districts = 0;             ///< 0 when the study has none
  std::vector<int> district_of;  ///< place z - 1 holds the district of zone z; empty without districts
  TravelParameters travel;
  std::vector<ReportedOccupation> occupations;  ///< at least one
};

/// Reads "outpar.txt", the parameters, the district file where there are districts, and the work files of
/// both cases. Refuses what is not as it must be, also cases that were not computed alike.
Study read_study();

}  // namespace model
