#include "runtime/forms/grid/grid_view.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "runtime/forms/grid/cell_editor.h"
#include "runtime/forms/grid/cell_painter.h"
#include "runtime/forms/grid/grid_foot.h"
#include "runtime/forms/grid/grid_model.h"
#include "runtime/forms/twips.h"

namespace runtime::forms::grid {

namespace {
// Labels that stand beside the rows of a grid follow each other at this distance.
constexpr int default_row_twips = 218;
constexpr const char* column_room = "0000000000";
}  // namespace

GridView::GridView(QWidget* parent)
    : QTableView(parent),
      model_(new GridModel(sheet, this)),
      editor_(new CellEditor(viewport())),
      foot_(new GridFoot(this)),
      row_twips_(default_row_twips) {
  const QScopedValueRollback<bool> making(syncing_, true);
  setItemDelegate(new CellPainter(this));
  auto* selectors = new RowSelectors(this);
  selectors->mark = [this] {
    return RowSelectors::Mark{currentIndex().row(), sheet.row_changed() || sheet.modified()};
  };
  setVerticalHeader(selectors);
  setModel(model_);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setCornerButtonEnabled(false);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setHorizontalScrollBar(new FootScrollBar(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  addScrollBarWidget(foot_, Qt::AlignLeft);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  // A click on a heading is the program's business; it selects nothing.
  disconnect(horizontalHeader(), &QHeaderView::sectionPressed, this, nullptr);
  disconnect(horizontalHeader(), &QHeaderView::sectionEntered, this, nullptr);
  disconnect(selectors, &QHeaderView::sectionPressed, this, nullptr);
  disconnect(selectors, &QHeaderView::sectionEntered, this, nullptr);
  connect(selectors, &QHeaderView::sectionPressed, this, [this](int row) { select_row(row); });
  // A click beside the cells is a click in the grid as well.
  connect(selectors, &QHeaderView::sectionClicked, this, [this] { released(Qt::LeftButton); });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
    const auto head_clicked = host.head_clicked;  // a click's handler may unload the form
    const QPointer<GridView> still_there(this);
    released(Qt::LeftButton);
    if (still_there && head_clicked) head_clicked(column);
  });
  editor_->when_key = [this](QKeyEvent& event) { return editor_key(event); };
  editor_->when_released = [this](QMouseEvent& event) { released(event.button()); };
  // What an assistive tool puts in is no edit to Qt. The grid's own changes block the signal.
  connect(editor_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (host.hears && !host.hears()) return sync();
    sheet.type(text.toStdString());
    verticalHeader()->viewport()->update();
  });
  foot_->when_go_to = [this] {
    if (host.go_to) host.go_to();
  };
  model_->when_text_is_set = [this](Cell cell, const QString& text) {
    if (!host.run) return false;
    host.run([&] {
      move_to(cell);
      sheet.open_edit();
      sheet.type(text.toStdString());
    });
    sync();
    return sheet.current() == cell;
  };
}

void GridView::cut_loose() {
  host = {};
  sheet.forget_records();
  drag_timer_.stop();
}

int GridView::row_pixel(int row) const {
  return static_cast<int>(std::lround(row * row_twips_ * pixels_per_twip()));
}

int GridView::row_top(int row) const {
  // A grid that was never shown has no geometry yet.
  return frameWidth() + horizontalHeader()->sizeHint().height() + row_pixel(row);
}

void GridView::set_row_height(int twips) {
  row_twips_ = std::max(twips, 1);
  updateGeometries();
}

void GridView::set_column_visible(int column, bool visible) {
  setColumnHidden(column, !visible);
  if (isColumnHidden(sheet.current().column) && first_column() >= 0) {
    move_to({sheet.current().row, first_column()});
  }
}

void GridView::set_row_selectors(bool on) {
  verticalHeader()->setVisible(on);
  updateGeometries();
}

void GridView::records_changed() {
  const QScopedValueRollback<bool> changing(syncing_, true);
  if (model_->columnCount() != sheet.columns() || model_->rowCount() == 0) {
    model_->columns_changed();
    fit_columns();
  }
  top_ = sheet.current().row;
  corner_ = sheet.current();
  updateGeometries();
}

void GridView::fit_columns() {
  const QFontMetrics metrics = fontMetrics();
  const int room = metrics.horizontalAdvance(QLatin1String(column_room));
  for (int column = 0; column < sheet.columns(); ++column) {
    const int heading = metrics.horizontalAdvance(qt(sheet.heading(column)));
    setColumnWidth(column, std::max(room, heading) + metrics.height());
  }
}

