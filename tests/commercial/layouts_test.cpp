// The commercial page and the truck page as they stand when they have been opened.
#include "commercial_page.h"

namespace {

using ::testing::ElementsAre;
using CommercialLayouts = testing_aids::CommercialPage;

std::vector<int> place(const runtime::forms::Control& control) {
  return {control.left(), control.top(), control.width(), control.height()};
}

TEST_F(CommercialLayouts, the_commercial_page_shows_four_trip_rows_and_the_output_row) {
  open_commercial_page();
  for (const char* name : {"Command1(1)", "Command1(2)", "Command1(4)", "Command1(9)", "Command5"}) {
    EXPECT_TRUE(analyst.can_use(name)) << name;
  }
  for (const char* name : {"Text1(1)", "Text1(2)", "Text1(4)", "Text1(9)", "Text2"}) {
    EXPECT_TRUE(analyst.sees(name)) << name;
    EXPECT_FALSE(analyst.can_use(name)) << name;
  }
  for (const char* name : {"Command8", "Command11", "Command4(5)", "Command10(0)", "Command13"}) {
    EXPECT_FALSE(analyst.sees(name)) << name;
  }
  EXPECT_FALSE(analyst.can_use("Command2")) << "before an output file is picked";
  EXPECT_EQ(program.form3.caption(), "Run Commercial Cost Analysis");
  EXPECT_EQ(program.form3->Frame1.top(), program.form3->Command5.top() + 800);
  EXPECT_EQ(program.form3->Frame1.width(), program.form3->Text1(1).width() + program.form3->Command5.width());
}

TEST_F(CommercialLayouts, the_reliability_row_of_the_commercial_page_stands_at_3000) {
  open_commercial_page();
  analyst.click("Option4(1)");
  EXPECT_THAT(place(program.form3->Command9), ElementsAre(4440, 3000, 1575, 375));
  EXPECT_THAT(place(program.form3->Text4), ElementsAre(0, 3000, 4335, 371));
}

TEST_F(CommercialLayouts, no_zones_refuses_the_commercial_page_and_leaves_the_menus_off) {
  app.sql("UPDATE zones SET numzones = 0");
  analyst.will_press("OK");
  as_handler([this] {
    for (const auto& row : quelar::menu_events()) {
      if (std::string(row.item) == "Spec_commercial") row.handler(program);
    }
  });
  EXPECT_EQ(last_box(), "The number of zones for this analysis has not been specified!");
  EXPECT_FALSE(program.form3.loaded());
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
}

TEST_F(CommercialLayouts, the_truck_page_shows_two_rows_two_notes_and_two_buttons) {
  analyst.choose("mnu_tonstotrucks");
  for (const char* name : {"Command4(5)", "Command15", "Command13", "Command14"}) {
    EXPECT_TRUE(analyst.can_use(name)) << name;
  }
  for (const char* name : {"Frame1", "Command5", "Command1(9)", "Text1(9)", "Command1(1)"}) {
    EXPECT_FALSE(analyst.sees(name)) << name;
  }
  EXPECT_EQ(analyst.text_of("Label3"), "Output files are named <inputfile>\"_trip.txt\"");
  EXPECT_EQ(analyst.text_of("Label4"), "Inputs must be in annual tons");
  EXPECT_THAT(place(program.form3->Label3), ElementsAre(360, 120, 3175, 255));
  EXPECT_EQ(program.form3->Command4(5).top(), program.form3->Command1(9).top());
  EXPECT_EQ(program.form3->Command15.top(), program.form3->Command4(5).top() - 475);
  EXPECT_EQ(place(program.form3->Text1(5)), place(program.form3->Text1(9)));
  EXPECT_EQ(program.form3->Text7.top(), program.form3->Text1(9).top() - 471);
  EXPECT_EQ(program.form3.caption(), "Convert Tons to Trucks");
}

}  // namespace
