// What stands on the screen after three editors, and in an editor on a form that a run left behind.
#include "parameter_layouts.h"

namespace {

using testing_aids::Layout;
using testing_aids::ParameterLayouts;

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
    testing_aids::name_of_layout);

class ParameterReturns : public ParameterLayouts {};

TEST_P(ParameterReturns, show_what_the_three_editors_put_on_the_form) {
  EXPECT_EQ(drawn_after(GetParam().editors), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , ParameterReturns,
    ::testing::Values(Layout{"wages_then_shares_then_wages",
                             {"commute_param_sw", "Commute_param_ms", "commute_param_sw"},
                             R"(Revise Commuter Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
                      Layout{"wages_then_shares_then_reliability",
                             {"commute_param_sw", "Commute_param_ms", "mnu_rel"},
                             R"(Revise Speeds and % Highway for Reliability Analysis, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid2
DBGrid2 0 120 maximized 975
DBGrid3 0 120 maximized+1000 1215 under DBGrid2
DBGrid4 3895 120 4000 4000 under DBGrid2
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid2
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"wages_then_shares_then_commercial",
                             {"commute_param_sw", "Commute_param_ms", "Commerparam"},
                             R"(Edit Commercial Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid3
DBGrid3 0 120 maximized+1000 1215
DBGrid4 3895 120 4000 4000 under DBGrid3
Command2 7320 5160 855 375 "Restore/Defaults"
Command4 3895 5160 735 375 "Save"
Command5 4630 320 735 375 "Cancel" under DBGrid3
Command6 5365 5160 855 375 "Restore/Defaults"
)"},
                      Layout{"shares_then_wages_then_commercial",
                             {"Commute_param_ms", "commute_param_sw", "Commerparam"},
                             R"(Edit Commercial Parameters, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255
DBGrid4 3895 120 4000 4000
Command2 7320 5160 855 375 "Restore/Defaults"
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"},
                      Layout{"reliability_then_wages_then_reliability",
                             {"mnu_rel", "commute_param_sw", "mnu_rel"},
                             R"(Revise Speeds and % Highway for Reliability Analysis, maximized
the occupations beside the rows of DBGrid4
Label1(1) 720 480 495 255 under DBGrid2
DBGrid2 0 120 maximized 975
DBGrid4 3895 120 4000 4000 under DBGrid2
Command4 3895 4200 735 375 "Save"
Command5 4630 4200 735 375 "Cancel"
Command6 5365 4200 855 375 "Restore/Defaults"
)"}),
    testing_aids::name_of_layout);

/// A commuter run that gives up leaves the form loaded and hidden, and the menus on.
class ParameterLayoutsAfterRun : public ParameterLayouts {
 protected:
  void give_up_a_run() {
    open_commuter_page();
    pick("Command10(7)", "sample/commute_Sales.txt");
    pick("Command12", "results/sales.txt");
    std::filesystem::remove(app.file("sample/base_time.txt"));
    press("Command11", "OK");
    ASSERT_TRUE(program.form1.loaded());
    ASSERT_FALSE(program.form1.visible());
  }
};

TEST_P(ParameterLayoutsAfterRun, are_those_of_a_fresh_form) {
  give_up_a_run();
  EXPECT_EQ(drawn_after(GetParam().editors), GetParam().expected);
  EXPECT_TRUE(program.form1.visible());
  press(GetParam().editors.front() == commuter_editor ? "Command4" : "Command3", "Yes");
  EXPECT_FALSE(program.form1.loaded());
}

INSTANTIATE_TEST_SUITE_P(, ParameterLayoutsAfterRun, ::testing::ValuesIn(testing_aids::fresh_layouts),
                         testing_aids::name_of_layout);

}  // namespace
