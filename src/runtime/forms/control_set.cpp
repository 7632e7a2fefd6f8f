#include "runtime/forms/control_set.h"

#include <algorithm>

namespace runtime::forms {

void ControlSet::create(const FormDesign& design, QWidget* surface, Desktop& desktop) {
  for (const ControlDesign& row : design.controls) {
    const auto member = declared_.find(std::string_view(row.name));
    if (member == declared_.end()) throw Fault(51, std::string(row.name) + " is no member of " + design.name);
    Control& control = member->second(row.index);
    QWidget* parent = surface;
    if (row.container != nullptr) {
      Control* container = find(row.container);
      if (container == nullptr) throw Fault(51, std::string(row.container) + " stands behind what it holds");
      parent = container->widget();
    }
    control.create(row, parent, desktop);
    created_.push_back(&control);
  }
}

Control* ControlSet::find(std::string_view name, int index) const {
  const auto found = std::find_if(created_.begin(), created_.end(), [&](const Control* control) {
    return control->name() == name && control->index() == index;
  });
  return found == created_.end() ? nullptr : *found;
}

std::vector<std::string> ControlSet::declared_names() const {
  std::vector<std::string> names;
  names.reserve(declared_.size());
  for (const auto& [name, make] : declared_) names.push_back(name);
  return names;
}

void ControlSet::layout_changed() {
  if (when_layout_changes) when_layout_changes();
}

}  // namespace runtime::forms
