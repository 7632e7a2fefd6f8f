#include "layout_drawing.h"

#include <QLabel>
#include <algorithm>

namespace testing_aids {

namespace {

using runtime::forms::Control;

std::string named_width(int width, const std::map<int, std::string>& widths) {
  for (const auto& [known, name] : widths) {
    if (width == known) return name;
    if (width == known + 1000) return name + "+1000";
  }
  return std::to_string(width);
}

/// The control of the form that takes a click where a person aims.
std::string reached_by_click(const Control& control, const QWidget& surface) {
  const QWidget* widget = control.widget();
  const QWidget* hit =
      surface.childAt(widget->mapTo(&surface, QPoint(8, std::min(widget->height() / 2, 40))));
  while (hit != nullptr && hit->parentWidget() != &surface) hit = hit->parentWidget();
  return hit == nullptr ? "nothing" : hit->objectName().toStdString();
}

bool stand_beside_rows(forms::Form1& form1) {
  for (int row = 0; row < 12; ++row) {
    const auto& label = form1->Lbl_data4(row);
    const bool right = (static_cast<QLabel*>(label.widget())->alignment() & Qt::AlignRight) != 0;
    const int top = form1->DBGrid4.row_top(0) + 205 + row * 218;
    if (!label.visible() || !right || label.top() != top) return false;
  }
  return true;
}

std::string drawn(const Control& control, const QWidget& surface, const std::map<int, std::string>& widths) {
  std::string line = control.full_name() + ' ' + std::to_string(control.left()) + ' ' +
                     std::to_string(control.top()) + ' ' + named_width(control.width(), widths) + ' ' +
                     std::to_string(control.height());
  std::string caption = control.caption();
  std::replace(caption.begin(), caption.end(), '\n', '/');
  if (!caption.empty()) line += " \"" + caption + '"';
  if (!control.is_enabled()) line += " off";
  if (!control.widget()->isVisible()) line += " not on the screen";
  const std::string reached = reached_by_click(control, surface);
  if (reached != control.full_name()) line += " under " + reached;
  return line + '\n';
}

}  // namespace

std::string drawn_layout(forms::Program& program, const std::map<int, std::string>& widths) {
  auto& form1 = program.form1;
  std::string text = form1.caption();
  if (form1.window_state() == runtime::forms::WindowState::maximized) text += ", maximized";
  text += program.mdiform1.Inputs.is_enabled() ? "\n" : ", menus off\n";
  const bool beside_rows = stand_beside_rows(form1);
  if (beside_rows) text += "the occupations beside the rows of DBGrid4\n";
  for (const Control* control : form1->all()) {
    if (!control->visible() || (beside_rows && control->name() == "Lbl_data4")) continue;
    text += drawn(*control, *form1.surface(), widths);
  }
  return text;
}

}  // namespace testing_aids
