// Drops what a person does while the program waits for an external program.
#pragma once

#include <QObject>

namespace runtime::forms {

/// While it lives, keys, mouse, wheel, drops and close requests are eaten and nothing of them is kept for
/// later; painting goes on.
class InputGuard : public QObject {
 public:
  InputGuard();
  ~InputGuard() override;
  InputGuard(const InputGuard&) = delete;
  InputGuard& operator=(const InputGuard&) = delete;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace runtime::forms
