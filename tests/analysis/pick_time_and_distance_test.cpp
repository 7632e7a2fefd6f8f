#include "pick_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TimeOrDistancePick : public testing_aids::PickTest {
 protected:
  TimeOrDistancePick() { analyst.choose("spec_timdist"); }
  std::vector<std::string> timdist() { return app.rows("select * from timdist"); }
};

TEST_F(TimeOrDistancePick, its_dialog_bears_the_files_stem_and_opens) {
  std::vector<std::string> titles;
  for (const char* button : {"Command4(5)", "Command4(6)", "Command4(7)"}) {
    cancel(button);
    titles.push_back(dialog().title);
  }
  EXPECT_THAT(titles, ElementsAre("Select distance File", "Select base_time File", "Select imp_time File"));
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(accept_button, "&Open");
}

TEST_F(TimeOrDistancePick, a_good_one_fills_the_box_and_its_own_entry_and_counts_nothing) {
  pick("Command4(6)", "sample/imp_time.txt");
  EXPECT_EQ(program.form3->Text1(6).text(), path("sample/imp_time.txt"));
  EXPECT_EQ(look(program.form3->Text1(6)), picked);
  EXPECT_FALSE(program.form3->Command4(6).is_enabled());
  EXPECT_EQ(program.form3.PickCode(6), "6");
  EXPECT_EQ(program.form3.PickPath(6), path("sample/imp_time.txt"));
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(program.form3.LastPickIndex, 0);
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TimeOrDistancePick, begins_no_transaction) {
  cancel("Command4(5)");
  pick("Command4(5)", "sample/distance.txt");
  EXPECT_EQ(open_levels(), 0);
}

TEST_F(TimeOrDistancePick, each_reaches_its_own_field) {
  pick("Command4(5)", "sample/trips_Mining.txt");
  pick("Command4(6)", "sample/trips_Service.txt");
  pick("Command4(7)", "sample/trips_Agriculture.txt");
  analyst.click("Command3");
  EXPECT_THAT(timdist(),
              ElementsAre(path("sample/trips_Mining.txt") + "|" + path("sample/trips_Service.txt") + "|" +
                          path("sample/trips_Agriculture.txt")));
}

TEST_F(TimeOrDistancePick, of_a_file_that_does_not_exist_is_refused_with_a_blank_before_the_mark) {
  pick_with_box("Command4(5)", "results/nosuch.txt");
  EXPECT_THAT(messages(), ElementsAre("File does not exist !"));
  EXPECT_EQ(program.form3->Text1(5).text(), "sample/distance.txt");
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
  EXPECT_EQ(program.form3.PickCode(5), "");
}

TEST_F(TimeOrDistancePick, of_a_long_extension_shows_the_box_of_the_check_and_stores_nothing) {
  app.put_file("results/distance.text", "");
  pick_with_box("Command4(5)", "results/distance.text");
  EXPECT_THAT(messages(),
              ElementsAre("The following file extension is too long.\n" + path("results/distance") +
                          "\nExtensions must have 3 characters or less."));
  EXPECT_EQ(program.form3->Text1(5).text(), "sample/distance.txt");
  EXPECT_EQ(program.form3.PickPath(5), "");
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
  EXPECT_EQ(cdbox1().file_name, "");
}

TEST_F(TimeOrDistancePick, with_a_blank_in_its_name_is_refused) {
  app.put_file("results/my distance.txt", "");
  pick_with_box("Command4(5)", "results/my distance.txt");
  EXPECT_EQ(messages().size(), 1U);
  EXPECT_EQ(program.form3->Text1(5).text(), "sample/distance.txt");
  EXPECT_EQ(cdbox1().file_name, "");
}

TEST_F(TimeOrDistancePick, takes_a_file_of_another_short_extension) {
  app.put_file("results/distance.dat", "");
  pick("Command4(5)", "results/distance.dat");
  EXPECT_EQ(program.form3.PickPath(5), path("results/distance.dat"));
}

TEST_F(TimeOrDistancePick, cancelled_gives_the_text_box_its_look_back) {
  program.form3->Text1(5).set_bold(true);
  program.form3->Text1(5).set_enabled(true);
  cancel("Command4(5)");
  EXPECT_EQ(look(program.form3->Text1(5)), cancelled);
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TimeOrDistancePick, opens_at_its_own_box_also_after_a_pick_elsewhere) {
  app.put_file("results/distance.txt", "");
  pick("Command4(5)", "results/distance.txt");
  cancel("Command4(6)");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "base_time.txt");
}

TEST_F(TimeOrDistancePick, proposes_the_whole_text_of_a_path_without_a_separator) {
  as_handler([this] { program.form3->Text1(5).set_text("plain.txt"); });
  cancel("Command4(5)");
  EXPECT_EQ(dialog().directory, app.path());
  EXPECT_EQ(dialog().text, "plain.txt");
}

TEST_F(TimeOrDistancePick, an_empty_box_empties_the_proposal_and_keeps_the_directory_of_before) {
  cancel("Command4(5)");
  as_handler([this] { program.form3->Text1(6).set_text(""); });
  cancel("Command4(6)");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "");
}

TEST_F(TimeOrDistancePick, makes_its_text_box_visible) {
  program.form3->Text1(5).set_visible(false);
  cancel("Command4(5)");
  EXPECT_TRUE(program.form3->Text1(5).visible());
}

TEST_F(TimeOrDistancePick, shares_its_entry_with_a_fifth_occupation) {
  analyst.click("Command3");
  open_commuter_page();
  program.form3.PickCount = 4;
  pick("Command10(7)", "sample/commute_Sales.txt");
  EXPECT_EQ(program.form3.PickCode(5), "7");
  analyst.click("Command3");
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/distance.txt");
  EXPECT_EQ(program.form3.PickCode(5), "5");
}

}  // namespace
