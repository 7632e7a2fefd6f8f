#include "inputs/grid_opening.h"

#include "inputs/grid_mode.h"

namespace inputs {

GridOpening::GridOpening(forms::Program& program)
    : program_(program), columns_(column_list(program)), chooser_was_loaded_(program.frmdirget.loaded()) {}

void GridOpening::load_grid(const std::function<void()>& load) const {
  try {
    load();
  } catch (...) {
    set_column_list(program_, columns_);
    if (!chooser_was_loaded_) program_.frmdirget.unload_without_storing();
    throw;
  }
}

}  // namespace inputs
