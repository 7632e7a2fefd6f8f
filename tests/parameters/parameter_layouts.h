// The fixture of tests of what stands on the screen in each editor: opens editors upon one another and draws
// the last one.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "layout_drawing.h"
#include "parameter_page.h"
#include "runtime/forms/twips.h"

namespace testing_aids {

/// Editors, by their menu items, and what stands on the screen in the last of them.
struct Layout {
  const char* name;
  std::vector<std::string> editors;
  const char* expected;
};

inline void PrintTo(const Layout& layout, std::ostream* stream) {
  *stream << layout.name;
}

inline const auto name_of_layout = [](const auto& layout) { return layout.param.name; };

class ParameterLayouts : public ParameterPage, public ::testing::WithParamInterface<Layout> {
 protected:
  ParameterLayouts() { widths_[fresh_width()] = "form"; }

  /// Opens one editor after the other, each left by its Save and a No.
  std::string drawn_after(const std::vector<std::string>& editors) {
    for (const std::string& editor : editors) {
      if (program.form1.visible()) leave_with_no();
      analyst.choose(editor);
      if (program.form1.window_state() == runtime::forms::WindowState::maximized) {
        widths_.emplace(program.form1.width(), "maximized");
      }
    }
    return drawn_layout(program, widths_);
  }

 private:
  static int fresh_width() {
    constexpr int frame = 12 + 2 * 8;  // pixels, with a margin on both sides
    return runtime::forms::twips(runtime::forms::pixels({0, 0, 8370, 0}).width() + frame);
  }

  /// The Save that the wages leave does not switch the menus on, Restore Defaults does.
  void leave_with_no() {
    press(analyst.can_use("Command3") ? "Command3" : "Command4", "No");
    if (!menus_enabled()) press("Command6", "No");
  }

  std::map<int, std::string> widths_;
};

/// Each editor on a form that none has been on before.
inline const std::array fresh_layouts{
    Layout{"commercial", {"Commerparam"}, R"(Edit Commercial Parameters
Label1(0) 240 240 1095 255 "Manufacturing"
Label1(1) 720 480 495 255 "Mining"
Label1(2) 480 720 855 255 "Agriculture"
Label1(3) 720 960 615 255 "Service"
DBGrid1 1440 120 6855 5000
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults"
)"},
    Layout{"wages", {"commute_param_sw"}, R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
    Layout{"shares", {"Commute_param_ms"}, R"(Revise Commuter Mode Split, maximized, menus off
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 form+1000 1215
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command6 7320 5160 855 375 "Restore/Defaults"
)"},
    Layout{"reliability", {"mnu_rel"}, R"(Revise Speeds and % Highway for Reliability Analysis
Label1(1) 720 480 495 255 "Mining" under DBGrid2
DBGrid2 0 120 form 975
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
)"},
};

}  // namespace testing_aids
