#include "parameters/modes.h"

#include "shell/module1.h"

namespace parameters::mdiform1 {

namespace {

using forms::Form1;
using forms::Program;
using runtime::forms::WindowState;

constexpr int last_occupation = 11;
constexpr int labels_below_first_row = 205;
constexpr int label_pitch = 218;  // the height of a grid's row

/// Leaves "Mining" as it stands: two editors blank it, one keeps it.
void hide_industry_labels(Form1& form1) {
  for (const int row : {0, 2, 3}) form1->Label1(row).set_visible(false);
}

/// Their places are a little above the rows that they name.
void lower_industry_labels(Form1& form1) {
  for (int row = 0; row <= 3; ++row) form1->Label1(row).align_bottom();
}

void hide_headings_and_data(Form1& form1) {
  form1->Label2.set_visible(false);
  form1->Label3.set_visible(false);
  form1->Data1.set_visible(false);
  form1->Data2.set_visible(false);
}

void put_label_beside_row(Form1& form1, int row, int top) {
  auto& label = form1->Lbl_data4(row);
  label.set_visible(true);
  label.set_top(top);
  label.align_right();
}

void label_occupations(Form1& form1) {
  put_label_beside_row(form1, 0, form1->DBGrid4.row_top(0) + labels_below_first_row);
  for (int row = 1; row <= last_occupation; ++row) {
    put_label_beside_row(form1, row, form1->Lbl_data4(row - 1).top() + label_pitch);
  }
}

void line_up_commuter_buttons(Form1& form1) {
  auto& save = form1->Command4;
  auto& cancel = form1->Command5;
  auto& restore = form1->Command6;
  const int top = form1->DBGrid4.height() + 200;
  save.set_top(top);
  cancel.set_top(top);
  restore.set_top(top);
  save.set_left(form1->DBGrid4.left());
  cancel.set_left(save.left() + save.width());
  restore.set_left(cancel.left() + cancel.width());
}

}  // namespace

void Commerparam_Click(Program& program) {
  auto& form1 = program.form1;
  form1.Show();
  form1.set_caption(commercial_caption);
  shell::GoToAppDirectory(program);
  form1->DBGrid1.set_current_column(3);
  form1->DBGrid1.set_height(5000);
  form1->DBGrid1.set_column_visible(0, false);
  lower_industry_labels(form1);
  form1->Command2.set_visible(true);
}

void commute_param_sw_Click(Program& program) {
  auto& form1 = program.form1;
  shell::GoToAppDirectory(program);

  form1->DBGrid2.set_visible(false);
  form1->DBGrid1.set_visible(false);
  form1->DBGrid3.set_visible(false);
  auto& grid = form1->DBGrid4;
  grid.set_visible(true);
  grid.set_current_row(1);
  grid.set_height(4000);
  grid.set_row_selectors(false);
  form1->Data4.set_visible(false);

  grid.set_left(form1->Lbl_data4(5).width() + 400);
  grid.set_top(form1->DBGrid1.top());
  grid.set_width(4000);

  form1->Command5.set_visible(true);
  hide_industry_labels(form1);
  form1->Label1(1).set_caption("");
  hide_headings_and_data(form1);
  label_occupations(form1);

  form1->Command1.set_visible(false);
  form1->Command2.set_visible(false);
  form1->Command3.set_visible(false);
  form1->Command4.set_visible(true);
  form1->Command5.set_visible(true);
  form1->Command6.set_visible(true);
  line_up_commuter_buttons(form1);

  form1.Show();
  form1.set_caption(commuter_caption);
  form1.set_window_state(WindowState::maximized);
}

void Commute_param_ms_Click(Program& program) {
  auto& form1 = program.form1;
  shell::DisableMenus(program);
  shell::GoToAppDirectory(program);

  form1->DBGrid2.set_visible(false);
  form1->DBGrid1.set_visible(false);
  form1->DBGrid3.set_visible(true);
  form1->DBGrid3.set_row_selectors(false);
  form1->Data3.set_visible(false);
  const auto& place = form1->DBGrid1.place();
  form1->DBGrid3.set_place({0, place.top, form1.width() + 1000, place.height});

  form1->Command5.set_top(form1->DBGrid1.top() + 200);
  form1->Command4.set_top(form1->Command1.top());
  form1->Command6.set_top(form1->Command1.top());
  form1->Command6.set_visible(true);

  hide_industry_labels(form1);
  form1->Label1(1).set_caption("");
  hide_headings_and_data(form1);

  form1.Show();
  form1.set_caption(mode_share_caption);
  form1.set_window_state(WindowState::maximized);
}

void mnu_rel_Click(Program& program) {
  auto& form1 = program.form1;
  shell::GoToAppDirectory(program);
  form1.set_caption(reliability_caption);

  form1->DBGrid2.set_visible(true);
  form1->DBGrid1.set_visible(false);
  form1->DBGrid2.set_place({0, form1->DBGrid1.top(), form1.width(), form1->DBGrid2.height()});

  hide_industry_labels(form1);
  hide_headings_and_data(form1);
  form1->Data3.set_visible(false);

  form1.Load();
}

}  // namespace parameters::mdiform1
