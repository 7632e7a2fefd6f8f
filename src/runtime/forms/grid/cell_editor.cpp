#include "runtime/forms/grid/cell_editor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace runtime::forms::grid {

CellEditor::CellEditor(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  setObjectName(QStringLiteral("CellEditor"));
  setAutoFillBackground(true);
  setContextMenuPolicy(Qt::NoContextMenu);
  hide();
}

void CellEditor::show_edit(const QString& text, bool is_text, const QRect& place) {
  setAlignment(Qt::AlignVCenter | (is_text ? Qt::AlignLeft : Qt::AlignRight));
  if (this->text() != text) {
    const QSignalBlocker blocker(this);
    setText(text);
  }
  setGeometry(place);
  if (isHidden()) {
    show();
    raise();
  }
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
  if (!when_key || !when_key(*event)) QLineEdit::keyPressEvent(event);
  event->accept();  // what the line has no use for must not come round through the grid again
}

void CellEditor::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (when_released) when_released(*event);
}

}  // namespace runtime::forms::grid
