// The smaller commands of the grid: filter, sort, requery, quit, and what the grid asks or tells.
#include <functional>

#include "inputs/frmdatagrid.h"
#include "runtime/fault.h"
#include "runtime/forms/long_work.h"
#include "shell/module1.h"

namespace inputs::frmdatagrid {

using runtime::Fault;
using runtime::engine::Recordset;
using Pointer = runtime::forms::Desktop::Pointer;

namespace {

/// Runs a command; its fault is told and goes no further.
template <typename Command, typename AfterFault>
void telling_faults(Program& program, Command&& command, AfterFault&& after_fault) {
  auto& desktop = program.desktop;
  desktop.err.clear();
  try {
    command();
  } catch (const Fault& fault) {
    desktop.err.set(fault);
    after_fault();
    desktop.MsgBox("Error:" + std::to_string(desktop.err.number) + " " + desktop.err.description);
  }
}

/// Gives the grid those records of its own that `narrow` asks for.
void reopen(Program& program, const char* words, const std::function<void(Recordset&)>& narrow) {
  auto& data = program.frmDataGrid->DataLu;
  program.desktop.set_pointer(Pointer::hourglass);
  {
    const runtime::forms::LongWork work(program.desktop, words);
    narrow(data.recordset());
    data.set_recordset(data.recordset().OpenRecordset());
  }
  program.desktop.set_pointer(Pointer::normal);
}

void restore(Program& program) {
  program.desktop.set_pointer(Pointer::normal);
  // What failed once would fail again with the next command.
  runtime::ignoring_faults([&] {
    Recordset& records = program.frmDataGrid->DataLu.recordset();
    records.set_Filter("");
    records.set_Sort("");
  });
}

void show_all_range_boxes(Program& program) {
  for (int box = 0; box <= 4; ++box) program.frmDataGrid->txt_zonedit(box).set_visible(true);
}

void filter(Program& program) {
  show_all_range_boxes(program);
  if (table_is_refused(program, program.frmDataGrid->DataLu.recordset_type(), "Filter")) return;
  const std::string condition = program.desktop.InputBox("Enter Filter Expression:");
  if (condition.empty()) return;
  reopen(program, "Filtering", [&](Recordset& records) { records.set_Filter(condition); });
}

void sort(Program& program) {
  if (table_is_refused(program, program.frmDataGrid->DataLu.recordset_type(), "Sort")) return;
  std::string columns = program.frmDataGrid.SortColumn;
  if (columns.empty()) columns = program.desktop.InputBox("Enter Sort Column:");
  if (columns.empty()) return;
  reopen(program, "Sorting", [&](Recordset& records) { records.set_Sort(columns); });
}

}  // namespace

bool table_is_refused(Program& program, int recordset_type, std::string_view verb) {
  constexpr int table = 0;
  if (recordset_type != table) return false;
  program.desktop.beep();
  program.desktop.MsgBox("You Cannot " + std::string(verb) + " a Table Recordset!",
                         runtime::forms::exclamation);
  return true;
}

void cmdFilter_Click(Program& program) {
  telling_faults(
      program, [&] { filter(program); }, [&] { restore(program); });
}

void cmdSort_Click(Program& program) {
  telling_faults(
      program, [&] { sort(program); }, [&] { restore(program); });
}

void cmdRefresh_Click(Program& program) {
  const auto requery = [&] {
    const runtime::forms::LongWork work(program.desktop, "Reading the zone data");
    auto& grid = program.frmDataGrid->grdDataGrid;
    grid.post();  // a requery leaves the row, and leaving a row stores it
    program.frmDataGrid->DataLu.recordset().Requery();
    grid.records_changed();
  };
  telling_faults(program, requery, [] {});
}

bool grdDataGrid_BeforeDelete(Program& program) {
  using runtime::forms::question;
  using runtime::forms::reply_yes;
  using runtime::forms::yes_no;
  return program.desktop.MsgBox("Delete Current Row?", yes_no + question) != reply_yes;
}

void grdDataGrid_MouseUp(Program& program, int button) {
  program.frmDataGrid.LastMouseButton = static_cast<std::int16_t>(button);
}

void DataLu_Validate(Program&) {}

void Cmdquit_Click(Program& program) {
  forget_picks(program);
  program.frmDataGrid.unload_without_storing();
  program.frmdirget.Unload();
  program.form3.Unload();
  program.form2.Unload();
  program.form1.Unload();
  shell::EnableMenus(program);
}

}  // namespace inputs::frmdatagrid
