#include "runtime/forms/grid/sheet.h"

#include <algorithm>
#include <utility>

#include "runtime/fault.h"

namespace runtime::forms::grid {

Sheet::Sheet() : window_([this](std::int64_t first, int count) { return records_->GetRows(first, count); }) {}

void Sheet::records_changed() {
  drop_edit();
  posted_.reset();
  window_.forget();
  const bool has_records = records_ != nullptr && records_->is_set();
  rows_ = has_records ? records_->RecordCount() : 0;
  headings_.clear();
  kinds_.clear();
  for (int column = 0; has_records && column < records_->field_count(); ++column) {
    headings_.push_back(records_->field_name(column));
    kinds_.push_back(records_->field_kind(column));
  }
  if (current_.column >= columns()) current_.column = 0;
  current_.row = rows_ == 0 ? 0 : std::clamp<std::int64_t>(records_->AbsolutePosition(), 0, rows_ - 1);
}

void Sheet::forget_records() {
  drop_edit();
  posted_.reset();
  window_.forget();
  records_ = nullptr;
  rows_ = 0;
}

void Sheet::follow_records() {
  window_.forget();
  if (records_ == nullptr || !records_->is_set() || edit_ || row_changed()) return;
  const std::int64_t row = records_->AbsolutePosition();
  if (row >= 0 && row < rows_) current_.row = row;
}

void Sheet::stand_on_current() {
  window_.forget();
  records_->set_AbsolutePosition(current_.row);
}

Value Sheet::value(Cell cell) {
  if (cell.row >= rows_) return {};
  if (cell.row == current_.row) {
    const auto change = changes_.find(cell.column);
    if (change != changes_.end()) return change->second;
  }
  const Row* row = window_.row(cell.row);
  const auto place = static_cast<std::size_t>(cell.column);
  return row != nullptr && place < row->size() ? (*row)[place] : Value();
}

Value Sheet::value_with_edit(int column) {
  if (!modified() || column != current_.column) return value({current_.row, column});
  if (refusal()) return edit_->text;
  return typed_value(edit_->text, kind(column), heading(column));
}

void Sheet::go_to(Cell cell) {
  if (cell == current_) return;
  if (cell.row == current_.row) {
    keep_edit();
  } else {
    post();
    records_->set_AbsolutePosition(cell.row);
  }
  current_ = cell;
}

void Sheet::open_edit() {
  if (edit_ || current_.row >= rows_ || current_.column >= columns()) return;
  edit_ = Edit{shown_text(value(current_))};
}

void Sheet::type(const std::string& text) {
  if (!edit_ || text == edit_->text) return;
  edit_ = Edit{text, true};
}

void Sheet::set_modified(bool modified) {
  if (!edit_) return;
  edit_->modified = modified;
  if (!modified) edit_->text = shown_text(value(current_));
}

std::optional<Refusal> Sheet::refusal() const {
  if (!modified()) return std::nullopt;
  try {
    typed_value(edit_->text, kind(current_.column), heading(current_.column));
  } catch (const Refusal& refusal) {
    return refusal;
  }
  return std::nullopt;
}

void Sheet::keep_edit() {
  if (modified()) {
    const int column = current_.column;
    changes_[column] = typed_value(edit_->text, kind(column), heading(column));
  }
  edit_.reset();
}

void Sheet::post() {
  const auto edit = edit_;
  const auto changes = changes_;
  try {
    keep_edit();
    if (changes_.empty()) return;
    records_->set_AbsolutePosition(current_.row);
    records_->Edit();
    for (const auto& [column, value] : changes_) records_->set(column, value);
    records_->Update();
  } catch (...) {
    ignoring_faults([this] { records_->CancelUpdate(); });
    edit_ = edit;
    changes_ = changes;
    throw;
  }
  posted_ = Posted{current_, std::exchange(changes_, {})};
  window_.forget();
}

void Sheet::step_back() {
  if (edit_) {
    edit_.reset();
  } else {
    changes_.clear();
  }
}

void Sheet::writes_ended(bool kept) {
  const auto posted = std::exchange(posted_, std::nullopt);
  if (kept) return;
  window_.forget();
  if (!posted || edit_ || row_changed() || posted->at.row >= rows_) return;
  changes_ = posted->changes;
  current_ = posted->at;
  ignoring_faults([this] { records_->set_AbsolutePosition(current_.row); });
}

void Sheet::drop_edit() {
  edit_.reset();
  changes_.clear();
}

}  // namespace runtime::forms::grid
