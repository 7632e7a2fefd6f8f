// The bound data grid: the rows of a data control's recordset, edited in place.
#pragma once

#include <QPointer>
#include <cstdint>
#include <functional>

#include "runtime/forms/control.h"
#include "runtime/value.h"

namespace runtime::engine {
class Recordset;
}

namespace runtime::forms {

namespace grid {
class GridView;
class Sheet;
}  // namespace grid

/// Bound by its design row to the data control of that name. Columns are the fields in stored order; columns
/// and rows count from 0. Cells of the rows there are can be edited, no row is added or deleted.
///
/// A cell edit goes to the row's buffer when the current column moves on, and the buffer to the table when
/// the current row changes, by whatever means. The loss of the focus to a button does neither.
class DBGrid : public Control {
 public:
  using Control::Control;
  ~DBGrid() override;
  Kind kind() const override { return Kind::DBGrid; }

  int current_column() const;
  /// Moves an open cell edit into the row's buffer first. Faults: 9 no such column, 3421 a typed text that
  /// its column can't take.
  void set_current_column(int column);
  std::int64_t current_row() const;
  /// Posts the row when the current row changes by it; nothing when it is current already. Does nothing in an
  /// empty grid. Faults: those of posting, 6148 no such row.
  void set_current_row(std::int64_t row);
  /// The field of the current row, as the buffer or an open edit has it; a typed text that the column can't
  /// take as a text.
  Value column_value(int column) const;
  void set_column_visible(int column, bool visible);
  void set_row_selectors(bool on);

  /// Whether the current cell holds a change that the row's buffer has not.
  bool current_cell_modified() const;
  /// Clearing it drops what was typed into the current cell, and only that.
  void set_current_cell_modified(bool modified);
  bool edit_active() const;
  /// Clearing it closes an open cell edit; a change in it goes to the row's buffer.
  void set_edit_active(bool active);

  /// The top of a row of those on screen, from 0, in twips of the grid's own. What stands 205 twips below it
  /// in the grid's container is level with the row of a grid at top 120.
  int row_top(int row) const;
  int row_height() const;
  void set_row_height(int twips);

  /// Reads what is on screen anew. A row's buffer and an open edit stay.
  void Refresh();

  /// Stores the open edit and the row's buffer. A fault leaves both as they are.
  void post();
  /// Drops both.
  void drop_edit();
  /// What the handler has stored is durable, or was taken back and is edited again.
  void writes_ended(bool kept);
  /// Drops the open edit when its text is one that its column can't take. The row's buffer stays.
  void drop_refused_text();
  /// The data control was given other records, or has read its own anew: shows them from the current one on.
  void records_changed();
  /// Code has got hold of the records and may move or change them: the grid shows what it did as soon as the
  /// program waits for the analyst again.
  void records_touched();
  /// Shows the records of a data control, which outlives the grid's use of them.
  void bind(engine::Recordset& records);

 protected:
  QWidget* make_widget(QWidget* parent) override;
  /// Nobody could mend a text that waits in a grid which is not to be seen: one that can't be stored is told
  /// and dropped.
  void about_to_hide() override;

 private:
  grid::Sheet& sheet() const;
  /// Runs what a person set off. A text that can't be stored is told, and stays to be mended.
  void run(const std::function<void()>& action);
  void ask_for_row();

  QPointer<grid::GridView> view_;
};

}  // namespace runtime::forms
