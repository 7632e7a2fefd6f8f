// The layout of the grid's form follows the height of its window.
#include "inputs/frmdatagrid.h"
#include "inputs/grid_mode.h"
#include "runtime/fault.h"
#include "runtime/forms/form_size.h"

namespace inputs::frmdatagrid {

namespace {

void lay_out(forms::FrmDataGridControls& form, int height) {
  constexpr int below_destination = 1500;
  constexpr int between_captions = 100;
  constexpr int around_grid = 800;
  form.txt_zonedit(2).set_top(height - below_destination);
  form.txt_zonedit(3).set_top(height - below_destination);
  form.txt_zonedit(0).set_top(height - (below_destination + form.txt_zonedit(2).height()));
  form.txt_zonedit(1).set_top(height - (below_destination + form.txt_zonedit(2).height()));
  form.txt_zonedit(4).set_top(form.txt_zonedit(1).top());
  form.Label2(3).set_top(form.txt_zonedit(2).top());
  form.Label2(2).set_top(form.txt_zonedit(0).top());
  form.Label2(0).set_top(form.txt_zonedit(0).top() - form.Label2(0).height());
  form.Label2(1).set_top(form.Label2(0).top() + between_captions);
  form.Label2(4).set_top(form.txt_zonedit(0).top() - form.Label2(4).height());
  form.Command1.set_top(form.txt_zonedit(4).top());
  form.cmd_zonedit(0).set_top(form.txt_zonedit(4).top());
  form.Shape1.set_top(form.Label2(0).top());
  form.DataLu.set_top(form.Shape1.top());
  form.DataLu.set_left(form.cmd_zonedit(0).left());
  const int grid_height = height - (around_grid + form.Shape1.height() + form.picButtons.height());
  if (grid_height >= 0) form.grdDataGrid.set_height(grid_height);  // else it keeps the one it has
  form.Shape2.set_top(form.Shape1.top());
}

/// Zones have one range; pairs of them have two.
void hide_destination_range(forms::FrmDataGridControls& form) {
  form.txt_zonedit(2).set_visible(false);
  form.txt_zonedit(3).set_visible(false);
  form.Label2(3).set_visible(false);
}

}  // namespace

void Form_Resize(Program& program) {
  auto& form = program.frmDataGrid;
  if (runtime::forms::is_minimized(form)) return;
  runtime::ignoring_faults([&] {
    lay_out(*form.operator->(), runtime::forms::height_of(form));
    if (mode_word(program) == mode::commuter_data) hide_destination_range(*form.operator->());
  });
}

}  // namespace inputs::frmdatagrid
