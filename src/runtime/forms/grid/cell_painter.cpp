#include "runtime/forms/grid/cell_painter.h"

#include <QAbstractItemView>
#include <QPainter>

namespace runtime::forms::grid {

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  QStyleOptionViewItem plain(option);
  plain.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  if (view == nullptr || view->currentIndex() != index) {
    QStyledItemDelegate::paint(painter, plain, index);
    return;
  }
  plain.state &= ~QStyle::State_Selected;
  QStyledItemDelegate::paint(painter, plain, index);
  const bool focused = view->hasFocus();
  const int width = focused ? 2 : 1;
  painter->save();
  painter->setPen(QPen(option.palette.color(focused ? QPalette::Highlight : QPalette::PlaceholderText), width,
                       Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter->drawRect(QRectF(option.rect).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
  painter->restore();
}

RowSelectors::RowSelectors(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
  setSectionResizeMode(QHeaderView::Fixed);
  setSectionsClickable(true);
  setHighlightSections(false);
  setMinimumSectionSize(1);
}

QSize RowSelectors::sizeHint() const {
  return {fontMetrics().height() + 4, 0};
}

void RowSelectors::paintSection(QPainter* painter, const QRect& place, int row) const {
  QStyleOptionHeader option;
  initStyleOption(&option);
  option.rect = place;
  option.section = row;
  style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
  const Mark marked = mark ? mark() : Mark();
  if (row != marked.row) return;
  const double size = qMin(place.width(), place.height()) * 0.3;
  const QPointF middle = QRectF(place).center();
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(palette().color(QPalette::ButtonText));
  if (marked.changed) {
    painter->drawEllipse(middle, size, size);
  } else {
    painter->drawPolygon(QPolygonF({middle + QPointF(-size * 0.7, -size), middle + QPointF(size, 0),
                                    middle + QPointF(-size * 0.7, size)}));
  }
  painter->restore();
}

}  // namespace runtime::forms::grid
