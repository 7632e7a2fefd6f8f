// What stands on the screen in each editor, on a fresh form and on top of what another editor left.
#include "parameter_layouts.h"

namespace {

using testing_aids::Layout;
using testing_aids::ParameterLayouts;

TEST_P(ParameterLayouts, show_what_the_last_editor_put_on_top) {
  EXPECT_EQ(drawn_after(GetParam().editors), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Fresh, ParameterLayouts, ::testing::ValuesIn(testing_aids::fresh_layouts),
                         testing_aids::name_of_layout);

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
    testing_aids::name_of_layout);

}  // namespace
