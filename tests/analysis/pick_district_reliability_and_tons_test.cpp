#include "pick_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DistrictPick : public testing_aids::PickTest {
 protected:
  DistrictPick() {
    open_commuter_page();
    analyst.click("Check1");
  }
  void cancel_and_read_a_box() {
    analyst.will_cancel_file();
    analyst.will_press("OK");
    analyst.click("Command7");
  }
};

TEST_F(DistrictPick, has_its_title_filter_and_mode) {
  cancel_and_read_a_box();
  EXPECT_EQ(dialog().title, "Select district file name");
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(accept_button, "&Open");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "districts.txt");
}

TEST_F(DistrictPick, a_good_one_fills_the_box_and_names_the_district_file) {
  pick("Command7", "sample/distance.txt");
  EXPECT_EQ(program.form3->Text3.text(), path("sample/distance.txt"));
  EXPECT_EQ(look(program.form3->Text3), picked);
  EXPECT_FALSE(program.form3->Command7.is_enabled());
  EXPECT_EQ(program.form3.DistrictFile, path("sample/distance.txt"));
  EXPECT_EQ(program.form3.PickCount, 0);
  analyst.click("Command3");
  EXPECT_EQ(stored("Distrfile"), path("sample/distance.txt"));
}

TEST_F(DistrictPick, begins_two_transactions_and_commits_one) {
  pick("Command7", "sample/distance.txt");
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(DistrictPick, of_a_file_that_does_not_exist_is_refused) {
  pick_with_box("Command7", "results/nosuch.txt");
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
  EXPECT_EQ(program.form3.DistrictFile, "");
  EXPECT_TRUE(analyst.can_use("Command7"));
  EXPECT_EQ(open_levels(), 2);
}

TEST_F(DistrictPick, cancelled_before_any_other_pick_falls_through_to_the_test_of_the_file) {
  cancel_and_read_a_box();
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
  EXPECT_EQ(program.form3.DistrictFile, "");
}

TEST_F(DistrictPick, cancelled_takes_a_file_that_the_proposed_name_happens_to_find) {
  app.put_file("districts.txt", "");
  cancel("Command7");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(program.form3.DistrictFile, "districts.txt");
  EXPECT_EQ(look(program.form3->Text3), picked);
}

TEST_F(DistrictPick, cancelled_after_another_pick_of_the_same_load_is_a_cancel) {
  cancel("Command12");
  program.form3->Text3.set_bold(true);
  program.form3->Text3.set_enabled(true);
  cancel("Command7");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(look(program.form3->Text3), cancelled);
  EXPECT_EQ(open_levels(), 2);
}

TEST_F(DistrictPick, the_cancel_error_does_not_outlive_the_load) {
  cancel("Command12");
  analyst.click("Command3");
  open_commuter_page();
  analyst.click("Check1");
  cancel_and_read_a_box();
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
}

TEST_F(DistrictPick, a_path_without_a_separator_is_no_start_directory) {
  as_handler([this] { program.form3->Text3.set_text("truck"); });
  cancel_and_read_a_box();
  EXPECT_EQ(dialog().directory, app.path());
}

class ReliabilityPick : public testing_aids::PickTest {
 protected:
  ReliabilityPick() {
    open_commuter_page();
    analyst.click("Option4(1)");
  }
};

TEST_F(ReliabilityPick, has_the_title_of_an_output_and_a_stray_parenthesis_in_its_filter) {
  cancel("Command9");
  EXPECT_EQ(dialog().title, "Select output file name");
  EXPECT_EQ(cdbox1().filter, "(All files (*.*)|*.*");
  EXPECT_EQ(dialog().filter, "(All files (*.*) (*)");
  EXPECT_EQ(accept_button, "&Save");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "reliability.txt");
}

TEST_F(ReliabilityPick, a_good_one_fills_the_box_and_no_variable) {
  pick("Command9", "sample/distance.txt");
  EXPECT_EQ(program.form3->Text4.text(), path("sample/distance.txt"));
  EXPECT_EQ(look(program.form3->Text4), picked);
  EXPECT_FALSE(program.form3->Command9.is_enabled());
  EXPECT_EQ(open_levels(), 0);
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(program.form3.DistrictFile + program.form3.OutputFile, "");
  analyst.click("Command3");
  EXPECT_EQ(stored("relFile"), path("sample/distance.txt"));
}

TEST_F(ReliabilityPick, of_a_file_that_does_not_exist_is_refused) {
  pick_with_box("Command9", "results/nosuch.txt");
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
  EXPECT_EQ(program.form3->Text4.text(), "sample/reliability.txt");
  EXPECT_TRUE(analyst.can_use("Command9"));
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(ReliabilityPick, cancelled_gives_the_text_box_its_look_back_and_leaves_its_transaction) {
  program.form3->Text4.set_visible(false);
  program.form3->Text4.set_bold(true);
  cancel("Command9");
  EXPECT_EQ(look(program.form3->Text4), cancelled);
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(ReliabilityPick, starts_in_the_whole_text_when_that_has_no_separator) {
  as_handler([this] { program.form3->Text4.set_text("truck"); });
  cancel("Command9");
  EXPECT_EQ(dialog().directory, path("truck"));
}

class CommodityPick : public testing_aids::PickTest {
 protected:
  CommodityPick() {
    show_form();
    program.form3->Command15.set_visible(true);
  }
};

TEST_F(CommodityPick, has_the_present_path_in_front_of_its_filter) {
  cancel("Command15");
  EXPECT_EQ(dialog().title, "Select commodity file name");
  EXPECT_EQ(cdbox1().filter, "sample/commodity.txt(*.txt)|*.txt|All files (*.*)|*.*");
  EXPECT_EQ(dialog().filter, "sample/commodity.txt(*.txt) (*.txt)");
  EXPECT_EQ(accept_button, "&Save");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "commodity.txt");
}

TEST_F(CommodityPick, a_good_one_fills_the_box_and_no_variable) {
  pick("Command15", "sample/distance.txt");
  EXPECT_EQ(program.form3->Text7.text(), path("sample/distance.txt"));
  EXPECT_EQ(look(program.form3->Text7), picked);
  EXPECT_FALSE(program.form3->Command15.is_enabled());
  EXPECT_EQ(open_levels(), 0);
  EXPECT_EQ(program.form3.PickCount, 0);
  analyst.click("Command3");
  EXPECT_EQ(stored("TonsFile"), path("sample/distance.txt"));
}

TEST_F(CommodityPick, of_a_file_that_does_not_exist_is_refused) {
  pick_with_box("Command15", "results/nosuch.txt");
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
  EXPECT_TRUE(program.form3->Command15.is_enabled());
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(CommodityPick, cancelled_gives_the_text_box_its_look_back) {
  program.form3->Text7.set_bold(true);
  cancel("Command15");
  EXPECT_EQ(look(program.form3->Text7), cancelled);
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(open_levels(), 1);
}

}  // namespace
