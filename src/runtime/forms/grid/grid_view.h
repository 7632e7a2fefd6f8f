// The grid on the screen: shows the rows of a sheet that fit, and turns keys and clicks into its moves.
#pragma once

#include <QBasicTimer>
#include <QTableView>
#include <functional>
#include <vector>

#include "runtime/engine/workspace.h"
#include "runtime/forms/grid/sheet.h"

namespace runtime::forms::grid {

class CellEditor;
class GridFoot;
class GridModel;

/// What a grid asks of the program around it.
struct GridHost {
  /// Runs what a person set off, through the edge at which faults are reported; a refused text is told.
  std::function<void(const std::function<void()>&)> run;
  /// Whether what a person does is taken now.
  std::function<bool()> hears;
  engine::Workspace* workspace = nullptr;
  std::function<void(int column)> head_clicked;
  std::function<void(int button)> mouse_up;
  std::function<void(int column)> clicked;
  /// Asks for a row and goes there.
  std::function<void()> go_to;
};

/// Its vertical scroll bar counts rows of the whole table; of those the view's model holds a screen's worth.
/// Scrolling moves no current cell. The block of selected cells reaches from the current cell to another
/// corner, which may lie anywhere in the table.
class GridView : public QTableView {
 public:
  explicit GridView(QWidget* parent);

  Sheet sheet;
  GridHost host;

  /// Shows the sheet as it is now.
  void sync();
  /// The sheet stands on other records: fits columns and scroll bar to them.
  void records_changed();
  /// Code has moved or changed the records.
  void follow_records();
  /// Makes a cell the current one and shows it. Faults: those of Sheet::go_to().
  void move_to(Cell cell);
  /// Makes a row the current one and shows it in the middle, as far as there are rows around it.
  void move_to_middle(std::int64_t row);
  /// The program around it is gone.
  void cut_loose();

  /// Scrolls as little as is needed to see a cell.
  void show_cell(Cell cell);
  void set_row_height(int twips);
  int row_height() const { return row_twips_; }
  /// Pixels from the upper edge of the grid to that of a row on the screen.
  int row_top(int row) const;
  void set_row_selectors(bool on);
  /// When the current column is hidden, the first one to be seen becomes current.
  void set_column_visible(int column, bool visible);

  /// The rectangle of the selected cells.
  Cell first_selected() const;
  Cell last_selected() const;

  void updateGeometries() override;
  void scrollTo(const QModelIndex&, ScrollHint) override {}  // show_cell() scrolls

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  bool focusNextPrevChild(bool next) override;

 private:
  // What the keys do (grid_keys.cpp).
  bool editor_key(QKeyEvent& event);
  bool navigation_key(QKeyEvent& event);
  bool command_key(QKeyEvent& event);
  void step_on(bool forwards);
  void start_typing(const QString& text);
  void open_editor();
  void step_back();
  void copy();
  void paste();
  void empty_cells();

  // The current cell and the block.
  void extend_to(Cell cell);
  void select_row(int row);
  void select_all();
  Cell cell_at(const QPoint& place) const;
  Cell moved(Cell cell, std::int64_t rows, int columns) const;
  int next_column(int column, int step) const;
  int first_column() const;
  int last_column() const;
  std::vector<int> visible_columns(int first, int last) const;

  // The screen.
  int row_pixel(int row) const;
  void fit_rows();
  void fit_columns();
  void sync_selection();
  void sync_editor();
  void released(Qt::MouseButton button);

  GridModel* model_;
  CellEditor* editor_;
  GridFoot* foot_;
  std::int64_t top_ = 0;  // the row of the sheet that is the first on the screen
  int whole_rows_ = 1;    // how many rows fit
  int row_twips_;
  Cell corner_;  // of the selected block, opposite to the current cell
  bool syncing_ = false;
  bool fitting_ = false;
  bool arrows_move_on_ = false;  // a typed edit; one that was opened leaves the arrows to the caret
  bool dragging_ = false;
  bool double_clicked_ = false;  // the release that follows is no click of its own
  QBasicTimer drag_timer_;
};

}  // namespace runtime::forms::grid
