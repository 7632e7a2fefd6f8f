// The last step of a launcher: the load of the grid.
#pragma once

#include <functional>
#include <string>

#include "forms/program.h"

namespace inputs {

/// Made before a launcher lists the grid's columns and plans its files. When the load of the grid ends in a
/// fault, the columns are listed as before, so that the next press does not list them twice, and a chooser
/// that was loaded for the plan goes again: alone it would save what an earlier entry has left.
class GridOpening {
 public:
  explicit GridOpening(forms::Program& program);

  void load_grid(const std::function<void()>& load) const;

 private:
  forms::Program& program_;
  const std::string columns_;
  const bool chooser_was_loaded_;
};

}  // namespace inputs
