#include "pick_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TripPick : public testing_aids::PickTest {
 protected:
  TripPick() { show_form(); }
};

TEST_F(TripPick, its_dialog_bears_the_industrys_name) {
  std::vector<std::string> titles;
  for (const char* index : {"1", "2", "4", "9"}) {
    cancel("Command1(" + std::string(index) + ")");
    titles.push_back(dialog().title);
  }
  EXPECT_THAT(titles, ElementsAre("Select Agriculture Trip File", "Select Mining Trip File",
                                  "Select Manufacturing Trip File", "Select Service Trip File"));
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(cdbox1().flags, 8);
  EXPECT_EQ(accept_button, "&Save");
}

TEST_F(TripPick, all_labels_of_the_family_are_set_at_each_pick) {
  cancel("Command1(4)");
  EXPECT_EQ(program.form3.PickLabel(1), "Agriculture");
  EXPECT_EQ(program.form3.PickLabel(2), "Mining");
  EXPECT_EQ(program.form3.PickLabel(4), "Manufacturing");
  EXPECT_EQ(program.form3.PickLabel(9), "Service");
}

TEST_F(TripPick, a_good_one_fills_the_box_and_adds_an_entry) {
  pick("Command1(4)", "sample/trips_Mining.txt");
  pick("Command1(2)", "sample/trips_Service.txt");
  EXPECT_EQ(program.form3->Text1(4).text(), path("sample/trips_Mining.txt"));
  EXPECT_EQ(look(program.form3->Text1(4)), picked);
  EXPECT_FALSE(program.form3->Command1(4).is_enabled());
  EXPECT_EQ(program.form3.PickCount, 2);
  EXPECT_EQ(program.form3.LastPickIndex, 2);
  EXPECT_EQ(program.form3.PickCode(1), "4");
  EXPECT_EQ(program.form3.PickPath(1), path("sample/trips_Mining.txt"));
  EXPECT_EQ(program.form3.PickCode(2), "2");
  EXPECT_EQ(program.form3.PickPath(2), path("sample/trips_Service.txt"));
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(open_levels(), 0);
}

TEST_F(TripPick, reaches_the_table_when_the_form_unloads_and_not_before) {
  pick("Command1(4)", "results/new.txt");
  EXPECT_EQ(stored("Manfile"), "sample/trips_Manufacturing.txt");
  analyst.click("Command3");
  EXPECT_EQ(stored("Manfile"), path("results/new.txt"));
}

