#include "inputs/grid_opening.h"

#include "inputs/grid_mode.h"

namespace inputs {

GridOpening::GridOpening(forms::Program& program)
    : program_(program),
      columns_(column_list(program)),
      chooser_was_loaded_(program.frmdirget.loaded()),
      grid_was_loaded_(program.frmDataGrid.loaded()) {}

void GridOpening::go(const std::function<void()>& steps) const {
  try {
    steps();
    program_.desktop.make_durable();
  } catch (...) {
    if (!grid_was_loaded_) program_.frmDataGrid.unload_without_storing();
    set_column_list(program_, columns_);
    if (!chooser_was_loaded_) program_.frmdirget.unload_without_storing();
    throw;
  }
}

}  // namespace inputs
