// Commercial journeys through the real windows with the sample models: a conversion of tons to trucks, a run
// in each reliability mode, and a run on the trips of a conversion.
#include <algorithm>

#include "program_test.h"

namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class CommercialJourney : public testing_aids::ProgramTest {
 protected:
  void open_commercial_page() {
    analyst.choose("spec_timdist");
    analyst.will_press("Yes");
    analyst.click("Command8");
    analyst.choose("Spec_commercial");
  }

  void run() {
    analyst.forget_boxes();
    analyst.will_press("Yes");
    analyst.will_press("OK");
    analyst.click("Command2");
  }

  void convert() {
    analyst.choose("mnu_tonstotrucks");
    pick("Command15", "sample/commodity.txt");
    analyst.forget_boxes();
    analyst.will_press("OK");
    analyst.click("Command13");
  }
};

class CommercialMode : public CommercialJourney, public ::testing::WithParamInterface<const char*> {};

TEST_P(CommercialMode, runs_from_the_menu_to_a_report_by_industry_and_district) {
  open_commercial_page();
  pick("Command1(1)", "sample/trips_Agriculture.txt");
  pick("Command1(2)", "sample/trips_Mining.txt");
  pick("Command1(4)", "sample/trips_Manufacturing.txt");
  pick("Command1(9)", "sample/trips_Service.txt");
  pick("Command5", "results/trucks.txt");
  analyst.click(GetParam());
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  run();
  EXPECT_EQ(last_box(), "Analysis Completed");
  EXPECT_THAT(app.bytes("results/trucks.txt"), HasSubstr("Manufacturing"));
  EXPECT_THAT(app.bytes("results/trucks.txt"), HasSubstr("district"));
  EXPECT_THAT(app.names_in("truck"), ElementsAre("Err.txt", "output.exe", "tontotruck.exe"));
}

INSTANTIATE_TEST_SUITE_P(EachMode, CommercialMode,
                         ::testing::Values("Option4(0)", "Option4(1)", "Option4(2)"));

TEST_F(CommercialJourney, a_conversion_makes_trip_files_that_the_next_run_takes) {
  const auto before = app.names_in("sample");
  convert();
  EXPECT_EQ(last_box(), "Analysis Completed");
  std::vector<std::string> made;
  const auto after = app.names_in("sample");
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(made));
  ASSERT_FALSE(made.empty());
  EXPECT_THAT(made, Each(::testing::EndsWith("_trip.txt")));
  open_commercial_page();
  pick("Command1(2)", "sample/" + made.front());
  pick("Command5", "results/converted.txt");
  run();
  EXPECT_EQ(last_box(), "Analysis Completed");
  EXPECT_THAT(app.bytes("results/converted.txt"), HasSubstr("Mining"));
}

TEST_F(CommercialJourney, a_commuter_run_follows_a_commercial_one) {
  open_commercial_page();
  pick("Command1(2)", "sample/trips_Mining.txt");
  pick("Command5", "results/trucks.txt");
  run();
  open_commuter_page();
  pick("Command10(2)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_THAT(app.names_in("results"), ElementsAre("sales.txt", "trucks.txt"));
}

}  // namespace
