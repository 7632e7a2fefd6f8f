// Save and Cancel of the four editors.
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

#include "parameters/form1.h"
#include "parameters/modes.h"
#include "runtime/fault.h"
#include "shell/module1.h"

namespace parameters {

namespace {

using forms::Program;
using runtime::Fault;
using runtime::Value;
using runtime::forms::DBGrid;

double number_in(const Value& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* single = std::get_if<float>(&value)) return static_cast<double>(*single);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  throw Fault(runtime::is_null(value) ? 94 : 13);
}

float in_single_precision(double number) {
  if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) throw Fault(6);
  return static_cast<float>(number);
}

/// In single precision, the bounds as well, so that 1.02 is still within them.
bool shares_total_one(const DBGrid& grid) {
  constexpr int share_count = 4;
  float sum = 0;
  for (int column = 0; column < share_count; ++column) {
    sum = in_single_precision(number_in(grid.column_value(column)) + static_cast<double>(sum));
  }
  return 0.98F <= sum && 1.02F >= sum;
}

bool always_valid(Program&) {
  return true;
}

bool shares_are_valid(Program& program) {
  if (program.form1.caption() != mode_share_caption) return true;
  if (shares_total_one(program.form1->DBGrid3)) return true;
  program.desktop.MsgBox("Mode Shares Must Total 1.0", runtime::forms::exclamation);
  return false;
}

// In every editor, also where that grid is hidden.
void move_commercial_grid(Program& program) {
  program.form1->DBGrid1.set_current_row(1);
}

void move_commuter_grid(Program& program) {
  if (program.form1.caption() == commuter_caption) {
    program.form1->DBGrid4.set_current_row(1);
  } else if (program.form1.caption() == mode_share_caption) {
    program.form1->DBGrid3.set_current_row(0);
  }
}

/// What differs between the buttons that end an edit.
struct Ending {
  bool (*is_valid)(Program&);
  void (*end_transaction)(Program&);
  bool refreshes_commercial_data;
  void (*move_row)(Program&);
  bool enables_menus;
};

constexpr Ending plain_save{always_valid, shell::CommitFileTransaction, true, move_commercial_grid, true};
constexpr Ending plain_cancel{always_valid, shell::RollbackFileTransaction, false, move_commercial_grid,
                              true};
constexpr Ending commuter_save{shares_are_valid, shell::CommitFileTransaction, true, move_commuter_grid,
                               false};
constexpr Ending commuter_cancel{always_valid, shell::RollbackFileTransaction, false, move_commuter_grid,
                                 true};

void end_edit(Program& program, const Ending& ending) {
  shell::BeginFileTransaction(program);
  form1::KeyColumnGuard(program);
  if (!ending.is_valid(program)) return shell::RollbackFileTransaction(program);
  ending.end_transaction(program);
  if (ending.refreshes_commercial_data) program.form1->Data1.Refresh();
  program.form1.Refresh();
  ending.move_row(program);
  offer_main_menu(program);
  if (ending.enables_menus) shell::EnableMenus(program);
}

}  // namespace

void offer_main_menu(Program& program) {
  const int reply = program.desktop.MsgBox("Return to Main Menu?", runtime::forms::yes_no);
  if (reply == runtime::forms::reply_yes) program.form1.Unload();
}

void drop_refused_texts(Program& program) {
  auto& form1 = program.form1;
  const std::initializer_list<DBGrid*> grids{&form1->DBGrid1, &form1->DBGrid2, &form1->DBGrid3,
                                             &form1->DBGrid4};
  for (DBGrid* grid : grids) grid->drop_refused_text();
}

namespace form1 {

void Form_Load(Program&) {}

void KeyColumnGuard(Program& program) {
  auto& grid = program.form1->DBGrid1;
  const int column = grid.current_column();
  if (column != 0 && column != 1) return;
  grid.set_current_cell_modified(false);
  grid.set_edit_active(false);
}

void DBGrid1_Click(Program& program) {
  KeyColumnGuard(program);
}

void Command1_Click(Program& program) {
  drop_refused_texts(program);
  end_edit(program, plain_cancel);
}
void Command3_Click(Program& program) {
  end_edit(program, plain_save);
}
void Command4_Click(Program& program) {
  end_edit(program, commuter_save);
}
void Command5_Click(Program& program) {
  drop_refused_texts(program);
  end_edit(program, commuter_cancel);
}

}  // namespace form1

}  // namespace parameters
