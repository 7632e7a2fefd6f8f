// Which of the workplaces the people of a zone go to, and what that costs them.
#pragma once

#include <span>
#include <vector>

#include "commuter_cost/daily_cost.h"
#include "commuter_cost/population.h"
#include "commuter_files/case_result.h"

namespace model {

/// One occupation as the model computes it.
struct Occupation {
  int code = 0;
  OccupationParameters parameters;
  DailyCost cost;
  Population population;
};

/// The ways out of one zone: one-way minutes and miles to each zone.
struct Row {
  std::span<const double> minutes;
  std::span<const double> miles;
};

/// Distributes `commuters` living at the origin of `row` over the occupation's workplaces, and adds up
/// their ways and their daily cost. The README of the models gives the formulas. `prices` is scratch of as
/// many places as there are zones.
Commuting commute(const Occupation& occupation, double commuters, const Row& row, std::span<double> prices);

}  // namespace model
