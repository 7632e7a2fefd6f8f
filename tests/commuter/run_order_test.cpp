// The order of the checks, the question, and what a second press finds.
#include "commuter_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CommuterOrder : public testing_aids::CommuterPage {
 protected:
  std::string told() const { return shown().empty() ? "" : shown().front().substr(0, 20); }

  void press_and_expect(const std::string& start_of_message) {
    press_and_answer({"OK"});
    EXPECT_EQ(told(), start_of_message);
  }

  void without_zones() {
    by_code([this] { program.form2.unload_without_storing(); });
    app.sql("UPDATE zones SET numzones = 0");
  }
};

TEST_F(CommuterOrder, asks_for_output_then_occupation_then_reliability_then_time_files) {
  std::filesystem::remove(app.file("sample/distance.txt"));
  open_commuter_page();
  by_code([this] { program.form3->Option4(0).set_value(false); });
  analyst.click("Check1");
  press_and_expect("No Output File Speci");
  pick("Command12", "results/sales.txt");
  press_and_expect("Must have at least o");
  pick("Command10(7)", sales);
  press_and_expect("Please select an opt");
  analyst.click("Option4(0)");
  press_and_expect("file sample/distance");
}

TEST_F(CommuterOrder, asks_for_zones_before_all_else) {
  open_commuter_page();
  without_zones();
  press_and_expect("The number of zones ");
}

TEST_F(CommuterOrder, asks_for_time_files_before_the_district_file) {
  make_ready();
  std::filesystem::remove(app.file("sample/distance.txt"));
  analyst.click("Check1");
  press_and_expect("file sample/distance");
}

TEST_F(CommuterOrder, asks_for_the_district_file_before_the_number_of_districts_and_the_occupation_files) {
  app.sql("UPDATE zones SET numdstrct = 0");
  app.put_file("sample/first.txt", "");
  open_commuter_page();
  pick("Command10(0)", "sample/first.txt");
  pick("Command12", "results/sales.txt");
  std::filesystem::remove(app.file("sample/first.txt"));
  analyst.click("Check1");
  press_and_expect("File  not Found or n");
}

TEST_F(CommuterOrder, asks_for_the_number_of_districts_before_the_occupation_files) {
  app.sql("UPDATE zones SET numdstrct = 0");
  app.put_file("sample/first.txt", "");
  open_commuter_page();
  pick("Command10(0)", "sample/first.txt");
  pick("Command12", "results/sales.txt");
  std::filesystem::remove(app.file("sample/first.txt"));
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  press_and_expect("Please specify numbe");
}

TEST_F(CommuterOrder, writes_the_speeds_before_anything_further_is_checked) {
  make_ready();
  std::filesystem::remove(app.file("sample/distance.txt"));
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 38            .42 \r\n");
}

TEST_F(CommuterOrder, shows_each_further_occupation_on_a_line_of_its_own) {
  open_commuter_page();
  pick("Command10(7)", sales);
  pick("Command10(2)", sales);
  pick("Command10(11)", sales);
  pick("Command12", "results/sales.txt");
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre("The Number of Zones= 24\nThe Number of Districts= 0\n"
                                   "The occupations are Sales\n Executive,Admin,Managerial\n Other_Services\n"
                                   "Do you wish to continue? [Yes, No]"));
}

TEST_F(CommuterOrder, asks_with_the_parameter_and_number_forms_gone_and_the_files_closed) {
  make_ready();
  std::string at_the_question;
  analyst.when_box_shows = [&](const analyst::Box&) { at_the_question = left(); };
  press_and_answer({"No"});
  EXPECT_EQ(at_the_question, R"(forms: Form3*
open files:
new levels: 0
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterOrder, keeps_the_page_and_the_files_after_no) {
  make_ready();
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
  EXPECT_TRUE(analyst.can_use("Command11"));
  EXPECT_TRUE(model_files().contains("ccpar2.txt"));
}

TEST_F(CommuterOrder, writes_every_file_anew_when_the_button_is_pressed_again_after_no) {
  make_ready();
  press_and_answer({"No"});
  const auto first = model_files();
  for (const auto& [name, bytes] : first)
    app.put_file("commuter/" + name, "left from before, and longer\r\n");
  app.sql("UPDATE commuter SET sigma = 12.5 WHERE \"index\" = 7");
  press_and_answer({"No"});
  auto expected = first;
  expected["sig7.txt"] = " 12.5 \r\n";
  EXPECT_EQ(model_files(), expected);
}

TEST_F(CommuterOrder, runs_to_its_end_when_the_button_is_pressed_again_after_no) {
  make_ready();
  press_and_answer({"No"});
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, "Analysis Completed [OK]"));
}

TEST_F(CommuterOrder, takes_an_option_that_is_changed_after_no) {
  make_ready();
  press_and_answer({"No"});
  analyst.click("Option4(2)");
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nNONE\r\n0\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterOrder, counts_the_picks_of_a_page_that_a_missing_time_file_closed) {
  make_ready();
  std::filesystem::rename(app.file("sample/distance.txt"), app.file("sample/gone.txt"));
  press_and_answer({"OK"});
  std::filesystem::rename(app.file("sample/gone.txt"), app.file("sample/distance.txt"));
  analyst.choose("spec_comm");
  EXPECT_TRUE(analyst.can_use("Command10(7)"));
  pick("Command10(7)", sales);
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre("The Number of Zones= 24\nThe Number of Districts= 0\n"
                                   "The occupations are Sales\n Sales\nDo you wish to continue? [Yes, No]"));
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nDB\r\n0\r\n 2 \r\n7\r\n7\r\n");
}

TEST_F(CommuterOrder, the_page_that_opens_after_a_missing_time_file_needs_no_pick_at_all) {
  make_ready();
  std::filesystem::rename(app.file("sample/distance.txt"), app.file("sample/gone.txt"));
  press_and_answer({"OK"});
  std::filesystem::rename(app.file("sample/gone.txt"), app.file("sample/distance.txt"));
  analyst.choose("spec_comm");
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
}

TEST_F(CommuterOrder, an_occupation_is_picked_once_on_a_page) {
  make_ready();
  EXPECT_TRUE(analyst.sees("Command10(7)"));
  EXPECT_FALSE(analyst.can_use("Command10(7)"));
  EXPECT_THAT(analyst.complaints(), IsEmpty());
}

}  // namespace
