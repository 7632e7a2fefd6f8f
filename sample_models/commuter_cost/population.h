// Where the people of an occupation live and work.
#pragma once

#include <string>
#include <vector>

namespace model {

/// Persons of one occupation by zone; place z - 1 holds zone z.
struct Population {
  std::vector<double> living;
  std::vector<double> working;
};

/// Reads a file with one line for each of the zones, in any order: the zone, the persons living there and
/// the persons working there, each in 10 columns. An empty field counts as 0. Refuses persons without a
/// single workplace, since nothing could be said about their ways.
Population read_population(const std::string& name, int zones);

}  // namespace model
