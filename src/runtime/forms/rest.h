// A stretch in which nothing of the program runs but the work under way.
#pragma once

#include <QSize>
#include <optional>

#include "runtime/forms/input_guard.h"

namespace runtime::forms {

class Desktop;

/// While it lives windows repaint, but what a person does is dropped, by whatever way it comes, and no
/// handler of a form runs. At the end of the outermost one the forms lay themselves out for the size that
/// their windows got meanwhile.
class Rest {
 public:
  explicit Rest(Desktop& desktop);
  ~Rest();
  Rest(const Rest&) = delete;
  Rest& operator=(const Rest&) = delete;

 private:
  void tell_of_a_changed_size() const;

  Desktop& desktop_;
  const QSize size_before_;
  std::optional<InputGuard> guard_;
};

}  // namespace runtime::forms
