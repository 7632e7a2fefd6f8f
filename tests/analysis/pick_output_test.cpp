#include "pick_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The output file of the commercial page.
class CommercialOutputPick : public testing_aids::PickTest {
 protected:
  CommercialOutputPick() { show_form(); }
};

TEST_F(CommercialOutputPick, has_its_title_filter_and_mode) {
  cancel("Command5");
  EXPECT_EQ(dialog().title, "Select output file name");
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(accept_button, "&Save");
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "commercial.txt");
}

TEST_F(CommercialOutputPick, a_good_one_fills_the_box_and_opens_the_run) {
  EXPECT_FALSE(program.form3->Command2.is_enabled());
  pick("Command5", "results/new.txt");
  EXPECT_EQ(program.form3->Text2.text(), path("results/new.txt"));
  EXPECT_EQ(look(program.form3->Text2), picked);
  EXPECT_TRUE(program.form3->Command2.is_enabled());
  EXPECT_EQ(program.form3.OutputFile, path("results/new.txt"));
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(CommercialOutputPick, can_be_made_again_on_the_same_screen) {
  pick("Command5", "results/new.txt");
  pick("Command5", "results/newer.txt");
  EXPECT_EQ(program.form3.OutputFile, path("results/newer.txt"));
}

TEST_F(CommercialOutputPick, its_transaction_is_never_committed_and_hides_no_work) {
  pick("Command5", "results/new.txt");
  EXPECT_EQ(open_levels(), 1);
  cancel("Command5");
  EXPECT_EQ(open_levels(), 2);
  analyst.click("Command3");
  EXPECT_EQ(stored("foutfile"), path("results/new.txt"));
}

TEST_F(CommercialOutputPick, its_transaction_is_not_that_of_the_shared_procedures) {
  cancel("Command5");
  EXPECT_EQ(program.SharedWorkspace, nullptr);
}

TEST_F(CommercialOutputPick, in_a_directory_that_does_not_exist_is_refused) {
  pick_with_box("Command5", "nosuch/new.txt");
  EXPECT_THAT(messages(), ElementsAre("Directory " + path("nosuch") + " does not exist!"));
  EXPECT_EQ(program.form3->Text2.text(), "results/commercial.txt");
  EXPECT_EQ(program.form3.OutputFile, "");
  EXPECT_FALSE(program.form3->Command2.is_enabled());
}

TEST_F(CommercialOutputPick, gets_the_check_of_its_name_after_it_is_stored) {
  pick_with_box("Command5", "results/my new.txt");
  EXPECT_THAT(messages(), ElementsAre("The following file name and path contains a blank.\n" +
                                      path("results/my new") + "\nFilenames must contain no blanks."));
  EXPECT_EQ(program.form3.OutputFile, path("results/my new.txt"));
  EXPECT_EQ(program.form3->Text2.text(), path("results/my new.txt"));
}

TEST_F(CommercialOutputPick, proposes_the_whole_text_of_a_path_without_a_separator) {
  as_handler([this] { program.form3->Text2.set_text("plain.txt"); });
  cancel("Command5");
  EXPECT_EQ(dialog().text, "plain.txt");
  EXPECT_EQ(dialog().directory, app.path());
}

TEST_F(CommercialOutputPick, cancelled_shows_its_box_as_before) {
  program.form3->Text2.set_bold(true);
  cancel("Command5");
  EXPECT_EQ(look(program.form3->Text2), cancelled);
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_FALSE(program.form3->Command2.is_enabled());
}

/// The output file of the commuter page.
class CommuterOutputPick : public testing_aids::PickTest {
 protected:
  CommuterOutputPick() { open_commuter_page(); }
};

TEST_F(CommuterOutputPick, has_its_title_filter_and_mode) {
  cancel("Command12");
  EXPECT_EQ(dialog().title, "Select output file name");
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(accept_button, "&Save");
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "commuter.txt");
}

TEST_F(CommuterOutputPick, a_good_one_fills_the_box_and_enables_the_other_markets_run) {
  pick("Command12", "results/new.txt");
  EXPECT_EQ(program.form3->Text6.text(), path("results/new.txt"));
  EXPECT_EQ(look(program.form3->Text6), picked);
  EXPECT_TRUE(program.form3->Command2.is_enabled());
  EXPECT_FALSE(program.form3->Command2.visible());
  EXPECT_EQ(program.form3.OutputFile, path("results/new.txt"));
  EXPECT_TRUE(analyst.can_use("Command12"));
}

TEST_F(CommuterOutputPick, begins_no_transaction) {
  cancel("Command12");
  pick("Command12", "results/new.txt");
  EXPECT_EQ(open_levels(), 0);
}

TEST_F(CommuterOutputPick, reaches_the_table_though_three_boxes_show_its_field) {
  pick("Command12", "results/new.txt");
  EXPECT_EQ(program.form3->Text5(12).text(), "results/commuter.txt");
  analyst.click("Command3");
  EXPECT_EQ(stored("OccOutfile"), path("results/new.txt"));
}

TEST_F(CommuterOutputPick, in_a_directory_that_does_not_exist_is_refused) {
  pick_with_box("Command12", "nosuch/new.txt");
  EXPECT_THAT(messages(), ElementsAre("Directory " + path("nosuch") + " does not exist!"));
  EXPECT_EQ(program.form3.OutputFile, "");
}

TEST_F(CommuterOutputPick, checks_no_name) {
  pick("Command12", "results/my new.data");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(program.form3.OutputFile, path("results/my new.data"));
}

TEST_F(CommuterOutputPick, starts_in_the_whole_text_when_that_has_no_separator) {
  as_handler([this] { program.form3->Text6.set_text("truck"); });
  cancel("Command12");
  EXPECT_EQ(dialog().directory, path("truck"));
  EXPECT_EQ(dialog().text, "");
}

TEST_F(CommuterOutputPick, makes_its_text_box_visible_and_a_cancel_disables_it) {
  program.form3->Text6.set_visible(false);
  program.form3->Text6.set_enabled(true);
  program.form3->Text6.set_bold(true);
  cancel("Command12");
  EXPECT_EQ(look(program.form3->Text6), cancelled);
}

}  // namespace
