// The bulk tool of the grid: columns are picked by their headings, ranges of zones typed, and one value
// fills them all.
#include <algorithm>
#include <vector>

#include "database/catalogue.h"
#include "inputs/frmdatagrid.h"
#include "inputs/grid_mode.h"
#include "runtime/fault.h"
#include "runtime/forms/long_work.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace inputs::frmdatagrid {

using runtime::engine::KeyRange;
using runtime::text::val;

namespace {

constexpr int fill_value = 4;

/// Fault 9 behind the last place.
std::string& selected_field(Program& program, int place) {
  auto& fields = program.frmDataGrid.SelectedFields;
  if (place < 0 || static_cast<std::size_t>(place) >= fields.size()) throw runtime::Fault(9);
  return fields[static_cast<std::size_t>(place)];
}

bool is_picked(Program& program, const std::string& name) {
  for (int place = 1; place <= program.frmDataGrid.SelectedFieldCount + 1; ++place) {
    if (selected_field(program, place) == name) return true;
  }
  return false;
}

double range_value(Program& program, int box) {
  return val(program.frmDataGrid->txt_zonedit(box).text());
}

void refuse(Program& program, const char* words) {
  program.desktop.MsgBox(words, runtime::forms::critical);
}

bool zones_exist(Program& program, std::int16_t zones) {
  for (int box = 0; box <= 3; ++box) {
    if (range_value(program, box) > zones) {
      refuse(program, "Zone number exceeds number of zones!");
      return false;
    }
  }
  return true;
}

bool range_ascends(Program& program, int from_box, int to_box) {
  if (range_value(program, to_box) > range_value(program, from_box)) return true;
  refuse(program, "From zone must be less than To zone!");
  return false;
}

KeyRange range_of(Program& program, std::string_view column, int from_box, int to_box) {
  return {column, runtime::text::whole_16(range_value(program, from_box)),
          runtime::text::whole_16(range_value(program, to_box))};
}

std::vector<KeyRange> ranges(Program& program, bool by_zone) {
  if (by_zone) return {range_of(program, "zone", 0, 1)};
  return {range_of(program, "origin", 0, 1), range_of(program, "destination", 2, 3)};
}

void fill_picked_fields(Program& program, runtime::engine::Database& db, bool by_zone) {
  const auto keys = ranges(program, by_zone);
  const std::string value = program.frmDataGrid->txt_zonedit(fill_value).text();
  for (int place = 1; place <= program.frmDataGrid.SelectedFieldCount; ++place) {
    const std::string& field = selected_field(program, place);
    runtime::forms::LongWork work(program.desktop, "Filling " + field);
    db.Fill(database::sosec_table, field, value, keys);
  }
}

}  // namespace

void forget_picked_names(Program& program) {
  constexpr int cleared = 15;  // the last place is never cleared
  std::fill_n(program.frmDataGrid.SelectedFields.begin(), cleared, std::string());
}

void forget_picks(Program& program) {
  auto& form = program.frmDataGrid;
  form->Label3.set_caption("");
  form.SelectedFieldsText.clear();
  form.SelectedFieldCount = 0;
  forget_picked_names(program);
}

void grdDataGrid_HeadClick(Program& program, int column) {
  auto& form = program.frmDataGrid;
  const int key_columns = mode_word(program) == mode::commuter_data ? 1 : 2;
  if (column < key_columns) return;
  const std::string name = form->DataLu.recordset().field_name(column);
  if (is_picked(program, name)) return;
  ++form.SelectedFieldCount;
  selected_field(program, form.SelectedFieldCount) = name;
  form.SelectedFieldsText = name + "\r" + form.SelectedFieldsText;
  form->Label3.set_caption(form.SelectedFieldsText);
}

void Command1_Click(Program& program) {
  forget_picks(program);
}

void txt_zonedit_Change(Program& program, int index) {
  shell::CheckIntegerKey(program, program.frmDataGrid->txt_zonedit(index).text(), index);
}

void cmd_zonedit_Click(Program& program, int) {
  const std::int16_t zones = zone_count(program);
  const bool by_zone = mode_word(program) == mode::commuter_data;
  if (!zones_exist(program, zones)) return;
  if (!range_ascends(program, 0, 1)) return;
  if (!by_zone && !range_ascends(program, 2, 3)) return;
  auto db = program.desktop.workspace.OpenDatabase(program.desktop.database_name);
  fill_picked_fields(program, db, by_zone);
  forget_picks(program);
  program.frmDataGrid->grdDataGrid.Refresh();
}

}  // namespace inputs::frmdatagrid
