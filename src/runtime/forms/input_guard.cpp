#include "runtime/forms/input_guard.h"

#include <QApplication>
#include <QEvent>

namespace runtime::forms {

InputGuard::InputGuard() {
  qApp->installEventFilter(this);
}

InputGuard::~InputGuard() {
  // What arrived while the program ran and was not delivered yet would come as a click afterwards.
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
}

bool InputGuard::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::Enter:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonDblClick:
    case QEvent::Close:
      event->ignore();
      return true;
    default:
      return false;
  }
}

}  // namespace runtime::forms
