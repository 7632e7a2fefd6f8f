// One run of the cost program, from its parameter file to its work files.
#pragma once

#include <vector>

#include "common/reliability.h"
#include "commuter_cost/distribution.h"

namespace model {

/// What "ccpar.txt" asks for.
struct CaseRequest {
  int zones = 0;
  ReliabilityMode mode = ReliabilityMode::None;
  Case which = Case::Base;
  std::vector<int> codes;  ///< occupations, in the order of the file
};

/// Reads "ccpar.txt" and all that it names from the current directory, and writes a work file for each
/// occupation. Throws Refusal at the first thing that is not as it must be; work files of an earlier run
/// are gone by then, so that no report can take them for this run's.
void run_case();

}  // namespace model
