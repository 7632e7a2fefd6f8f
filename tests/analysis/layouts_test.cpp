#include <QApplication>

#include "page_drawing.h"
#include "program_test.h"

namespace {

constexpr const char* no_zones = "The number of zones for this analysis has not been specified!";

class Layouts : public testing_aids::ProgramTest {
 protected:
  /// Leaves the number in the entry, unsaved.
  void type_zones(const std::string& digits) {
    analyst.choose("Zones");
    QApplication::setActiveWindow(&program.mdiform1.window());  // nobody hands it over after a box
    analyst.type("MaskEdBox1", digits);
    EXPECT_EQ(program.form2->MaskEdBox1.text(), digits + "___");
  }
  std::string drawing() { return testing_aids::drawn_page(program); }
};

using TimeAndDistancePage = Layouts;

TEST_F(TimeAndDistancePage, stands_as_laid_out) {
  analyst.choose("spec_timdist");
  EXPECT_EQ(drawing(), R"(Label2 "" 6840 1920 255 255
Text1(5) 0 400 4335 371 disabled
Command4(5) "Distance File" 4440 400 2175 375
Text1(6) 0 800 4335 371 disabled
Command4(6) "Base Time File" 4440 800 2175 375
Text1(7) 0 1200 4335 371 disabled
Command4(7) "Improvement Time File" 4440 1200 2175 375
Frame1 "Save or Quit" 0 1661 6510 1600
Line2 120 330 6270 30
Line3 120 1500 6270 30
Command8 "Save" 1200 880 1020 375
Command3 "Quit" 2320 880 1020 375
)");
  EXPECT_EQ(program.form3.caption(), "Specify Time and Distance Files");
  EXPECT_TRUE(program.form3.visible());
}

TEST_F(TimeAndDistancePage, has_no_control_beneath_another) {
  analyst.choose("spec_timdist");
  EXPECT_EQ(testing_aids::covered_controls(program), "");
}

TEST_F(TimeAndDistancePage, gives_the_second_save_the_place_of_the_run_button_and_leaves_it_hidden) {
  analyst.choose("spec_timdist");
  const auto& place = program.form3->Command6.place();
  EXPECT_EQ(place.left, 2880);
  EXPECT_EQ(place.top, 880);
  EXPECT_EQ(place.width, 2340);
  EXPECT_EQ(place.height, 375);
  EXPECT_FALSE(program.form3->Command6.visible());
}

TEST_F(TimeAndDistancePage, without_zones_shows_the_box_and_leaves_the_menus_off) {
  app.sql("update zones set numzones = 0");
  analyst.will_press("OK");
  analyst.choose("spec_timdist");
  EXPECT_EQ(last_box(), no_zones);
  EXPECT_FALSE(program.form3.loaded());
  EXPECT_FALSE(program.form2.visible());
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
  EXPECT_TRUE(analyst.item_enabled("Mnu_exit"));
}

TEST_F(TimeAndDistancePage, comes_to_the_application_directory_before_it_opens_the_database) {
  std::filesystem::current_path(app.file("results"));
  analyst.choose("spec_timdist");
  EXPECT_TRUE(analyst.sees("Command8"));
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

TEST_F(TimeAndDistancePage, takes_a_number_of_zones_that_is_null_for_none) {
  app.sql("update zones set numzones = null");
  analyst.will_press("OK");
  analyst.choose("spec_timdist");
  EXPECT_EQ(last_box(), no_zones);
}

TEST_F(TimeAndDistancePage, goes_by_the_number_in_the_box_and_not_by_the_stored_one) {
  type_zones("0");
  analyst.will_press("OK");
  analyst.choose("spec_timdist");
  EXPECT_EQ(last_box(), no_zones);
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(TimeAndDistancePage, opens_with_a_number_in_the_box_that_is_not_stored) {
  app.sql("update zones set numzones = 0");
  type_zones("9");
  analyst.choose("spec_timdist");
  EXPECT_TRUE(analyst.sees("Form3"));
}

TEST_F(TimeAndDistancePage, its_pick_buttons_are_disabled_by_a_good_pick_until_it_is_opened_again) {
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/distance.txt");
  EXPECT_TRUE(analyst.sees("Command4(5)"));
  EXPECT_FALSE(analyst.can_use("Command4(5)"));
  EXPECT_TRUE(analyst.can_use("Command4(6)"));
  analyst.click("Command3");
  analyst.choose("spec_timdist");
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
}

using CommuterPage = Layouts;

TEST_F(CommuterPage, stands_as_laid_out) {
  open_commuter_page();
  EXPECT_EQ(drawing(), R"(Label2 "commute" 6840 1920 255 255
Command5 "Output File" 4440 2580 2175 290
Text5(0) 0 0 4335 315 disabled
Command10(0) "Precision Production" 4440 0 2935 315
Text5(1) 0 320 4335 315 disabled
Command10(1) "Transportation" 4440 320 2935 315
Text5(2) 0 640 4335 315 disabled
Command10(2) "Executive,Admin,Managerial" 4440 640 2935 315
Text5(3) 0 960 4335 315 disabled
Command10(3) "Technician" 4440 960 2935 315
Text5(4) 0 1280 4335 315 disabled
Command10(4) "Operators,Assemblers,Inspectors" 4440 1280 2935 315
Text5(5) 0 1600 4335 315 disabled
Command10(5) "Protective Services" 4440 1600 2935 315
Text5(6) 0 1920 4335 315 disabled
Command10(6) "Handlers,Cleaners,Laborers" 4440 1920 2935 315
Text5(7) 0 2240 4335 315 disabled
Command10(7) "Sales" 4440 2240 2935 315
Text5(8) 0 2560 4335 315 disabled
Command10(8) "Professional Specialty" 4440 2560 2935 315
Text5(9) 0 2880 4335 315 disabled
Command10(9) "Admin Support" 4440 2880 2935 315
Text5(10) 0 3200 4335 315 disabled
Command10(10) "Private Household Services" 4440 3200 2935 315
Text5(11) 0 3520 4335 315 disabled
Command10(11) "Other Services" 4440 3520 2935 315
Text6 0 3841 4335 315 disabled
Command12 "Output File" 4440 3841 2935 315
Frame1 "Options" 0 4800 7270 1600
Label1 "Reliability " 120 390 2460 230
Option4(0) "Use Sketch-Planning Data" 120 630 2460 250
Option4(1) "Supply Reliability File" 120 890 2460 250
Option4(2) "Don't Use in Analysis" 120 1150 2460 250
Line1 2640 420 30 1000
Check1 "Use District File?" 2880 450 2340 260
Line2 120 330 6270 30
Line3 120 1500 6270 30
Command11 "Run Commuter Analysis" 2880 880 2340 375
Command3 "Quit" 5340 880 1020 375
)");
  EXPECT_EQ(program.form3.caption(), "Perform Commuter Cost Analysis");
}

TEST_F(CommuterPage, asks_for_font_size_3_in_the_occupation_rows_and_in_no_other) {
  open_commuter_page();
  std::string small;
  for (const auto* control : program.form3->all()) {
    if (control->font_size() == 3) small += control->full_name() + ' ';
  }
  EXPECT_EQ(small,
            "Text5(0) Command10(0) Text5(1) Command10(1) Text5(2) Command10(2) Text5(3) Command10(3) "
            "Text5(4) Command10(4) Text5(5) Command10(5) Text5(6) Command10(6) Text5(7) Command10(7) "
            "Text5(8) Command10(8) Text5(9) Command10(9) Text5(10) Command10(10) Text5(11) Command10(11) ");
}

TEST_F(CommuterPage, the_output_button_of_the_other_market_lies_beneath_an_occupation_and_takes_no_focus) {
  open_commuter_page();
  EXPECT_EQ(analyst.find("Command5")->focusPolicy(), Qt::NoFocus);
  const QRect place = analyst.find("Command5")->geometry();
  for (const QPoint corner : {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()}) {
    EXPECT_EQ(program.form3.surface()->childAt(corner), analyst.find("Command10(8)"));
  }
}

TEST_F(CommuterPage, its_mark_lies_beneath_the_seventh_button_and_ends_beside_it) {
  open_commuter_page();
  const QWidget* label = analyst.find("Label2");
  const QWidget* button = analyst.find("Command10(6)");
  const QRect place = label->geometry();
  const auto on_top_at = [this, &place](int x) {
    return program.form3.surface()->childAt(x, place.center().y());
  };
  EXPECT_TRUE(on_top_at(place.left() + 1) == button);
  EXPECT_TRUE(on_top_at(button->geometry().right() + 2) == label);
  EXPECT_EQ(analyst.text_of("Label2"), "commute");
}

TEST_F(TimeAndDistancePage, shows_nothing_of_the_mark) {
  analyst.choose("spec_timdist");
  EXPECT_EQ(analyst.text_of("Label2"), "");
}

TEST_F(CommuterPage, gives_its_thirteenth_button_a_caption_that_is_never_seen) {
  open_commuter_page();
  EXPECT_EQ(program.form3->Command10(12).caption(), "Output File Name");
  EXPECT_FALSE(analyst.sees("Command10(12)"));
}

TEST_F(CommuterPage, without_zones_shows_the_box_and_leaves_the_menus_off) {
  analyst.choose("spec_timdist");
  analyst.will_press("Yes");
  analyst.click("Command8");
  app.sql("update zones set numzones = 0");
  analyst.will_press("OK");
  analyst.choose("spec_comm");
  EXPECT_EQ(last_box(), no_zones);
  EXPECT_FALSE(program.form3.loaded());
  EXPECT_FALSE(program.form2.visible());
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
  EXPECT_TRUE(analyst.item_enabled("Mnu_exit"));
}

TEST_F(CommuterPage, goes_by_the_stored_number_and_not_by_the_one_in_the_box) {
  save_time_files();
  type_zones("0");
  analyst.choose("spec_comm");
  EXPECT_TRUE(analyst.sees("Form3"));
}

TEST_F(CommuterPage, stays_shut_without_a_stored_number_whatever_is_typed) {
  save_time_files();
  app.sql("update zones set numzones = 0");
  type_zones("9");
  analyst.will_press("OK");
  analyst.choose("spec_comm");
  EXPECT_EQ(last_box(), no_zones);
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(CommuterPage, comes_as_designed_after_the_other_page) {
  open_commuter_page();
  const std::string first = drawing();
  analyst.click("Command3");
  analyst.choose("spec_timdist");
  EXPECT_EQ(program.form3->Label2.caption(), "");
  analyst.will_press("Yes");
  analyst.click("Command8");
  analyst.choose("spec_comm");
  EXPECT_EQ(drawing(), first);
}

}  // namespace
