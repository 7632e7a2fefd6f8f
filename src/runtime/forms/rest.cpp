#include "runtime/forms/rest.h"

#include <QMdiArea>
#include <vector>

#include "runtime/forms/desktop.h"
#include "runtime/forms/form.h"
#include "runtime/forms/form_size.h"
#include "runtime/forms/form_window.h"

namespace runtime::forms {

namespace {

QSize room_of(const Desktop& desktop) {
  return desktop.mdi_area == nullptr ? QSize() : desktop.mdi_area->size();
}

}  // namespace

Rest::Rest(Desktop& desktop) : desktop_(desktop), size_before_(room_of(desktop)) {
  desktop_.begin_rest();
  guard_.emplace();
}

Rest::~Rest() {
  guard_.reset();  // takes the last input away, while handlers still rest
  desktop_.end_rest();
  if (!desktop_.resting()) tell_of_a_changed_size();
}

void Rest::tell_of_a_changed_size() const {
  if (room_of(desktop_) == size_before_) return;
  const std::vector<FormBase*> forms = desktop_.loaded_forms;
  for (const FormBase* form : forms) {
    emit window_of(*form).resized();
  }
}

}  // namespace runtime::forms
