// The controls of one load of a form, found by name, and control arrays with gaps.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/fault.h"
#include "runtime/forms/control.h"

namespace runtime::forms {

/// Base of the struct that declares a form's controls as members. The members tell the set their names,
/// so that the design table can fill them.
class ControlSet {
 public:
  ControlSet() = default;
  ControlSet(const ControlSet&) = delete;
  ControlSet& operator=(const ControlSet&) = delete;
  virtual ~ControlSet() = default;

  /// Makes every control of the design on `surface`, containers before what they hold.
  void create(const FormDesign& design, QWidget* surface, Desktop& desktop);

  /// The control of that name, or nullptr.
  Control* find(std::string_view name, int index = no_index) const;
  const std::vector<Control*>& all() const { return created_; }
  /// Names declared as members, for the test that holds members against the design table.
  std::vector<std::string> declared_names() const;

  void layout_changed();

  /// Called when a control was moved, shown or hidden.
  std::function<void()> when_layout_changes;

  using MakeElement = std::function<Control&(int index)>;
  void declare(const char* name, MakeElement make) { declared_[name] = std::move(make); }

 private:
  std::map<std::string, MakeElement, std::less<>> declared_;
  std::vector<Control*> created_;
};

/// A single control as a member of a form: One<CommandButton> Command11{*this, "Command11"}.
template <typename T>
class One : public T {
 public:
  One(ControlSet& owner, const char* name) : T(owner, name) {
    owner.declare(name, [this](int) -> Control& { return *this; });
  }
};

/// A control array as a member of a form. Its elements are those of the design table, gaps included.
template <typename T>
class Array {
 public:
  Array(ControlSet& owner, const char* name) {
    owner.declare(name, [this, &owner, name](int index) -> Control& {
      return *elements_.emplace(index, std::make_unique<T>(owner, name, index)).first->second;
    });
  }

  /// The element at `index`. Fault 340 where there is none.
  T& operator()(int index) {
    const auto element = elements_.find(index);
    if (element == elements_.end()) throw Fault(340, std::to_string(index));
    return *element->second;
  }

  bool has(int index) const { return elements_.contains(index); }

 private:
  std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace runtime::forms
