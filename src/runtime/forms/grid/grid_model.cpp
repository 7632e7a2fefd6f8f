#include "runtime/forms/grid/grid_model.h"

#include <algorithm>

#include "runtime/forms/grid/cell_text.h"

namespace runtime::forms::grid {

GridModel::GridModel(Sheet& sheet, QObject* parent) : QAbstractTableModel(parent), sheet_(sheet) {}

void GridModel::show(std::int64_t top, int rows) {
  const bool numbers_change = top != top_ || current_row_ != sheet_.current().row;
  top_ = top;
  current_row_ = sheet_.current().row;
  on_screen_ = static_cast<int>(std::clamp<std::int64_t>(sheet_.rows() - top, 0, rows));
  const bool current_is_on_screen = current_row_ >= top_ && current_row_ < top_ + on_screen_;
  set_row_count(sheet_.rows() == 0 || current_is_on_screen ? on_screen_ : on_screen_ + 1);
  if (rows_ == 0 || columns_ == 0) return;
  emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  // A view lays itself out again behind this, and shows its rows again by that.
  if (numbers_change) emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
}

void GridModel::set_row_count(int rows) {
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

void GridModel::columns_changed() {
  beginResetModel();
  columns_ = sheet_.columns();
  endResetModel();
}

std::int64_t GridModel::sheet_row(int row) const {
  return row < on_screen_ ? top_ + row : current_row_;
}

int GridModel::row_of(std::int64_t sheet_row) const {
  if (sheet_row >= top_ && sheet_row < top_ + on_screen_) return static_cast<int>(sheet_row - top_);
  return sheet_row == current_row_ && rows_ > on_screen_ ? rows_ - 1 : -1;
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

bool GridModel::holds(const QModelIndex& index) const {
  return index.isValid() && index.row() < rows_ && index.column() < columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!holds(index)) return {};
  if (role == Qt::TextAlignmentRole) {
    const bool is_text = sheet_.kind(index.column()) == engine::FieldKind::Text;
    return QVariant::fromValue(Qt::AlignVCenter | (is_text ? Qt::AlignLeft : Qt::AlignRight));
  }
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  QString text;
  // A cell that can't be read is left empty: a fault must not pass through the painting of the screen.
  ignoring_faults([&] {
    text = QString::fromStdString(shown_text(sheet_.value({sheet_row(index.row()), index.column()})));
  });
  return text;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& text, int role) {
  if (role != Qt::EditRole || !holds(index)) return false;
  return when_text_is_set && when_text_is_set({sheet_row(index.row()), index.column()}, text.toString());
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || section < 0) return {};
  if (orientation == Qt::Vertical) {
    return section < rows_ ? QVariant::fromValue<qlonglong>(sheet_row(section) + 1) : QVariant();
  }
  return section < columns_ ? QString::fromStdString(sheet_.heading(section)) : QVariant();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!holds(index)) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

}  // namespace runtime::forms::grid
