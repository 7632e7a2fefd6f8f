// The buttons of the truck page, and what its layout and that of the commercial page do where the form has no
// control.
#include "commercial_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

using TruckPage = testing_aids::CommercialPage;

TEST_F(TruckPage, the_gaps_of_its_control_arrays_are_passed_over_without_a_word) {
  analyst.choose("mnu_tonstotrucks");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  EXPECT_EQ(program.desktop.err.number, 0);
  for (int index = 1; index <= 9; ++index) {
    const std::string element = "(" + std::to_string(index) + ")";
    EXPECT_FALSE(analyst.sees("Command1" + element)) << index;
    EXPECT_EQ(analyst.sees("Text1" + element), index == 5) << index;
  }
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
}

TEST_F(TruckPage, the_gaps_of_the_control_arrays_meet_nobody_on_the_commercial_page) {
  open_commercial_page();
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  EXPECT_EQ(program.desktop.err.number, 0);
}

TEST_F(TruckPage, comes_as_designed_after_the_commercial_page_and_the_other_way_round) {
  open_commercial_page();
  analyst.click("Command3");
  analyst.choose("mnu_tonstotrucks");
  EXPECT_TRUE(analyst.can_use("Command13"));
  EXPECT_FALSE(analyst.sees("Frame1"));
  EXPECT_FALSE(analyst.sees("Text2"));
  analyst.click("Command14");
  open_commercial_page();
  EXPECT_TRUE(analyst.sees("Frame1"));
  EXPECT_TRUE(analyst.sees("Text2"));
  EXPECT_FALSE(analyst.sees("Command13"));
  EXPECT_FALSE(analyst.sees("Text7"));
}

TEST_F(TruckPage, opens_without_a_number_of_zones) {
  app.sql("UPDATE zones SET numzones = 0");
  analyst.choose("mnu_tonstotrucks");
  EXPECT_TRUE(analyst.can_use("Command13"));
}

TEST_F(TruckPage, its_quit_leads_back_to_the_first_step_and_forgets_what_was_picked) {
  analyst.choose("mnu_tonstotrucks");
  pick("Command15", "sample/commodity.txt");
  pick("Command4(5)", "sample/imp_time.txt");
  program.form3.OutputFile = "left by a conversion";
  analyst.click("Command14");
  EXPECT_EQ(left(),
            "forms:\nopen files:\nnew levels: 0\ndirectory: .\npicks:\nmenus: Inputs Run spec_timdist\n");
  EXPECT_THAT(app.rows("SELECT TonsFile FROM Anfiles"), ElementsAre(in_app("sample/commodity.txt")));
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"), ElementsAre(in_app("sample/imp_time.txt")));
}

TEST_F(TruckPage, its_picks_put_out_their_buttons_until_the_page_opens_again) {
  analyst.choose("mnu_tonstotrucks");
  pick("Command15", "sample/commodity.txt");
  pick("Command4(5)", "sample/distance.txt");
  EXPECT_FALSE(analyst.can_use("Command15"));
  EXPECT_FALSE(analyst.can_use("Command4(5)"));
  EXPECT_TRUE(program.form3->Text7.bold());
  analyst.click("Command14");
  analyst.choose("mnu_tonstotrucks");
  EXPECT_TRUE(analyst.can_use("Command15"));
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
}

TEST_F(TruckPage, a_commodity_file_that_does_not_exist_is_refused) {
  analyst.choose("mnu_tonstotrucks");
  analyst.will_choose_file(in_app("sample/none.txt"));
  analyst.will_press("OK");
  analyst.click("Command15");
  EXPECT_EQ(last_box(), "File does not exist!");
  EXPECT_TRUE(analyst.can_use("Command15"));
}

TEST_F(TruckPage, a_conversion_leaves_its_commodity_file_as_the_output_file_of_the_next_run) {
  run_button = "Command13";
  app.put_stand_in("truck/tontotruck.exe");
  analyst.choose("mnu_tonstotrucks");
  pick("Command15", "sample/commodity.txt");
  press_and_answer({"OK"});
  open_commercial_page();
  EXPECT_EQ(program.form3.OutputFile, in_app("sample/commodity.txt"));
  EXPECT_FALSE(analyst.can_use("Command2")) << "it opens the run's button for nobody";
}

// The index of the last pick outlives its page, so the next page looks for a trip row of that index.
class TripPickAfterOccupation : public testing_aids::CommercialPage,
                                public ::testing::WithParamInterface<int> {};

TEST_P(TripPickAfterOccupation, finds_no_box_and_stays_out_of_reach_until_the_program_is_started_again) {
  const std::string index = std::to_string(GetParam());
  open_commuter_page();
  pick("Command10(" + index + ")", "sample/commute_Sales.txt");
  analyst.click("Command3");
  for (int opening = 0; opening < 2; ++opening) {
    open_commercial_page();
    analyst.will_press("OK");
    analyst.click("Command1(2)");
    EXPECT_THAT(shown(), ElementsAre("Control array element '" + index + "' does not exist [OK]"));
    EXPECT_EQ(program.form3.PickCount, 0);
    EXPECT_TRUE(analyst.can_use("Command1(2)"));
    analyst.click("Command3");
  }
}

INSTANTIATE_TEST_SUITE_P(, TripPickAfterOccupation, ::testing::Values(3, 10, 11),
                         [](const auto& index) { return "of_index_" + std::to_string(index.param); });

TEST_F(TruckPage, a_trip_pick_after_an_occupation_whose_index_has_a_box_starts_there) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  analyst.click("Command3");
  open_commercial_page();
  pick("Command1(2)", mining);
  EXPECT_EQ(analyst.boxes().back().directory, in_app("sample"));
  EXPECT_EQ(program.form3.PickCode(1), "2");
}

TEST_F(TruckPage, comes_to_the_application_directory_before_it_opens_the_database) {
  std::filesystem::current_path(app.file("results"));
  analyst.choose("mnu_tonstotrucks");
  EXPECT_TRUE(analyst.sees("Command13"));
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

}  // namespace
