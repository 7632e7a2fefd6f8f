#include "forms/frmdirget.h"

#include <gtest/gtest.h>

#include "design_drawing.h"

namespace {

using testing_aids::drawn_like;

TEST(FrmdirgetDesign, stands_as_designed) {
  const std::string expected = R"(drvList "" in Picture1 0 240 1815 315
dirList "" in Picture1 0 600 3615 2115
List1 "" 3720 720 2175 2010
cmdExit "S&ave" 840 3000 1920 720
Command1 "Quit" 3360 3000 1935 735
Text1 "Text1" 3600 120 1815 495 hidden
Picture1 "" 0 120 6855 3855
)";
  EXPECT_EQ(
      drawn_like(expected, forms::frmdirget_design(), {.container = true, .place = true, .state = true}),
      expected);
  EXPECT_STREQ(forms::frmdirget_design().caption, "Choose Directory");
  EXPECT_EQ(forms::frmdirget_design().client_width, 7170);
  EXPECT_EQ(forms::frmdirget_design().client_height, 4020);
}

}  // namespace
