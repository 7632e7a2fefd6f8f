#include "forms/form2.h"

#include <gtest/gtest.h>

#include <map>

#include "design_drawing.h"

namespace {

using testing_aids::drawn_like;

// A "/" stands for the line break of a caption that is too long for its button.
TEST(Form2Design, stands_as_the_entry_of_inputs_builds_on_it) {
  const std::string expected = R"(Data1 "Data1" hidden table zones
Frame1 "Develop Commercial Market Inputs"
Label1 "Enter Number of Zones" in Frame1
MaskEdBox1 "####" in Frame1 Data1.Numzones
MaskEdBox2 "####" in Frame1 hidden Data1.numdstrct
Frame2 "Choose Markets" in Frame1
Chcktrp(0) "Manufacturing" in Frame2
Chcktrp(1) "Mining" in Frame2
Chcktrp(2) "Agriculture" in Frame2
Chcktrp(3) "Service" in Frame2
Chcktrp(4) "Executive, Administrative, and Managerial"
Chcktrp(5) "Professional Specialty"
Chcktrp(6) "Technicians and Related Support"
Chcktrp(7) "Sales"
Chcktrp(8) "Administrative Support"
Chcktrp(9) "Private Household"
Chcktrp(10) "Protective service"
Chcktrp(11) "Other Services"
Chcktrp(12) "Precision production, craft, and repair"
Chcktrp(13) "Machine Operaters, Assemblers, Inspectors"
Chcktrp(14) "Transportation and material moving"
Chcktrp(15) "Handlers, equipment cleaners, helpers"
Chcktrp(16) "Armed Forces" hidden
Command1 "Enter Commercial /Trip Data" in Frame2
Command2 "Quit-Return to/Main Menu" in Frame2
Command3 "Enter Commuter/Data" in Frame2 hidden
Command4 "Quit-Return to/Main Menu" in Frame2 hidden
Command5 "Save" in Frame1 hidden
Command6 "Cancel " in Frame1 hidden
Text1(0) "" hidden
Text1(1) "" hidden
Text1(2) "" hidden
)";
  EXPECT_EQ(drawn_like(expected, forms::form2_design(), {.container = true, .state = true, .binding = true}),
            expected);
  EXPECT_STREQ(forms::form2_design().caption, "Develop Inputs");
}

TEST(Form2Design, the_occupations_stand_in_their_own_order_on_the_screen) {
  std::map<int, int> index_by_top;
  for (const auto& row : forms::form2_design().controls) {
    if (std::string(row.name) == "Chcktrp" && row.index >= 4) index_by_top[row.place.top] = row.index;
  }
  std::string order;
  for (const auto& [top, index] : index_by_top) order += std::to_string(index) + ' ';
  EXPECT_EQ(order, "12 14 4 6 13 10 15 7 5 8 9 11 16 ");
}

}  // namespace
