// The rows of a sheet that are on the screen, as an item model.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <functional>
#include <vector>

#include "runtime/forms/grid/sheet.h"

namespace runtime::forms::grid {

/// Holds no more rows than the screen: a table of any size stays within the pixels and the memory that a view
/// can count. The sheet's current row is always among them, last when it is not on the screen, because a view
/// must never be without a current cell.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(Sheet& sheet, QObject* parent);

  /// Shows `rows` rows from the sheet's row `top` on, as far as there are so many. Call it whenever the
  /// sheet has changed.
  void show(std::int64_t top, int rows);
  /// The sheet has other columns.
  void columns_changed();

  std::int64_t top() const { return top_; }
  /// How many of the model's rows are on the screen.
  int rows_on_screen() const { return on_screen_; }
  /// The sheet's row behind a row of the model.
  std::int64_t sheet_row(int row) const;
  /// The row of the model that shows a row of the sheet, or -1.
  int row_of(std::int64_t sheet_row) const;

  /// What to do with a text that an assistive tool puts into a cell.
  std::function<bool(Cell, const QString&)> when_text_is_set;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& text, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  void set_row_count(int rows);
  bool holds(const QModelIndex& index) const;

  Sheet& sheet_;
  std::int64_t top_ = 0;
  int on_screen_ = 0;
  int rows_ = 0;
  std::int64_t current_row_ = 0;
  int columns_ = 0;
};

}  // namespace runtime::forms::grid
