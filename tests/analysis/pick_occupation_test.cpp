#include "pick_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OccupationPick : public testing_aids::PickTest {
 protected:
  OccupationPick() {
    open_commuter_page();
    analyst.forget_boxes();
  }
  static std::string button(int index) { return "Command10(" + std::to_string(index) + ")"; }
};

TEST_F(OccupationPick, its_dialog_bears_the_occupations_name) {
  std::vector<std::string> titles;
  for (int index = 0; index <= 11; ++index) {
    cancel(button(index));
    titles.push_back(dialog().title);
  }
  EXPECT_THAT(
      titles,
      ElementsAre("Select Precision_Production Trip File", "Select Transportation Trip File",
                  "Select Executive,Admin,Managerial Trip File", "Select Technician Trip File",
                  "Select Operators,Assemblers,Inspectors Trip File", "Select Protective Services Trip File",
                  "Select Handlers,Cleaners,Laborers Trip File", "Select Sales Trip File",
                  "Select Professional_Specialty Trip File", "Select Admin_Support Trip File",
                  "Select Private_Household_Services Trip File", "Select Other_Services Trip File"));
  EXPECT_EQ(cdbox1().filter, usual_filter);
  EXPECT_EQ(accept_button, "&Save");
  EXPECT_EQ(program.form3.PickLabel(12), "");
}

TEST_F(OccupationPick, all_labels_of_the_family_are_set_at_each_pick) {
  cancel(button(0));
  EXPECT_EQ(program.form3.PickLabel(11), "Other_Services");
}

TEST_F(OccupationPick, a_good_one_fills_the_box_and_adds_an_entry) {
  pick(button(7), "sample/commute_Service.txt");
  pick(button(0), "sample/commute_Sales.txt");
  EXPECT_EQ(program.form3->Text5(7).text(), path("sample/commute_Service.txt"));
  EXPECT_EQ(look(program.form3->Text5(7)), picked);
  EXPECT_FALSE(program.form3->Command10(7).is_enabled());
  EXPECT_EQ(program.form3.PickCount, 2);
  EXPECT_EQ(program.form3.LastPickIndex, 0);
  EXPECT_EQ(program.form3.PickCode(1), "7");
  EXPECT_EQ(program.form3.PickPath(1), path("sample/commute_Service.txt"));
  EXPECT_EQ(program.form3.PickCode(2), "0");
  EXPECT_EQ(open_levels(), 0);
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(OccupationPick, reaches_the_field_of_its_occupation) {
  static constexpr const char* fields[] = {
      "Prodfile",    "Tranfile",   "Execfile",     "Techfile",   "Machfile",       "Protectfile",
      "Laborerfile", "Salesfiles", "Professfiles", "Adminfiles", "Housekeepfiles", "Occservicefiles"};
  for (int index = 0; index <= 11; ++index) {
    app.put_file("results/" + std::to_string(index) + ".txt", "");
    pick(button(index), "results/" + std::to_string(index) + ".txt");
  }
  analyst.click("Command3");
  for (int index = 0; index <= 11; ++index) {
    EXPECT_EQ(stored(fields[index]), path("results/" + std::to_string(index) + ".txt")) << fields[index];
  }
}

TEST_F(OccupationPick, of_a_file_that_does_not_exist_is_refused) {
  pick_with_box(button(3), "results/nosuch.txt");
  EXPECT_THAT(messages(), ElementsAre("File does not exist!"));
  EXPECT_EQ(program.form3->Text5(3).text(), "sample/commute_Technicians_and_Related_Support.txt");
  EXPECT_TRUE(program.form3->Command10(3).is_enabled());
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(OccupationPick, checks_no_name) {
  app.put_file("results/my file.data", "");
  pick(button(3), "results/my file.data");
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(program.form3.PickPath(1), path("results/my file.data"));
}

TEST_F(OccupationPick, cancelled_gives_the_text_box_its_look_back) {
  program.form3->Text5(3).set_bold(true);
  program.form3->Text5(3).set_enabled(true);
  cancel(button(3));
  EXPECT_EQ(look(program.form3->Text5(3)), cancelled);
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(open_levels(), 1);
}

TEST_F(OccupationPick, does_not_make_its_text_box_visible) {
  program.form3->Text5(3).set_visible(false);
  pick(button(3), "sample/commute_Sales.txt");
  EXPECT_EQ(look(program.form3->Text5(3)), "hidden enabled locked bold");
}

TEST_F(OccupationPick, opens_at_the_box_of_the_last_pick_when_that_has_a_text) {
  app.put_file("results/a.txt", "");
  pick(button(3), "results/a.txt");
  cancel(button(5));
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "commute_Protective_Service.txt");
}

TEST_F(OccupationPick, opens_at_its_own_box_when_that_of_the_last_pick_is_empty) {
  as_handler([this] {
    program.form3->Text5(0).set_text("");
    program.form3->Text5(5).set_text("results/mine.txt");
  });
  cancel(button(5));
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_EQ(dialog().text, "mine.txt");
}

TEST_F(OccupationPick, a_first_one_opens_at_the_box_with_index_0) {
  as_handler([this] { program.form3->Text5(0).set_text("results/first.txt"); });
  cancel(button(5));
  EXPECT_EQ(dialog().directory, path("results"));
}

TEST_F(OccupationPick, the_last_index_of_a_trip_pick_addresses_an_occupation) {
  as_handler([this] { program.form3->Text5(9).set_text("results/nine.txt"); });
  program.form3.LastPickIndex = 9;
  cancel(button(1));
  EXPECT_EQ(dialog().directory, path("results"));
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(OccupationPick, the_thirteenth_fills_the_last_entry) {
  program.form3.PickCount = 12;
  pick(button(11), "sample/commute_Sales.txt");
  EXPECT_EQ(program.form3.PickCount, 13);
  EXPECT_EQ(program.form3.PickCode(13), "11");
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(OccupationPick, a_fourteenth_fails_on_the_bounds_and_stays_counted) {
  program.form3.PickCount = 13;
  pick_with_box(button(11), "sample/commute_Sales.txt");
  EXPECT_THAT(messages(), ElementsAre("Subscript out of range"));
  EXPECT_EQ(program.form3.PickCount, 14);
  EXPECT_EQ(program.form3.PickCode(13), "");
  EXPECT_FALSE(program.form3->Command10(11).is_enabled());
  analyst.click("Command3");
  EXPECT_EQ(program.form3.PickCount, 0);
}

TEST_F(OccupationPick, only_twelve_labelled_buttons_can_be_pressed) {
  int usable = 0;
  for (int index = 0; index <= 12; ++index) usable += analyst.can_use(button(index)) ? 1 : 0;
  EXPECT_EQ(usable, 12);
}

TEST_F(OccupationPick, comes_to_the_application_directory_before_its_dialog) {
  program.desktop.files.ChDir("truck");
  cancel(button(1));
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

}  // namespace
