#include "runtime/forms/form_size.h"

#include "runtime/forms/form.h"
#include "runtime/forms/form_window.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

FormWindow& window_of(const FormBase& form) {
  QWidget* widget = form.surface();
  while (qobject_cast<FormWindow*>(widget) == nullptr) widget = widget->parentWidget();
  return *static_cast<FormWindow*>(widget);
}

int width_of(const FormBase& form) {
  return twips(window_of(form).size_without_icon().width());
}

int height_of(const FormBase& form) {
  return twips(window_of(form).size_without_icon().height());
}

void move_to(const FormBase& form, int left, int top) {
  window_of(form).move(pixels({left, top, 0, 0}).topLeft());
}

bool is_minimized(const FormBase& form) {
  return form.window_state() == WindowState::minimized || window_of(form).isMinimized();
}

}  // namespace runtime::forms
