// The line in which a cell is edited in its place.
#pragma once

#include <QLineEdit>
#include <functional>

class QKeyEvent;
class QMouseEvent;

namespace runtime::forms::grid {

/// The loss of the focus means nothing to it: whoever opened it closes it. So a cell stays "being edited"
/// while a button's handler runs.
class CellEditor : public QLineEdit {
 public:
  explicit CellEditor(QWidget* parent);

  /// Sees every key first; true when the key is dealt with.
  std::function<bool(QKeyEvent&)> when_key;
  std::function<void(QMouseEvent&)> when_released;

  /// Shows an edit. What is there already stays as it is, with its caret.
  void show_edit(const QString& text, bool is_text, const QRect& place);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // Tab is a key of the grid
};

}  // namespace runtime::forms::grid
