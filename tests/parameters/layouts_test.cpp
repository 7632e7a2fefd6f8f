// What stands on the screen in each editor, on a fresh form and on top of what other editors left.
#include "layout_drawing.h"
#include "parameter_page.h"
#include "runtime/forms/twips.h"

namespace {

struct Layout {
  const char* name;
  std::vector<std::string> editors;
  const char* expected;
};

void PrintTo(const Layout& layout, std::ostream* stream) {
  *stream << layout.name;
}

class ParameterLayouts : public testing_aids::ParameterPage, public ::testing::WithParamInterface<Layout> {
 protected:
  ParameterLayouts() { widths_[fresh_width()] = "form"; }

  /// Opens one editor after the other, each left by its Save and a No.
  std::string drawn_after(const std::vector<std::string>& editors) {
    for (const std::string& editor : editors) {
      if (program.form1.loaded()) leave_with_no();
      analyst.choose(editor);
      if (program.form1.window_state() == runtime::forms::WindowState::maximized) {
        widths_.emplace(program.form1.width(), "maximized");
      }
    }
    return testing_aids::drawn_layout(program, widths_);
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

TEST_P(ParameterLayouts, show_what_the_last_editor_put_on_top) {
  EXPECT_EQ(drawn_after(GetParam().editors), GetParam().expected);
}

const auto name_of = [](const auto& layout) { return layout.param.name; };

INSTANTIATE_TEST_SUITE_P(
    Fresh, ParameterLayouts,
    ::testing::Values(
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
)"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Pairs, ParameterLayouts,
    ::testing::Values(
        Layout{"commercial_then_commercial", {"Commerparam", "Commerparam"}, R"(Edit Commercial Parameters
Label1(0) 240 240 1095 255 "Manufacturing"
Label1(1) 720 480 495 255 "Mining"
Label1(2) 480 720 855 255 "Agriculture"
Label1(3) 720 960 615 255 "Service"
DBGrid1 1440 120 6855 5000
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"commercial_then_wages",
               {"Commerparam", "commute_param_sw"},
               R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"commercial_then_shares",
               {"Commerparam", "Commute_param_ms"},
               R"(Revise Commuter Mode Split, maximized, menus off
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 form+1000 5000
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults" under Command6
Command6 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"commercial_then_reliability",
               {"Commerparam", "mnu_rel"},
               R"(Revise Speeds and % Highway for Reliability Analysis
Label1(1) 720 480 495 255 "Mining" under DBGrid2
DBGrid2 0 120 form 975
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"wages_then_commercial",
               {"commute_param_sw", "Commerparam"},
               R"(Edit Commercial Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command2 7320 5160 855 375 "Restore/Defaults"
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"wages_then_wages",
               {"commute_param_sw", "commute_param_sw"},
               R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"wages_then_shares",
               {"commute_param_sw", "Commute_param_ms"},
               R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
        Layout{"wages_then_reliability",
               {"commute_param_sw", "mnu_rel"},
               R"(Revise Speeds and % Highway for Reliability Analysis, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid2
DBGrid2 0 120 maximized 975
DBGrid4 3895 120 4000 4000 under DBGrid2
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"shares_then_commercial",
               {"Commute_param_ms", "Commerparam"},
               R"(Edit Commercial Parameters, maximized
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 form+1000 1215
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults"
Command6 7320 5160 855 375 "Restore/Defaults" under Command2
)"},
        Layout{"shares_then_wages",
               {"Commute_param_ms", "commute_param_sw"},
               R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"shares_then_shares",
               {"Commute_param_ms", "Commute_param_ms"},
               R"(Revise Commuter Mode Split, maximized, menus off
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command6 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"shares_then_reliability",
               {"Commute_param_ms", "mnu_rel"},
               R"(Revise Speeds and % Highway for Reliability Analysis, maximized
Label1(1) 720 480 495 255 under DBGrid2
DBGrid2 0 120 maximized 975
DBGrid3 0 120 form+1000 1215 under DBGrid2
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command6 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"reliability_then_commercial", {"mnu_rel", "Commerparam"}, R"(Edit Commercial Parameters
Label1(1) 720 480 495 255 "Mining" under DBGrid2
DBGrid2 0 120 form 975
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command2 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"reliability_then_wages",
               {"mnu_rel", "commute_param_sw"},
               R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
        Layout{"reliability_then_shares",
               {"mnu_rel", "Commute_param_ms"},
               R"(Revise Commuter Mode Split, maximized, menus off
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 form+1000 1215
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
Command6 7320 5160 855 375 "Restore/Defaults"
)"},
        Layout{"reliability_then_reliability",
               {"mnu_rel", "mnu_rel"},
               R"(Revise Speeds and % Highway for Reliability Analysis
Label1(1) 720 480 495 255 "Mining" under DBGrid2
DBGrid2 0 120 form 975
Command3 5640 5160 735 375 "Save"
Command1 6480 5160 735 375 "Cancel"
)"}),
    name_of);

class ParameterChains : public ParameterLayouts {};

TEST_P(ParameterChains, the_tested_save_stands_in_the_share_editor) {
  EXPECT_EQ(drawn_after(GetParam().editors), GetParam().expected);
  edit("DBGrid3", 0, 0, "0.5");
  press("Command4", "OK");
  EXPECT_EQ(last_box(), "Mode Shares Must Total 1.0");
  press("Command6", "Yes");
}

INSTANTIATE_TEST_SUITE_P(
    , ParameterChains,
    ::testing::Values(Layout{"wages_then_commercial_then_shares",
                             {"commute_param_sw", "Commerparam", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 5000
DBGrid4 3895 120 4000 4000 under DBGrid3
Command2 7320 5160 855 375 "Restore/Defaults"
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"commercial_then_wages_then_shares",
                             {"Commerparam", "commute_param_sw", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 5000
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"wages_then_shares_then_shares",
                             {"commute_param_sw", "Commute_param_ms", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"shares_then_wages_then_shares",
                             {"Commute_param_ms", "commute_param_sw", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"wages_then_reliability_then_shares",
                             {"commute_param_sw", "mnu_rel", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"reliability_then_wages_then_shares",
                             {"mnu_rel", "commute_param_sw", "Commute_param_ms"},
                             R"(Revise Commuter Mode Split, maximized, menus off
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"}),
    name_of);

}  // namespace
