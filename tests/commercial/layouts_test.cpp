// The commercial page and the truck page as they stand when they have been opened.
#include "analysis/page_drawing.h"
#include "commercial_page.h"

namespace {

using testing_aids::covered_controls;
using testing_aids::drawn_page;
using CommercialLayouts = testing_aids::CommercialPage;

TEST_F(CommercialLayouts, the_commercial_page_stands_as_laid_out) {
  open_commercial_page();
  EXPECT_EQ(drawn_page(program), R"(Label2 "" 6840 1920 255 255
Text1(1) 0 120 4335 371 disabled
Command1(1) "Agriculture Trips" 4440 120 2175 375
Text1(2) 0 620 4335 371 disabled
Command1(2) "Mining Trips" 4440 620 2175 375
Text1(4) 0 1120 4335 371 disabled
Command1(4) "Manufacturing Trips" 4440 1120 2175 375
Text1(9) 0 1620 4335 371 disabled
Command1(9) "Service Trips" 4440 1620 2175 375
Text2 0 2580 4335 290 disabled
Command5 "Output File" 4440 2580 2175 290
Frame1 "Options" 0 3380 6510 1600
Label1 "Reliability " 120 390 2460 230
Option4(0) "Use Sketch-Planning Data" 120 630 2460 250
Option4(1) "Supply Reliability File" 120 890 2460 250
Option4(2) "Don't Use in Analysis" 120 1150 2460 250
Line1 2640 420 30 1000
Check1 "Use District File?" 2880 450 2340 260
Line2 120 330 6270 30
Line3 120 1500 6270 30
Command2 "Run Commercial Analysis" 2880 880 2340 375 disabled
Command3 "Quit" 5340 880 1020 375
)");
  EXPECT_EQ(program.form3.caption(), "Run Commercial Cost Analysis");
  EXPECT_EQ(program.form3.window_state(), runtime::forms::WindowState::maximized);
}

TEST_F(CommercialLayouts, the_district_and_the_reliability_row_stand_between_the_others_and_the_options) {
  open_commercial_page();
  analyst.click("Option4(1)");
  analyst.click("Check1");
  EXPECT_THAT(drawn_page(program), ::testing::HasSubstr(R"(Command5 "Output File" 4440 2580 2175 290
Text3 0 2110 4335 371 disabled
Command7 "District File" 4440 2110 2175 375
Text4 0 3000 4335 371 disabled
Command9 "Reliability File" 4440 3000 1575 375
Frame1 "Options" 0 3380 6510 1600
)"));
  EXPECT_EQ(covered_controls(program), "");
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

TEST_F(CommercialLayouts, the_truck_page_stands_as_laid_out) {
  analyst.choose("mnu_tonstotrucks");
  EXPECT_EQ(drawn_page(program), R"(Label2 "" 6840 1920 255 255
Label3 "Output files are named <inputfile>"_trip.txt"" 360 120 3175 255
Label4 "Inputs must be in annual tons" 360 480 3175 255
Text1(5) 0 1620 4335 371 disabled
Command4(5) "Distance File" 4440 1620 2175 375
Text7 0 1149 4335 371 disabled
Command15 "Commodity File" 4440 1145 2175 375
Command13 "Convert Tons to Trucks" 1200 2280 2535 420
Command14 "Quit" 3840 2280 1335 420
)");
  EXPECT_EQ(program.form3.caption(), "Convert Tons to Trucks");
  EXPECT_EQ(program.form3.window_state(), runtime::forms::WindowState::maximized);
  EXPECT_EQ(covered_controls(program), "");
}

}  // namespace
