// What a mouse does in the grid, and what moves its current cell and its block of selected cells.
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "runtime/fault.h"
#include "runtime/forms/grid/cell_editor.h"
#include "runtime/forms/grid/grid_model.h"
#include "runtime/forms/grid/grid_view.h"

namespace runtime::forms::grid {

namespace {

constexpr int drag_interval = 50;  // milliseconds between the rows that a drag beyond the edge reaches

int button_number(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    default:
      return 4;
  }
}

}  // namespace

void GridView::move_to(Cell cell) {
  sheet.go_to(cell);
  corner_ = cell;
  show_cell(cell);
  sync();
}

void GridView::move_to_middle(std::int64_t row) {
  move_to({row, sheet.current().column});
  const auto top = std::clamp<std::int64_t>(row - whole_rows_ / 2, 0, verticalScrollBar()->maximum());
  verticalScrollBar()->setValue(static_cast<int>(top));
}

void GridView::follow_records() {
  if (!host.run) return;
  const Cell before = sheet.current();
  ignoring_faults([this] { sheet.follow_records(); });
  if (!(sheet.current() == before)) {
    corner_ = sheet.current();
    show_cell(sheet.current());
  }
  sync();
}

void GridView::extend_to(Cell cell) {
  corner_ = cell;
  show_cell(cell);
  sync();
}

void GridView::select_row(int row) {
  if (!host.run || last_column() < 0) return;
  host.run([&] {
    move_to({model_->sheet_row(row), first_column()});
    corner_.column = last_column();
  });
  sync();
}

void GridView::select_all() {
  if (sheet.rows() == 0 || last_column() < 0) return;
  host.run([&] {
    move_to({0, first_column()});
    corner_ = {sheet.rows() - 1, last_column()};
  });
  sync();
}

/// The cell at a place of the viewport, the nearest one for a place beside the cells.
Cell GridView::cell_at(const QPoint& place) const {
  const int column = columnAt(place.x());
  // Below the view stands one row more, which is not to be seen: the current one, when it is far off.
  const bool inside = place.y() >= 0 && place.y() < viewport()->height();
  const int row = inside ? rowAt(place.y()) : -1;
  Cell cell = sheet.current();
  if (column >= 0) cell.column = column;
  cell.row = row >= 0 ? model_->sheet_row(row) : top_ + (place.y() < 0 ? -1 : whole_rows_);
  cell.row = std::clamp<std::int64_t>(cell.row, 0, std::max<std::int64_t>(sheet.rows() - 1, 0));
  return cell;
}

void GridView::mousePressEvent(QMouseEvent* event) {
  double_clicked_ = false;
  const bool on_cell = indexAt(event->pos()).isValid();
  if (event->button() != Qt::LeftButton || !on_cell || !host.run) return;
  const Cell cell = cell_at(event->pos());
  if ((event->modifiers() & Qt::ShiftModifier) != 0) return extend_to(cell);
  host.run([&] { move_to(cell); });
  dragging_ = sheet.current() == cell && !sheet.editing();
  sync();
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_ || (event->buttons() & Qt::LeftButton) == 0) return;
  const Cell cell = cell_at(event->pos());
  const bool inside = event->pos().y() >= 0 && event->pos().y() < viewport()->height();
  if (inside) {
    drag_timer_.stop();
  } else if (!drag_timer_.isActive()) {
    drag_timer_.start(drag_interval, this);
  }
  if (inside && !(cell == corner_)) extend_to(cell);
}

void GridView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != drag_timer_.timerId()) return QTableView::timerEvent(event);
  extend_to(cell_at(viewport()->mapFromGlobal(QCursor::pos())));
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  dragging_ = false;
  drag_timer_.stop();
  released(event->button());
}

void GridView::released(Qt::MouseButton button) {
  // A handler may unload the form, and the host is then gone.
  if (const auto mouse_up = host.mouse_up) mouse_up(button_number(button));
  if (button != Qt::LeftButton || std::exchange(double_clicked_, false)) return;
  if (const auto clicked = host.clicked) clicked(sheet.current().column);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  double_clicked_ = true;
  if (!indexAt(event->pos()).isValid() || !host.run) return;
  const Cell cell = cell_at(event->pos());
  host.run([&] { move_to(cell); });
  sync();
  if (sheet.current() == cell) open_editor();  // a refused value keeps the cell that it stands in
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (sheet.editing() && editor_->isVisible() && !syncing_) editor_->setFocus(event->reason());
}

/// An assistive tool, or a test, has made another cell the current one.
void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (syncing_ || !current.isValid() || !host.run) return;
  const Cell cell{model_->sheet_row(current.row()), current.column()};
  host.run([&] { move_to(cell); });
  sync();
}

}  // namespace runtime::forms::grid
