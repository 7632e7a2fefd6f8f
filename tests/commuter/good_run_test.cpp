#include "program_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using CommuterRun = testing_aids::ProgramTest;

TEST_F(CommuterRun, goes_from_the_menu_to_analysis_completed_and_leaves_a_report) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  analyst.forget_boxes();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_THAT(analyst.texts(),
              ElementsAre("The Number of Zones= 24\nThe Number of Districts= 0\nThe occupations are Sales\n"
                          "Do you wish to continue?",
                          "Analysis Completed"));
  EXPECT_THAT(app.bytes("results/sales.txt"), HasSubstr("The improvement saves the commuters of the study"));
  EXPECT_THAT(app.names_in("commuter"), ElementsAre("CC.EXE", "OUTPUT1.EXE", "err.txt"));
}

}  // namespace
