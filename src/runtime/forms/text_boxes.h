// Text boxes and the masked number box.
#pragma once

#include "runtime/forms/control.h"
#include "runtime/forms/data_control.h"

class QLineEdit;

namespace runtime::forms {

class TextBox : public Control, public Bound {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::TextBox; }

  std::string text() const;
  /// A changed text fires Change.
  void set_text(const std::string& text);
  bool locked() const;
  void set_locked(bool locked);
  bool bold() const;
  void set_bold(bool bold);

  void show_value(const Value& value) override;
  Value held_value() const override { return text(); }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  /// The caption column of a text box is its text as designed.
  void show_caption(const std::string& caption) override;

 private:
  QLineEdit& edit() const;
  void show(const std::string& text);
  void changed_by_a_person();

  std::string shown_;
};

/// A number box with a mask of "#", each a place for one digit. The prompt "_" stands where no digit does.
class MaskEdBox : public Control, public Bound {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::MaskEdBox; }

  /// The content as it stands, prompts included: "24__".
  std::string text() const;

  void show_value(const Value& value) override;
  /// Null for a box without a digit, else the number before the first gap.
  Value held_value() const override;
  /// Draws the box anew.
  void Refresh();

 protected:
  QWidget* make_widget(QWidget* parent) override;
  /// The caption column of a masked box is its mask.
  void show_caption(const std::string& mask) override;

 private:
  QLineEdit& edit() const;
};

}  // namespace runtime::forms
