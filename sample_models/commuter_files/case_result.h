// What the cost program leaves for the report program: one work file for each case and occupation.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/reliability.h"

namespace model {

enum class Case { Base, Improvement };

/// The commuters of one occupation who live in one zone, added up. Adding the results of several zones
/// gives that of their commuters together.
struct Commuting {
  double commuters = 0;  ///< persons
  double minutes = 0;    ///< one-way minutes of all of them
  double miles = 0;      ///< one-way miles of all of them
  double dollars = 0;    ///< daily cost of all of them

  Commuting& operator+=(const Commuting& other);
};

/// One occupation in one case.
struct CaseResult {
  ReliabilityMode mode = ReliabilityMode::None;
  std::optional<Roads> roads;    ///< empty when no reliability data were used
  std::vector<Commuting> zones;  ///< place z - 1 holds zone z
};

/// The work file's name: "costbase7.txt", "costimp7.txt". The front end's clean-up takes it along with all
/// other files that begin with "cost".
std::string result_file(Case which, int code);

/// Writes a work file. The first line holds the number of zones, the mode word and, when there are
/// reliability data, the speed and the highway share; then comes for each zone one line with its number and
/// the four totals.
void write_result(Case which, int code, const CaseResult& result);

/// Reads a work file; refuses one that was made for another number of zones.
CaseResult read_result(Case which, int code, int zones);

}  // namespace model
