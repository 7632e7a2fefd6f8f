// The way of a launcher to the grid.
#pragma once

#include <functional>
#include <string>

#include "forms/program.h"

namespace inputs {

/// Made before a launcher plans the grid's files. When a step on the way to the grid ends in a fault, up to
/// the grid's table being durable, the grid does not stay, the columns are listed as before, so that the next
/// press does not list them twice, and a chooser that was loaded for the plan goes again: alone it would save
/// what an earlier entry has left.
class GridOpening {
 public:
  explicit GridOpening(forms::Program& program);

  void go(const std::function<void()>& steps) const;

 private:
  forms::Program& program_;
  const std::string columns_;
  const bool chooser_was_loaded_;
  const bool grid_was_loaded_;
};

}  // namespace inputs