TEST_F(TripPick, accepts_a_name_that_does_not_exist_and_stores_it) {
  pick("Command1(1)", "results/nosuch.txt");
  EXPECT_EQ(program.form3->Text1(1).text(), path("results/nosuch.txt"));
  EXPECT_EQ(program.form3.PickPath(1), path("results/nosuch.txt"));
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TripPick, of_another_extension_is_refused_and_hides_its_box) {
  app.put_file("results/trips.dat", "");
  pick_with_box("Command1(1)", "results/trips.dat");
  EXPECT_THAT(messages(), ElementsAre("File does not exist or file does not have .txt extension!"));
  EXPECT_FALSE(program.form3->Text1(1).visible());
  EXPECT_EQ(program.form3->Text1(1).text(), "sample/trips_Agriculture.txt");
  EXPECT_TRUE(program.form3->Command1(1).is_enabled());
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(program.form3.LastPickIndex, 0);
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(TripPick, cancelled_after_one_of_another_extension_is_a_cancel) {
  pick_with_box("Command1(1)", "results/trips.dat");
  EXPECT_EQ(cdbox1().flags, 1024);
  analyst.forget_boxes();
  cancel("Command1(2)");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(cdbox1().flags, 8);
  EXPECT_EQ(look(program.form3->Text1(2)), cancelled);
}

TEST_F(TripPick, of_a_long_extension_gets_the_check_of_the_name_as_well) {
  analyst.will_choose_file(path("results/trips.data"));
  analyst.will_press("OK");
  analyst.will_press("OK");
  analyst.click("Command1(1)");
  EXPECT_THAT(messages(), ElementsAre("File does not exist or file does not have .txt extension!",
                                      "The following file extension is too long.\n" + path("results/trips") +
                                          "\nExtensions must have 3 characters or less."));
  EXPECT_EQ(program.form3.PickCount, 0);
}

TEST_F(TripPick, with_a_blank_in_its_name_gets_the_box_of_the_check_and_is_still_stored) {
  pick_with_box("Command1(1)", "results/my trips.txt");
  EXPECT_THAT(messages(), ElementsAre("The following file name and path contains a blank.\n" +
                                      path("results/my trips") + "\nFilenames must contain no blanks."));
  EXPECT_EQ(program.form3->Text1(1).text(), path("results/my trips.txt"));
  EXPECT_EQ(program.form3.PickPath(1), path("results/my trips.txt"));
  EXPECT_EQ(cdbox1().file_name, path("results/my trips.txt"));
  EXPECT_EQ(look(program.form3->Text1(1)), picked);
}

TEST_F(TripPick, cancelled_shows_no_box_and_gives_the_text_box_its_look_back) {
  program.form3->Text1(1).set_bold(true);
  program.form3->Text1(1).set_enabled(true);
  cancel("Command1(1)");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(look(program.form3->Text1(1)), cancelled);
  EXPECT_EQ(program.form3->Text1(1).text(), "sample/trips_Agriculture.txt");
  EXPECT_TRUE(program.form3->Command1(1).is_enabled());
  EXPECT_EQ(program.form3.PickCount, 0);
}

TEST_F(TripPick, cancelled_again_and_again_piles_up_transactions) {
  cancel("Command1(1)");
  cancel("Command1(1)");
  cancel("Command1(2)");
  EXPECT_EQ(open_levels(), 3);
  pick("Command1(1)", "results/a.txt");
  EXPECT_EQ(open_levels(), 3);
  analyst.click("Command3");
  EXPECT_EQ(stored("Agfile"), path("results/a.txt"));
}

TEST_F(TripPick, opens_in_the_directory_of_its_path_and_proposes_its_name) {
  cancel("Command1(2)");
  EXPECT_EQ(dialog().directory, path("sample"));
  EXPECT_EQ(dialog().text, "trips_Mining.txt");
}

TEST_F(TripPick, a_second_one_opens_where_the_first_was_made_and_proposes_its_own_name) {
  pick("Command1(2)", "results/a.txt");
  cancel("Command1(9)");
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "trips_Service.txt");
}

TEST_F(TripPick, understands_both_separators) {
  set_field("Agfile", "results\\old.txt");
  as_handler([this] { program.form3->Data1(0).Refresh(); });
  cancel("Command1(1)");
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "old.txt");
}

TEST_F(TripPick, a_first_one_of_an_empty_field_opens_without_a_file_name) {
  as_handler([this] { program.form3->Text1(1).set_text(""); });
  cancel("Command1(1)");
  EXPECT_EQ(dialog().directory, app.path());
  EXPECT_EQ(dialog().text, "");
}

TEST_F(TripPick, a_path_without_a_separator_gives_neither_directory_nor_name) {
  as_handler([this] { program.form3->Text1(1).set_text("plain.txt"); });
  cancel("Command1(1)");
  EXPECT_EQ(dialog().directory, app.path());
  EXPECT_EQ(dialog().text, "");
}

TEST_F(TripPick, after_a_last_occupation_3_10_or_11_addresses_a_box_that_does_not_exist) {
  for (const int last : {3, 10, 11}) {
    program.form3.LastPickIndex = static_cast<std::int16_t>(last);
    analyst.forget_boxes();
    analyst.will_press("OK");
    analyst.click("Command1(1)");
    EXPECT_THAT(analyst.texts(),
                ElementsAre("Control array element '" + std::to_string(last) + "' does not exist"));
    EXPECT_EQ(analyst.last_box().name, "MsgBox");
  }
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_TRUE(program.form3->Command1(1).is_enabled());
}

TEST_F(TripPick, the_last_index_survives_a_quit) {
  pick("Command1(9)", "results/a.txt");
  analyst.click("Command3");
  EXPECT_EQ(program.form3.LastPickIndex, 9);
  EXPECT_EQ(program.form3.PickLabel(9), "Service");
}

TEST_F(TripPick, starts_from_the_application_directory) {
  program.desktop.files.ChDir("truck");
  cancel("Command1(2)");
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
  EXPECT_EQ(dialog().directory, path("sample"));
}

}  // namespace
