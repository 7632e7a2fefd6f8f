#include "runtime/forms/control.h"

#include <QFont>
#include <algorithm>

#include "runtime/forms/control_set.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {
constexpr double smallest_legible_points = 8.0;
}

Control::Control(ControlSet& owner, const char* name, int index)
    : owner_(owner), name_(name), index_(index) {}

std::string Control::full_name() const {
  return index_ == no_index ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::create(const ControlDesign& design, QWidget* parent, Desktop& desktop) {
  desktop_ = &desktop;
  widget_ = make_widget(parent);
  widget_->setObjectName(qt(full_name()));
  if (design.label != nullptr) widget_->setAccessibleName(QString::fromUtf8(design.label));
  font_size_ = widget_->font().pointSizeF();
  if (lies_under()) widget_->lower();
  set_caption(design.caption);
  set_place(design.place);
  visible_ = design.visible;
  widget_->setVisible(visible_);
  set_enabled(design.enabled);
  created(design);
}

void Control::set_place(const Place& place) {
  place_ = place;
  widget_->setGeometry(pixels(place_));
  placed();
  owner_.layout_changed();
}

void Control::set_left(int twips) {
  set_place({twips, place_.top, place_.width, place_.height});
}
void Control::set_top(int twips) {
  set_place({place_.left, twips, place_.width, place_.height});
}
void Control::set_width(int twips) {
  set_place({place_.left, place_.top, twips, place_.height});
}
void Control::set_height(int twips) {
  set_place({place_.left, place_.top, place_.width, twips});
}

void Control::set_visible(bool visible) {
  if (visible_ && !visible) about_to_hide();
  visible_ = visible;
  widget_->setVisible(visible);
  if (visible && !lies_under()) widget_->raise();
  owner_.layout_changed();
}

void Control::set_enabled(bool enabled) {
  enabled_ = enabled;
  widget_->setEnabled(enabled);
}

void Control::set_caption(const std::string& caption) {
  caption_ = caption;
  show_caption(caption);
}

void Control::set_font_size(double points) {
  font_size_ = points;
  QFont font = widget_->font();
  font.setPointSizeF(std::max(points, smallest_legible_points));
  widget_->setFont(font);
}

void Control::set_tab_stop(bool tab_stop) {
  widget_->setFocusPolicy(tab_stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void Control::set_label(const std::string& label) {
  widget_->setAccessibleName(qt(label));
}

void Control::fire(Event event) {
  const auto handler = handlers_.find(event);
  if (handler == handlers_.end()) return;
  // The handler may unload the form and this control with it.
  const auto running = handler->second;
  running(index_);
}

void Control::fire_from_person(Event event, std::optional<int> detail) {
  const auto handler = handlers_.find(event);
  if (handler == handlers_.end()) return;
  desktop_->run_person_event(
      [running = handler->second, index = detail.value_or(index_)] { running(index); });
}

void Control::desktop_event(const std::function<void()>& action) {
  desktop_->run_person_event(action);
}

}  // namespace runtime::forms
