#include "forms/form1.h"

#include <gtest/gtest.h>

#include "design_drawing.h"

namespace {

using testing_aids::drawn_like;

TEST(Form1Design, stands_as_the_parameter_editors_build_on_it) {
  const std::string expected = R"(DBGrid1 "" 1440 120 6855 1215
DBGrid2 "" 1440 1320 5295 975 hidden
DBGrid3 "" 1440 2400 6135 465 hidden
DBGrid4 "" 3840 2880 3735 495 hidden
Data1 "Data1" 120 6120 1935 300 hidden
Data2 "Data2" 2160 6120 1935 300 hidden
Data3 "Data3" 4200 6120 1935 300 hidden
Data4 "Data4" 6240 6120 1935 300 hidden
Command3 "Save" 5640 5160 735 375
Command1 "Cancel" 6480 5160 735 375
Command2 "Restore/Defaults" 7320 5160 855 375 hidden
Command4 "Save" 5640 5640 735 375 hidden
Command5 "Cancel" 6480 5640 735 375 hidden
Command6 "Restore/Defaults" 7320 5640 855 375 hidden
Command7 "Restore/Defaults" 7320 4680 855 375 hidden
Label1(0) "Manufacturing" 240 240 1095 255
Label1(1) "Mining" 720 480 495 255
Label1(2) "Agriculture" 480 720 855 255
Label1(3) "Service" 720 960 615 255
Label2 " Base Case" 120 1920 855 255 hidden
Label3 "  Improvement Case" 0 480 1455 255 hidden
Lbl_data4(0) "Precision production, craft, and repair" 360 3120 3495 218 hidden
Lbl_data4(1) "Transportation and material moving" 240 3338 3495 218 hidden
Lbl_data4(2) "Executive, Administrative, and Managerial" 240 3556 3495 218 hidden
Lbl_data4(3) "Technicians and Related Support" 240 3774 3495 218 hidden
Lbl_data4(4) "Machine Operaters, Assemblers, Inspectors" 240 3992 3495 218 hidden
Lbl_data4(5) "Protective service" 240 4210 3495 218 hidden
Lbl_data4(6) "Handlers, equipment cleaners, helpers" 240 4428 3495 218 hidden
Lbl_data4(7) "Sales" 240 4646 3495 218 hidden
Lbl_data4(8) "Professional Specialty" 240 4864 3495 218 hidden
Lbl_data4(9) "Administrative Support" 240 5082 3495 218 hidden
Lbl_data4(10) "Private Household" 240 5300 3495 218 hidden
Lbl_data4(11) "Other Services" 240 5518 3495 218 hidden
)";
  EXPECT_EQ(drawn_like(expected, forms::form1_design(), {.place = true, .state = true}), expected);
}

TEST(Form1Design, its_data_controls_stand_on_the_parameter_tables) {
  std::string tables;
  for (const auto& row : forms::form1_design().controls) {
    if (row.kind == runtime::forms::Kind::Data)
      tables += std::string(row.name) + ' ' + row.binding.source + '\n';
  }
  EXPECT_EQ(tables, "Data1 Commercial\nData2 var_input\nData3 Commute_Param\nData4 commuter\n");
}

TEST(Form1Design, has_its_client_area_and_caption) {
  EXPECT_STREQ(forms::form1_design().caption, "Form1");
  EXPECT_EQ(forms::form1_design().client_width, 8370);
  EXPECT_EQ(forms::form1_design().client_height, 6540);
}

}  // namespace
