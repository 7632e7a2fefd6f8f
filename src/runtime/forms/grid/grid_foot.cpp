#include "runtime/forms/grid/grid_foot.h"

#include <QBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace runtime::forms::grid {

GridFoot::GridFoot(QWidget* parent) : QWidget(parent), words_(new QLabel(this)) {
  setObjectName(QStringLiteral("GridFoot"));
  words_->setObjectName(QStringLiteral("RowNumber"));
  words_->setTextFormat(Qt::PlainText);
  auto* go_to = new QToolButton(this);
  go_to->setObjectName(QStringLiteral("GoToButton"));
  go_to->setText(QStringLiteral("Go to..."));
  go_to->setToolTip(QStringLiteral("Go to a row (Ctrl+G)"));
  go_to->setAccessibleName(QStringLiteral("Go to a row"));
  go_to->setAutoRaise(true);
  go_to->setFocusPolicy(Qt::NoFocus);  // Ctrl+G is its key
  QObject::connect(go_to, &QToolButton::clicked, this, [this] {
    if (when_go_to) when_go_to();
  });
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(4, 0, 4, 0);
  line->setSpacing(6);
  line->addWidget(words_);
  line->addWidget(go_to);
}

void GridFoot::show_row(std::int64_t row, std::int64_t rows) {
  const QString words =
      rows == 0 ? QStringLiteral("No rows") : QStringLiteral("Row %1 of %2").arg(row + 1).arg(rows);
  if (words_->text() == words) return;
  words_->setText(words);
}

QSize FootScrollBar::sizeHint() const {
  const QSize own = QScrollBar::sizeHint();
  return {own.width(), qMax(own.height(), fontMetrics().height() + 4)};
}

}  // namespace runtime::forms::grid
