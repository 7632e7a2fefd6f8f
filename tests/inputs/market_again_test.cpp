// A second entry on the form of the markets: the list of columns that it keeps while it stays loaded.
#include "inputs_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MarketAgain : public testing_aids::InputsPage {
 protected:
  /// Leaves the grid by its save button, and the choice of a directory by "Quit".
  void leave_without_a_save() {
    press_on_grid("cmdClose");
    press(program.frmdirget, "Command1");
  }

  void expect_report(const std::string& words) {
    EXPECT_EQ(analyst.last_box().name, "RuntimeError");
    EXPECT_EQ(last_box(), words);
    EXPECT_FALSE(program.frmDataGrid.loaded());
    EXPECT_TRUE(analyst.sees("Frame1"));
  }
};

TEST_F(MarketAgain, of_the_same_industries_on_the_form_that_stayed_can_not_have_their_column_twice) {
  open_trips(2, {1});
  leave_without_a_save();
  analyst.choose("CommerTdata");
  click_and_answer("Command1", {"OK"});
  // The list of this press is taken back, the one of the first entry stays with the form.
  expect_report("Run-time error '3191':\n\nField 'Mining' is defined more than once");
  EXPECT_EQ(column_list(), ",Mining DOUBLE");
}

TEST_F(MarketAgain, of_the_same_occupations_on_the_form_that_stayed_can_not_have_their_column_twice) {
  open_employment(2, {7});
  leave_without_a_save();
  analyst.choose("Comm_pop");
  click_and_answer("Command3", {"OK"});
  expect_report("Run-time error '3191':\n\nField 'Sales' is defined more than once");
  EXPECT_EQ(column_list(), ",Sales DOUBLE");
}

TEST_F(MarketAgain, of_trips_behind_times_makes_more_columns_than_the_skeleton_fills) {
  open_times(2);
  leave_without_a_save();
  analyst.choose("CommerTdata");
  tick({1});
  click_and_answer("Command1", {"OK"});
  expect_report("Run-time error '3346':\n\nThe number of values does not match the number of fields");
  EXPECT_EQ(columns_of("sosec"),
            "Origin Destination distance Base_Travel_Times Improvement_Travel_Times Mining");
  EXPECT_THAT(sosec(), IsEmpty());
}

TEST_F(MarketAgain, begins_with_an_empty_list_when_the_form_was_left) {
  open_trips(1, {1});
  leave_without_a_save();
  analyst.choose("CommerTdata");
  press(program.form2, "Command2");
  analyst.choose("CommerTdata");
  EXPECT_EQ(column_list(), "");
  tick({1});
  press(program.form2, "Command1");
  EXPECT_EQ(column_list(), ",Mining DOUBLE");
  EXPECT_THAT(sosec(), ElementsAre("1|1|null"));
}

}  // namespace
