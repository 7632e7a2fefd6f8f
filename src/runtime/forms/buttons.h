// Command buttons, option buttons and check boxes.
#pragma once

#include "runtime/forms/control.h"

namespace runtime::forms {

class CommandButton : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::CommandButton; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void show_caption(const std::string& caption) override;
};

/// One of a group: the option buttons of one container exclude each other.
class OptionButton : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::OptionButton; }

  bool value() const;
  /// Selecting an option that was not selected fires its Click.
  void set_value(bool selected);

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void show_caption(const std::string& caption) override;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::CheckBox; }

  /// 1 when checked, 0 when not.
  int value() const;
  /// A change fires Click.
  void set_value(int value);

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void show_caption(const std::string& caption) override;
};

}  // namespace runtime::forms
