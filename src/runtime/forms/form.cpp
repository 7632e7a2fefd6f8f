#include "runtime/forms/form.h"

#include <QMdiArea>
#include <algorithm>

#include "runtime/forms/data_control.h"
#include "runtime/forms/data_grid.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/form_window.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

FormBase::FormBase(Desktop& desktop, const FormDesign& design) : desktop_(desktop), design_(design) {}

FormBase::~FormBase() {
  unload_without_storing();
}

QWidget* FormBase::surface() const {
  return window_ == nullptr ? nullptr : window_->surface();
}

void FormBase::reference() {
  if (loaded()) return;
  build();
  if (design_.appears_at_load) Show();
}

void FormBase::Load() {
  Show();
}

void FormBase::build() {
  window_ = new FormWindow(design_, nullptr);
  window_->hide();
  if (desktop_.mdi_area != nullptr) {
    desktop_.mdi_area->addSubWindow(window_, window_->windowFlags());
    window_->hide();
  }
  controls_ = make_controls();
  desktop_.loaded_forms.push_back(this);
  try {
    controls_->create(design_, window_->surface(), desktop_);
    controls_->when_layout_changes = [this] { window_->fit(*controls_); };
    window_->fit(*controls_);
    set_caption(design_.caption);
    tie_events();
    open_data_controls();
    run_form_event(Event::Load);
  } catch (...) {
    remove();
    throw;
  }
}

void FormBase::tie_events() {
  for (const EventRow& row : events_) {
    for (Control* control : controls_->all()) {
      if (control->name() != row.control) continue;
      control->on(row.event, row.handler);
    }
  }
  QObject::connect(window_, &FormWindow::resized, window_, [this] {
    if (loaded() && visible_) desktop_.run_event([this] { run_form_event(Event::Resize); });
  });
}

void FormBase::run_form_event(Event event) {
  const auto row = std::find_if(events_.begin(), events_.end(), [event](const EventRow& candidate) {
    return candidate.control.empty() && candidate.event == event;
  });
  if (row != events_.end()) row->handler(no_index);
}

void FormBase::open_data_controls() {
  for (const ControlDesign& row : design_.controls) {
    if (row.binding.data == nullptr) continue;
    auto* data = dynamic_cast<DataControl*>(controls_->find(row.binding.data, row.binding.data_index));
    Control* control = controls_->find(row.name, row.index);
    auto* bound = dynamic_cast<Bound*>(control);
    auto* grid = dynamic_cast<DBGrid*>(control);
    if (data == nullptr || (bound == nullptr && grid == nullptr)) {
      throw Fault(51, std::string(row.name) + " can't be bound");
    }
    if (grid != nullptr) {
      data->attach(*grid);
    } else {
      data->attach(*bound, row.binding.source);
    }
  }
  for (Control* control : controls_->all()) {
    if (auto* data = dynamic_cast<DataControl*>(control)) data->open();
  }
}

void FormBase::store() {
  for (Control* control : controls_->all()) {
    if (auto* data = dynamic_cast<DataControl*>(control)) data->post();
  }
}

void FormBase::writes_ended(bool kept) {
  for (Control* control : controls_->all()) {
    if (auto* data = dynamic_cast<DataControl*>(control)) data->writes_ended(kept);
  }
}

void FormBase::Show() {
  reference();
  // The analyst may have minimised it, too.
  const bool was_minimized = window_state_ == WindowState::minimized || window_->isMinimized();
  if (visible_ && !was_minimized) {
    window_->raise();
  } else {
    visible_ = true;
    if (window_state_ == WindowState::minimized) window_state_ = state_before_minimized_;
    apply_window_state();
  }
  if (desktop_.mdi_area != nullptr) desktop_.mdi_area->setActiveSubWindow(window_);
  for (Control* control : controls_->all()) control->form_shown();
}

void FormBase::hide() {
  reference();
  visible_ = false;
  window_->hide();
}

void FormBase::set_window_state(WindowState state) {
  reference();
  if (state == WindowState::minimized && window_state_ != WindowState::minimized) {
    state_before_minimized_ = window_state_;
  }
  window_state_ = state;
  // The window's own state would show a hidden window, so it waits for the show.
  if (visible_) apply_window_state();
}

void FormBase::apply_window_state() {
  switch (window_state_) {
    case WindowState::normal:
      window_->showNormal();
      break;
    case WindowState::minimized:
      window_->showMinimized();
      break;
    case WindowState::maximized:
      window_->maximize();
      break;
  }
}

void FormBase::Refresh() {
  reference();
  window_->surface()->repaint();
}

int FormBase::width() {
  reference();
  return twips(window_->size_without_icon().width());
}

void FormBase::set_caption(const std::string& caption) {
  reference();
  caption_ = caption;
  window_->setWindowTitle(qt(caption));
}

void FormBase::set_font_size(double points) {
  reference();
  font_size_ = points;
}

void FormBase::Unload() {
  if (!loaded()) return;
  if (design_.stores_at_unload) store();
  remove();
}

void FormBase::unload_without_storing() {
  if (loaded()) remove();
}

void FormBase::remove() {
  std::erase(desktop_.loaded_forms, this);
  visible_ = false;
  window_state_ = WindowState::normal;
  state_before_minimized_ = WindowState::normal;
  font_size_ = 0;
  // A form is unloaded inside its own button's handler every day: the widgets must live until that handler
  // is back in the event loop, but nobody may find them meanwhile.
  // Hiding moves the focus, and a control that notices must find neither its handlers nor a freed set.
  const std::unique_ptr<ControlSet> controls = std::move(controls_);
  for (Control* control : controls->all()) control->forget_handlers();
  // Before the window goes: the area would make the first of the others active, and call that the last one
  // used.
  activate_next_form();
  FormWindow* window = std::exchange(window_, nullptr);
  window->disconnect();
  window->hide();
  if (desktop_.mdi_area != nullptr) desktop_.mdi_area->removeSubWindow(window);
  window->setParent(nullptr);
  window->deleteLater();
}

void FormBase::activate_next_form() {
  if (desktop_.mdi_area == nullptr) return;
  const auto windows = desktop_.mdi_area->subWindowList(QMdiArea::ActivationHistoryOrder);
  const auto next = std::find_if(windows.rbegin(), windows.rend(),
                                 [this](auto* window) { return window != window_ && window->isVisible(); });
  if (next != windows.rend()) desktop_.mdi_area->setActiveSubWindow(*next);
}

}  // namespace runtime::forms
