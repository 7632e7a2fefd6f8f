// What the keys do in the grid.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <algorithm>

#include "runtime/forms/grid/block.h"
#include "runtime/forms/grid/cell_editor.h"
#include "runtime/forms/grid/grid_view.h"
#include "runtime/forms/twips.h"

namespace runtime::forms::grid {

int GridView::next_column(int column, int step) const {
  for (int next = column + step; next >= 0 && next < sheet.columns(); next += step) {
    if (!isColumnHidden(next)) return next;
  }
  return -1;
}

int GridView::first_column() const {
  return next_column(-1, 1);
}
int GridView::last_column() const {
  return next_column(sheet.columns(), -1);
}

/// As far as there are cells.
Cell GridView::moved(Cell cell, std::int64_t rows, int columns) const {
  const int column = columns == 0 ? cell.column : next_column(cell.column, columns);
  return {std::clamp<std::int64_t>(cell.row + rows, 0, std::max<std::int64_t>(sheet.rows() - 1, 0)),
          column < 0 ? cell.column : column};
}

bool GridView::navigation_key(QKeyEvent& event) {
  const bool extends = (event.modifiers() & Qt::ShiftModifier) != 0;
  const bool all = (event.modifiers() & Qt::ControlModifier) != 0;
  const Cell from = extends ? corner_ : sheet.current();
  Cell to = from;
  switch (event.key()) {
    case Qt::Key_Left:
      to = moved(from, 0, -1);
      break;
    case Qt::Key_Right:
      to = moved(from, 0, 1);
      break;
    case Qt::Key_Up:
      to = all ? Cell{0, from.column} : moved(from, -1, 0);
      break;
    case Qt::Key_Down:
      to = all ? Cell{sheet.rows() - 1, from.column} : moved(from, 1, 0);
      break;
    case Qt::Key_PageUp:
      to = moved(from, -std::max(whole_rows_ - 1, 1), 0);
      break;
    case Qt::Key_PageDown:
      to = moved(from, std::max(whole_rows_ - 1, 1), 0);
      break;
    case Qt::Key_Home:
      to = {all ? 0 : from.row, first_column()};
      break;
    case Qt::Key_End:
      to = {all ? sheet.rows() - 1 : from.row, last_column()};
      break;
    default:
      return false;
  }
  if (sheet.rows() == 0 || last_column() < 0) return true;
  if (extends) {
    extend_to(to);
  } else {
    host.run([&] { move_to(to); });
    sync();
  }
  return true;
}

/// To the next cell, and from the last of a row to the first of the next one. Beyond the last cell of all Tab
/// leaves the grid.
void GridView::step_on(bool forwards) {
  const int step = forwards ? 1 : -1;
  const Cell from = sheet.current();
  Cell to = from;
  to.column = next_column(from.column, step);
  if (to.column < 0) to = {from.row + step, forwards ? first_column() : last_column()};
  const bool beyond = to.row < 0 || to.row >= sheet.rows() || to.column < 0;
  host.run([&] {
    if (beyond) {
      sheet.keep_edit();
    } else {
      move_to(to);
    }
  });
  const bool stays = sheet.editing();
  sync();
  if (beyond && !stays) QTableView::focusNextPrevChild(forwards);
}

bool GridView::focusNextPrevChild(bool) {
  return false;  // Tab is a key of the grid; step_on() leaves it
}

void GridView::start_typing(const QString& text) {
  corner_ = sheet.current();
  show_cell(sheet.current());
  sheet.open_edit();
  if (!sheet.editing()) return;
  sheet.type(text.toStdString());
  arrows_move_on_ = true;
  sync();
  editor_->setFocus(Qt::OtherFocusReason);
  editor_->deselect();
  editor_->end(false);
}

void GridView::open_editor() {
  corner_ = sheet.current();
  show_cell(sheet.current());
  sheet.open_edit();
  arrows_move_on_ = false;
  sync();
  if (!sheet.editing()) return;
  editor_->setFocus(Qt::OtherFocusReason);
  editor_->end(false);
}

void GridView::step_back() {
  sheet.step_back();
  sync();
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (!host.run) return event->ignore();
  if (sheet.editing()) {
    // The edit may have been scrolled away; what is typed goes on in it.
    show_cell(sheet.current());
    sync();
    editor_->setFocus(Qt::OtherFocusReason);
    QApplication::sendEvent(editor_, event);
    return;
  }
  if (command_key(*event) || navigation_key(*event)) return event->accept();
  const bool types = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
  if (types && !event->text().isEmpty() && event->text().front().isPrint()) {
    start_typing(event->text());
    return event->accept();
  }
  event->ignore();
}

std::vector<int> GridView::visible_columns(int first, int last) const {
  std::vector<int> columns;
  for (int column = first; column <= last; ++column) {
    if (!isColumnHidden(column)) columns.push_back(column);
  }
  return columns;
}

void GridView::copy() {
  if (sheet.rows() == 0) return;
  host.run([&] {
    const auto columns = visible_columns(first_selected().column, last_selected().column);
    const std::string text = copied_block(sheet, first_selected().row, last_selected().row, columns);
    QApplication::clipboard()->setText(qt(text));
  });
}

void GridView::paste() {
  if (sheet.rows() == 0) return;
  host.run([&] {
    const Texts texts = cells_of(QApplication::clipboard()->text().toStdString());
    const Cell from = sheet.current();
    paste_block(sheet, *host.workspace, texts, from.row, visible_columns(from.column, sheet.columns() - 1));
    if (const auto columns = visible_columns(from.column, sheet.columns() - 1); !columns.empty()) {
      corner_ = {from.row + static_cast<std::int64_t>(texts.size()) - 1, columns[texts.front().size() - 1]};
    }
  });
  sync();
}

/// One cell is emptied as if it were typed; a block is stored at once.
void GridView::empty_cells() {
  const auto columns = visible_columns(first_selected().column, last_selected().column);
  const std::int64_t rows = last_selected().row - first_selected().row + 1;
  if (rows == 1 && columns.size() <= 1) return start_typing({});
  host.run([&] {
    refuse_too_many(rows, static_cast<std::int64_t>(columns.size()));
    const Texts texts(static_cast<std::size_t>(rows), std::vector<std::string>(columns.size()));
    paste_block(sheet, *host.workspace, texts, first_selected().row, columns);
  });
  sync();
}

bool GridView::command_key(QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) return copy(), true;
  if (event.matches(QKeySequence::Paste)) return paste(), true;
  if (event.matches(QKeySequence::SelectAll)) return select_all(), true;
  const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return step_on(event.key() == Qt::Key_Tab), true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return step_on((event.modifiers() & Qt::ShiftModifier) == 0), true;
    case Qt::Key_F2:
      return open_editor(), true;
    case Qt::Key_Escape:
      return step_back(), true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      return empty_cells(), true;
    case Qt::Key_G:
      if (control && host.go_to) return host.go_to(), true;
      return control;
    default:
      return false;
  }
}

namespace {

bool is_plain(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

/// While a cell is edited the caret has the keys that it can use; the others move on.
bool GridView::editor_key(QKeyEvent& event) {
  if (!host.run) return true;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      return arrows_move_on_ && is_plain(event) && navigation_key(event);
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return is_plain(event) && navigation_key(event);
    case Qt::Key_F2:
      arrows_move_on_ = false;
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_G:
      if (event.key() == Qt::Key_G && (event.modifiers() & Qt::ControlModifier) == 0) return false;
      return command_key(event);
    default:
      return false;
  }
}

}  // namespace runtime::forms::grid
