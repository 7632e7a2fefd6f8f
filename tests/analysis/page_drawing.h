// Draws what a page of the analysis form has on its screen, and tells what of it cannot be reached.
#pragma once

#include <QWidget>
#include <string>

#include "forms/program.h"

namespace testing_aids {

/// Every control that can be seen, in the order of the design: name, caption, left, top, width, height in
/// twips of its container, and whether it is disabled. Frame1 counts its own corner.
inline std::string drawn_page(forms::Program& program) {
  using runtime::forms::Kind;
  std::string lines;
  for (const auto* control : program.form3->all()) {
    if (!control->widget()->isVisible()) continue;
    lines += control->full_name();
    if (control->kind() != Kind::TextBox && control->kind() != Kind::Line) {
      lines += " \"" + control->caption() + '"';
    }
    for (const int number : {control->left(), control->top(), control->width(), control->height()}) {
      lines += ' ' + std::to_string(number);
    }
    lines += control->is_enabled() ? "\n" : " disabled\n";
  }
  return lines;
}

/// Whether a click on the page at that place of the widget reaches it or what stands in it.
inline bool is_reached(const QWidget& surface, const QWidget& widget, const QPoint& place) {
  const QWidget* hit = surface.childAt(widget.mapTo(&surface, place));
  return hit == &widget || (hit != nullptr && widget.isAncestorOf(hit));
}

/// The controls that can be seen but have another one over a corner or over their middle.
inline std::string covered_controls(forms::Program& program) {
  const QWidget& surface = *program.form3.surface();
  std::string names;
  for (const auto* control : program.form3->all()) {
    const QWidget& widget = *control->widget();
    if (!widget.isVisible()) continue;
    const QRect area = widget.rect();
    for (const QPoint place :
         {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight(), area.center()}) {
      if (is_reached(surface, widget, place)) continue;
      names += control->full_name() + ' ';
      break;
    }
  }
  return names;
}

}  // namespace testing_aids