void GridView::updateGeometries() {
  if (fitting_) return;  // asking for a cell's place may lay the view out, which comes round to here
  const QScopedValueRollback<bool> fitting(fitting_, true);
  QScrollBar* bar = verticalScrollBar();
  {
    // The base takes the model's rows for all there are, and would move to the end of them.
    const QSignalBlocker blocker(bar);
    bar->setRange(0, 0);
    QTableView::updateGeometries();
  }
  fit_rows();
  {
    const QSignalBlocker blocker(bar);
    bar->setPageStep(whole_rows_);
    bar->setSingleStep(1);
    bar->setRange(0, static_cast<int>(std::max<std::int64_t>(sheet.rows() - whole_rows_, 0)));
    bar->setValue(static_cast<int>(top_));
  }
  setVerticalScrollBarPolicy(bar->maximum() > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void GridView::fit_rows() {
  const int room = viewport()->height();
  whole_rows_ = 1;
  while (row_pixel(whole_rows_ + 1) <= room) ++whole_rows_;
  top_ = std::clamp<std::int64_t>(top_, 0, std::max<std::int64_t>(sheet.rows() - whole_rows_, 0));
  sync();
}

void GridView::sync() {
  const QScopedValueRollback<bool> guard(syncing_, true);
  model_->show(top_, whole_rows_ + 1);
  for (int row = 0; row < model_->rowCount(); ++row) {
    verticalHeader()->resizeSection(row, row_pixel(row + 1) - row_pixel(row));
  }
  sync_selection();
  sync_editor();
  foot_->show_row(sheet.current().row, sheet.rows());
  verticalHeader()->viewport()->update();
  viewport()->update();
}

void GridView::sync_selection() {
  const Cell current = sheet.current();
  const int row = model_->row_of(current.row);
  if (row < 0 || sheet.columns() == 0) return;
  selectionModel()->setCurrentIndex(model_->index(row, current.column), QItemSelectionModel::NoUpdate);
  const Cell first = first_selected();
  const Cell last = last_selected();
  const auto upper = std::max<std::int64_t>(first.row - top_, 0);
  const auto lower = std::min<std::int64_t>(last.row - top_, model_->rows_on_screen() - 1);
  QItemSelection block;
  if (upper <= lower) {
    block.select(model_->index(static_cast<int>(upper), first.column),
                 model_->index(static_cast<int>(lower), last.column));
  }
  selectionModel()->select(block, QItemSelectionModel::ClearAndSelect);
}

void GridView::sync_editor() {
  const int row = model_->row_of(sheet.current().row);
  if (!sheet.editing() || row < 0 || row >= model_->rows_on_screen()) {
    if (editor_->hasFocus()) setFocus(Qt::OtherFocusReason);
    editor_->hide();
    return;
  }
  const int column = sheet.current().column;
  // Not visualRect(): that lays the view out first, which comes back to here.
  const QRect place(columnViewportPosition(column), rowViewportPosition(row), columnWidth(column) - 1,
                    rowHeight(row) - 1);
  editor_->setAccessibleName(
      QStringLiteral("%1, row %2").arg(qt(sheet.heading(column))).arg(sheet.current().row + 1));
  editor_->show_edit(qt(sheet.edit_text()), sheet.kind(column) == engine::FieldKind::Text, place);
  if (hasFocus()) editor_->setFocus(Qt::OtherFocusReason);
}

void GridView::scrollContentsBy(int dx, int) {
  if (dx != 0) QTableView::scrollContentsBy(dx, 0);
  if (fitting_) return;
  top_ = verticalScrollBar()->value();
  sync();
}

void GridView::show_cell(Cell cell) {
  auto top = top_;
  if (cell.row < top) top = cell.row;
  if (cell.row >= top + whole_rows_) top = cell.row - whole_rows_ + 1;
  if (top != top_) verticalScrollBar()->setValue(static_cast<int>(top));
  QScrollBar* bar = horizontalScrollBar();
  const int left = columnViewportPosition(cell.column);
  const int right = left + columnWidth(cell.column);
  if (left < 0) {
    bar->setValue(bar->value() + left);
  } else if (right > viewport()->width()) {
    bar->setValue(bar->value() + std::min(left, right - viewport()->width()));
  }
}

Cell GridView::first_selected() const {
  const Cell current = sheet.current();
  return {std::min(current.row, corner_.row), std::min(current.column, corner_.column)};
}

Cell GridView::last_selected() const {
  const Cell current = sheet.current();
  return {std::max(current.row, corner_.row), std::max(current.column, corner_.column)};
}

}  // namespace runtime::forms::grid
