#include "runtime/forms/form_window.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <algorithm>

#include "runtime/forms/control_set.h"
#include "runtime/forms/menu_bar_buttons.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

constexpr int margin = 8;       // pixels around the controls
constexpr QSize frame(12, 34);  // what the window's frame and title take
constexpr const char* own_policy = "own focus policy";

/// The surface stands a little off the frame's edge, because many controls stand at its very left and top.
class PaddedScrollArea : public QScrollArea {
 public:
  explicit PaddedScrollArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setViewportMargins(margin, margin, 0, 0);
  }
};

bool lies_under_another(const QWidget& widget) {
  const QObjectList& siblings = widget.parentWidget()->children();
  const auto self = siblings.indexOf(&const_cast<QWidget&>(widget));
  return std::any_of(siblings.begin() + self + 1, siblings.end(), [&widget](QObject* object) {
    const auto* other = qobject_cast<QWidget*>(object);
    return other != nullptr && !other->isWindow() && !other->isHidden() &&
           other->geometry().contains(widget.geometry());
  });
}

/// Keeps the policy that the control was made with, and takes it away while the control is covered.
void set_focus_by_cover(QWidget& widget) {
  if (!widget.property(own_policy).isValid()) {
    widget.setProperty(own_policy, static_cast<int>(widget.focusPolicy()));
  }
  const auto own = static_cast<Qt::FocusPolicy>(widget.property(own_policy).toInt());
  const auto wanted = lies_under_another(widget) ? Qt::NoFocus : own;
  if (widget.focusPolicy() == Qt::NoFocus || wanted == Qt::NoFocus) widget.setFocusPolicy(wanted);
}

}  // namespace

FormWindow::FormWindow(const FormDesign& design, QWidget* parent)
    : QMdiSubWindow(parent), scroll_(new PaddedScrollArea(this)), surface_(new QWidget) {
  // A work form is left by its own buttons: no close box, no system menu, no key that closes it.
  setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinMaxButtonsHint);
  setSystemMenu(nullptr);
  setAttribute(Qt::WA_DeleteOnClose, false);
  surface_->setObjectName(QString::fromUtf8(design.name));
  scroll_->setWidget(surface_);
  setWidget(scroll_);
  const QRect client = pixels({0, 0, design.client_width, design.client_height});
  normal_size_ = client.size() + 2 * QSize(margin, margin) + frame;
  resize(normal_size_);
}

void FormWindow::fit(const ControlSet& controls) {
  QSize extent(0, 0);
  for (const Control* control : controls.all()) {
    QWidget* widget = control->widget();
    if (widget == nullptr || !control->visible()) continue;
    if (widget->parentWidget() == surface_) {
      const QRect place = widget->geometry();
      extent = extent.expandedTo(QSize(place.right() + 1 + margin, place.bottom() + 1 + margin));
    }
    set_focus_by_cover(*widget);
  }
  surface_->setMinimumSize(extent);
}

void FormWindow::maximize() {
  showMaximized();
  maximized_by_code_ = true;
  fit_menu_bar();
}

/// What the program has maximised stays so; what the analyst has maximised has a way back.
void FormWindow::fit_menu_bar() {
  const auto* main_window = qobject_cast<QMainWindow*>(window());
  if (main_window == nullptr) return;
  show_in_menu_bar(*main_window, maximized_by_code_ ? MenuBarButtons::none : MenuBarButtons::restore);
}

void FormWindow::changeEvent(QEvent* event) {
  QMdiSubWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  if (!isMaximized()) maximized_by_code_ = false;
  if (isMaximized()) fit_menu_bar();
}

void FormWindow::showEvent(QShowEvent* event) {
  // Qt adds the system menu to any window that can be minimised, and the style draws a close box for it.
  overrideWindowFlags(windowFlags() & ~Qt::WindowSystemMenuHint);
  QMdiSubWindow::showEvent(event);
  if (isMaximized()) fit_menu_bar();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  if (!isMinimized() && !isMaximized()) normal_size_ = size();
  emit resized();
}

}  // namespace runtime::forms
