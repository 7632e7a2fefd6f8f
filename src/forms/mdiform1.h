// MDIForm1: the main window, its menu, and the public string of the number entry.
#pragma once

#include <span>
#include <string>

#include "runtime/forms/main_window.h"

namespace forms {

/// The menu tree as designed; a trailing blank is part of a caption.
std::span<const runtime::forms::MenuDesign> mdiform1_menu();

class MDIForm1;

class MenuItem {
 public:
  MenuItem(MDIForm1& form, const char* name) : form_(form), name_(name) {}
  bool is_enabled() const;
  void set_enabled(bool enabled);

 private:
  MDIForm1& form_;
  const char* name_;
};

class MDIForm1 {
 public:
  explicit MDIForm1(runtime::forms::Desktop& desktop);

  runtime::forms::MainWindow& window() { return window_; }
  void Show();

  MenuItem Inputs{*this, "Inputs"};
  MenuItem Run{*this, "Run"};
  MenuItem spec_timdist{*this, "spec_timdist"};
  MenuItem spec_CuCo{*this, "spec_CuCo"};
  MenuItem spec_comm{*this, "spec_comm"};
  MenuItem Spec_commercial{*this, "Spec_commercial"};

  /// "zone" or "district": which number the number entry is open for.
  std::string NumberEntryKind;

 private:
  runtime::forms::MainWindow window_;
};

}  // namespace forms
