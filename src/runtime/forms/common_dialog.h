// The common file dialog. Its properties last from showing to showing while the form is loaded.
#pragma once

#include <string>

#include "runtime/forms/control.h"

namespace runtime::forms {

class CommonDialog : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::CommonDialog; }

  /// `flags` values: keep the current directory; the chosen extension differs from the expected one.
  static constexpr int no_change_directory = 8;
  static constexpr int extension_different = 1024;
  /// The fault of a cancelled dialog when `cancel_error` is set.
  static constexpr int cancel_fault = 32755;

  bool cancel_error = false;
  std::string dialog_title;
  std::string filter;  // "description|pattern|description|pattern"
  int flags = 0;
  std::string init_dir;
  std::string file_name;

  /// Shows the dialog. A chosen path is absolute, without "." and "..", and goes to `file_name`; a cancelled
  /// dialog leaves `file_name` as it was and, with `cancel_error` set, is fault 32755. No file has to exist
  /// and none is asked about before it is overwritten: the caller tests.
  void ShowOpen();
  void ShowSave();

 protected:
  QWidget* make_widget(QWidget* parent) override;

 private:
  void show(const QString& button);
};

}  // namespace runtime::forms
