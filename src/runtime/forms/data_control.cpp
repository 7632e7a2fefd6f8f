#include "runtime/forms/data_control.h"

#include <QFrame>
#include <algorithm>
#include <utility>

#include "runtime/fault.h"
#include "runtime/forms/data_grid.h"
#include "runtime/forms/desktop.h"

namespace runtime::forms {

QWidget* DataControl::make_widget(QWidget* parent) {
  return new QFrame(parent);
}

void DataControl::attach(DBGrid& grid) {
  grids_.push_back(&grid);
  grid.bind(recordset_);
}

engine::Recordset& DataControl::recordset() {
  for (DBGrid* grid : grids_) grid->records_touched();
  return recordset_;
}

void DataControl::open() {
  if (table_.empty()) return;  // this one is handed its recordset by code
  database_ = desktop().workspace.OpenDatabase(desktop().database_name);
  recordset_ = database_.OpenRecordset(table_);
  fill();
}

bool DataControl::has_record() const {
  return recordset_.is_set() && !recordset_.eof() && !recordset_.bof();
}

void DataControl::post_grids() {
  for (DBGrid* grid : grids_) grid->post();
}

void DataControl::post() {
  post_grids();
  const bool any_changed =
      std::any_of(boxes_.begin(), boxes_.end(), [](const auto& row) { return row.box->changed; });
  if (!any_changed || !has_record()) return;
  recordset_.Edit();
  try {
    store_changed();
  } catch (...) {
    ignoring_faults([this] { recordset_.CancelUpdate(); });
    throw;
  }
}

void DataControl::store_changed() {
  for (const BoundField& row : boxes_) {
    if (row.box->changed) recordset_.set(row.field, row.box->held_value());
  }
  recordset_.Update();
  for (const BoundField& row : boxes_) {
    if (row.box->changed) stored_.push_back(row.box);
    row.box->changed = false;
  }
}

void DataControl::writes_ended(bool kept) {
  const auto stored = std::exchange(stored_, {});
  if (!recordset_.is_set()) return;
  if (!kept) {
    for (Bound* box : stored) box->changed = true;
    ignoring_faults([this] { recordset_.ReadAgain(); });
  }
  for (DBGrid* grid : grids_) grid->writes_ended(kept);
}

void DataControl::Refresh() {
  post_grids();
  if (!table_.empty()) recordset_.Requery();
  fill();
}

void DataControl::MoveFirst() {
  post();
  recordset_.MoveFirst();
  fill();
}

void DataControl::set_recordset(engine::Recordset recordset) {
  post_grids();
  recordset_ = std::move(recordset);
  fill();
}

void DataControl::close_database() {
  if (recordset_.is_set()) recordset_.Close();
  if (database_.is_set()) database_.Close();
  for (DBGrid* grid : grids_) grid->records_changed();
}

void DataControl::fill() {
  for (const BoundField& row : boxes_) {
    row.box->show_value(has_record() ? recordset_.field(row.field) : Value());
    row.box->changed = false;
  }
  for (DBGrid* grid : grids_) grid->records_changed();
}

}  // namespace runtime::forms
