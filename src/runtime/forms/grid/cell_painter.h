// How cells and row selectors look. Colours come from the palette only, so that dark desktops work.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <functional>

namespace runtime::forms::grid {

/// Paints the current cell on its plain ground within a frame: strong while the grid has the focus.
class CellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// The narrow heading at the left, which marks the current row: an arrow, or a dot while the row holds what
/// is not stored yet.
class RowSelectors : public QHeaderView {
 public:
  explicit RowSelectors(QWidget* parent);

  struct Mark {
    int row = -1;
    bool changed = false;
  };
  std::function<Mark()> mark;

  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& place, int row) const override;
};

}  // namespace runtime::forms::grid
