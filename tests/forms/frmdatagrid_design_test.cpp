#include "forms/frmdatagrid.h"

#include <gtest/gtest.h>

#include "design_drawing.h"

namespace {

using testing_aids::drawn_like;

TEST(FrmDataGridDesign, has_the_controls_of_the_grid_and_its_range_strip) {
  const std::string expected = R"(grdDataGrid "" DataLu
DataLu "" hidden
picButtons ""
Cmdquit "Quit-Return to Main Menu" in picButtons
cmdClose "&Save Population by Occupation and Continue" in picButtons
cmdFilter "&Filter" in picButtons
cmdSort "&Sort" in picButtons
cmdRefresh "&Refresh" in picButtons
txt_zonedit(0) ""
txt_zonedit(1) ""
txt_zonedit(2) ""
txt_zonedit(3) ""
txt_zonedit(4) ""
cmd_zonedit(0) "Fill with Value"
Command1 "Clear Fields Selected"
Label2(0) "From Zone"
Label2(1) "To Zone"
Label2(2) "Origin"
Label2(3) "Destination"
Label2(4) "Fill Value"
Label2(5) "Fields Selected"
Label3 ""
Label1 "" hidden
Shape1 ""
Shape2 ""
)";
  EXPECT_EQ(
      drawn_like(expected, forms::frmdatagrid_design(), {.container = true, .state = true, .binding = true}),
      expected);
}

}  // namespace
