// Columns are picked by their headings, and a value fills a range of them.
#include "assistive_tool.h"
#include "grid_page.h"
#include "inputs/frmdatagrid.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int stop_sign_icon = 3;

class GridRanges : public testing_aids::GridPage {
 protected:
  /// Places 1 upward of the picked fields, as far as they are counted.
  std::vector<std::string> picks() const {
    const auto& form = program.frmDataGrid;
    return {form.SelectedFields.begin() + 1, form.SelectedFields.begin() + 1 + form.SelectedFieldCount};
  }

  void expect_refusal(const std::string& words) {
    press_and_expect("cmd_zonedit(0)", words);
    EXPECT_EQ(analyst.last_box().icon, stop_sign_icon);
    EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
  }
};

TEST_F(GridRanges, pick_a_value_column_by_its_heading_and_show_the_last_pick_on_top) {
  open_times(2);
  click_heading(3);
  EXPECT_EQ(shown_picks(), "Base_Travel_Times\n");
  click_heading(2);
  EXPECT_EQ(shown_picks(), "distance\nBase_Travel_Times\n");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldsText, "distance\rBase_Travel_Times\r");
  EXPECT_THAT(picks(), ElementsAre("Base_Travel_Times", "distance"));
}

TEST_F(GridRanges, pick_a_column_once) {
  open_times(2);
  click_heading(2);
  click_heading(2);
  EXPECT_THAT(picks(), ElementsAre("distance"));
  EXPECT_EQ(shown_picks(), "distance\n");
}

TEST_F(GridRanges, pick_no_origin_and_no_destination) {
  open_times(2);
  click_heading(0);
  click_heading(1);
  EXPECT_THAT(picks(), IsEmpty());
  EXPECT_EQ(shown_picks(), "");
}

TEST_F(GridRanges, pick_no_zone_but_the_column_beside_it) {
  open_population(2, {7, 11});
  click_heading(0);
  EXPECT_THAT(picks(), IsEmpty());
  click_heading(1);
  EXPECT_THAT(picks(), ElementsAre("Sales"));
}

TEST_F(GridRanges, take_no_sixteenth_pick) {
  open_times(1);
  auto& form = program.frmDataGrid;
  form.SelectedFieldCount = 14;
  click_heading(2);
  EXPECT_EQ(form.SelectedFieldCount, 15);
  EXPECT_EQ(form.SelectedFields[15], "distance");
  analyst.will_press("OK");
  click_heading(3);
  EXPECT_THAT(last_box(), StartsWith("Run-time error '9':"));
  EXPECT_EQ(form.SelectedFieldCount, 15);
}

TEST_F(GridRanges, are_cleared_by_the_button_but_for_the_last_place) {
  open_times(2);
  click_heading(2);
  program.frmDataGrid.SelectedFields[15] = "kept";
  press_on_grid("Command1");
  EXPECT_EQ(shown_picks(), "");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldsText, "");
  EXPECT_THAT(picks(), IsEmpty());
  EXPECT_EQ(program.frmDataGrid.SelectedFields[1], "");
  EXPECT_EQ(program.frmDataGrid.SelectedFields[15], "kept");
}

TEST_F(GridRanges, take_digits_and_points_in_every_box) {
  open_times(2);
  for (int i = 0; i <= 4; ++i) type_into(i, "1.5");
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(box(i).text(), "1.5") << i;
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(GridRanges, tell_twice_of_a_wrong_character_and_empty_the_box) {
  open_times(2);
  for (int i = 0; i <= 4; ++i) {
    type_into(i, "12");
    analyst.forget_boxes();
    analyst.will_press("OK");
    analyst.will_press("OK");
    QTest::keyClicks(&box(i), QStringLiteral("-"));
    EXPECT_THAT(analyst.texts(), ElementsAre("Must enter an integer number", "Must enter an integer number"));
    EXPECT_EQ(analyst.last_box().icon, stop_sign_icon);
    EXPECT_EQ(box(i).text(), "");
  }
}

TEST_F(GridRanges, pass_over_a_wrong_character_that_is_not_the_last) {
  open_times(2);
  for (int i = 0; i <= 4; ++i) {
    type_into(i, "12");
    box(i).setCursorPosition(1);
    QTest::keyClicks(&box(i), QStringLiteral("x"));
    EXPECT_EQ(box(i).text(), "1x2") << i;
  }
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(GridRanges, take_what_an_assistive_tool_puts_in_and_check_it_like_a_key) {
  open_times(2);
  testing_aids::put_by_assistive_tool(box(0), "12");
  EXPECT_EQ(program.frmDataGrid->txt_zonedit(0).text(), "12");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  analyst.will_press("OK");
  analyst.will_press("OK");
  testing_aids::put_by_assistive_tool(box(0), "12-");
  EXPECT_THAT(analyst.texts(), ElementsAre("Must enter an integer number", "Must enter an integer number"));
  EXPECT_EQ(box(0).text(), "");
}

TEST_F(GridRanges, tell_once_when_a_box_is_emptied_by_backspace) {
  open_times(2);
  type_into(0, "7");
  analyst.will_press("OK");
  QTest::keyClick(&box(0), Qt::Key_Backspace);
  EXPECT_THAT(analyst.texts(), ElementsAre("Must enter an integer number"));
}

TEST_F(GridRanges, fill_the_cells_of_an_origin_and_a_destination_range) {
  open_times(5);
  fill(2, {"1", "3", "4", "5", "12.5"});
  EXPECT_THAT(sosec("WHERE distance NOTNULL ORDER BY rowid"),
              ElementsAre("1|4|12.5|null|null", "1|5|12.5|null|null", "2|4|12.5|null|null",
                          "2|5|12.5|null|null", "3|4|12.5|null|null", "3|5|12.5|null|null"));
}

TEST_F(GridRanges, fill_every_picked_column) {
  open_times(2);
  click_heading(4);
  fill(2, {"1", "2", "1", "2", "3"});
  EXPECT_THAT(sosec(), ElementsAre("1|1|3|null|3", "1|2|3|null|3", "2|1|3|null|3", "2|2|3|null|3"));
}

TEST_F(GridRanges, fill_a_range_of_zones_and_pass_over_the_hidden_boxes) {
  open_population(4, {7, 11});
  fill(2, {"2", "4", "", "", "100"});
  EXPECT_THAT(sosec(), ElementsAre("1|null|null", "2|null|100", "3|null|100", "4|null|100"));
}

TEST_F(GridRanges, start_every_fill_with_a_fresh_pick) {
  open_times(2);
  fill(2, {"1", "2", "1", "2", "3"});
  EXPECT_EQ(shown_picks(), "");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldsText, "");
  EXPECT_THAT(picks(), IsEmpty());
  EXPECT_EQ(program.frmDataGrid.SelectedFields[1], "");
  type_into(4, "9");
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(sosec("WHERE distance = 9"), IsEmpty());
}

TEST_F(GridRanges, without_a_pick_fill_nothing_whatever_the_value) {
  open_times(2);
  type_range({"1", "2", "1", "2"});
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
}

TEST_F(GridRanges, show_the_filled_values_in_the_grid) {
  open_times(2);
  fill(2, {"1", "2", "1", "2", "3"});
  EXPECT_EQ(std::get<double>(program.frmDataGrid->grdDataGrid.column_value(2)), 3);
}

TEST_F(GridRanges, refuse_a_zone_beyond_the_number_of_zones_in_each_of_four_boxes) {
  open_times(3);
  const std::vector<std::string> good{"1", "2", "1", "2"};
  click_heading(2);
  type_into(4, "5");
  for (std::size_t i = 0; i < good.size(); ++i) {
    auto texts = good;
    texts[i] = "4";
    type_range(texts);
    expect_refusal("Zone number exceeds number of zones!");
  }
  type_range({"1", "3", "1", "3", ""});
  press_on_grid("cmd_zonedit(0)");
  EXPECT_EQ(sosec("WHERE distance = 5").size(), 9U);
}

TEST_F(GridRanges, refuse_an_equal_pair_two_empty_boxes_and_a_pair_in_the_wrong_order) {
  open_times(3);
  click_heading(2);
  type_into(4, "5");
  expect_refusal("From zone must be less than To zone!");
  type_range({"2", "2", "1", "2"});
  expect_refusal("From zone must be less than To zone!");
  type_range({"3", "2", "1", "2"});
  expect_refusal("From zone must be less than To zone!");
  type_range({"1", "2", "2", "2"});
  expect_refusal("From zone must be less than To zone!");
  type_range({"1", "2", "3", "2"});
  expect_refusal("From zone must be less than To zone!");
}

TEST_F(GridRanges, keep_the_picks_after_a_refusal) {
  open_times(3);
  click_heading(2);
  expect_refusal("From zone must be less than To zone!");
  EXPECT_THAT(picks(), ElementsAre("distance"));
}

TEST_F(GridRanges, of_zones_are_refused_for_a_number_in_a_box_that_the_filter_has_shown) {
  open_population(3, {7});
  click_heading(1);
  type_range({"1", "3"});
  analyst.will_press("Cancel");
  press_on_grid("cmdFilter");
  type_range({"", "", "", "9", "5"});
  press_and_expect("cmd_zonedit(0)", "Zone number exceeds number of zones!");
  type_into(3, "1");
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(sosec(), ElementsAre("1|5", "2|5", "3|5"));
}

TEST_F(GridRanges, round_a_fraction_to_the_even_zone) {
  open_population(5, {7});
  fill(1, {"1.5", "4.5", "", "", "8"});
  EXPECT_THAT(sosec(), ElementsAre("1|null", "2|8", "3|8", "4|8", "5|null"));
}

TEST_F(GridRanges, from_an_empty_box_start_at_nothing) {
  open_population(3, {7});
  fill(1, {"", "2", "", "", "8"});
  EXPECT_THAT(sosec(), ElementsAre("1|8", "2|8", "3|null"));
}

TEST_F(GridRanges, refuse_an_empty_value_and_keep_what_was_picked) {
  open_times(2);
  analyst.will_press("OK");
  fill(2, {"1", "2", "1", "2"});
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3144':"));
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
  EXPECT_THAT(picks(), ElementsAre("distance"));
}

TEST_F(GridRanges, keep_the_cells_filled_before_the_one_that_faults_in_the_order_of_the_pairs) {
  open_times(3);
  fill(3, {"1", "3", "1", "3", "1"});
  as_handler([this] {  // the pair 2, 2 has nothing to divide by
    auto db = program.desktop.workspace.OpenDatabase("zelmor.mdb");
    db.Execute("update sosec set Base_Travel_Times = 0 where origin = 2 and destination = 2");
  });
  click_heading(4);
  click_heading(2);
  analyst.will_press("OK");
  as_handler([this] { program.frmDataGrid->txt_zonedit(4).set_text("6/Base_Travel_Times+0"); });
  analyst.forget_boxes();
  type_range({"1", "3", "2", "3"});
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '11':"));
  // The first pair of (1,2) (1,3) (2,2) (2,3) that faults is the third.
  EXPECT_THAT(sosec("WHERE Improvement_Travel_Times NOTNULL ORDER BY rowid"),
              ElementsAre("1|2|null|1|6", "1|3|null|1|6"));
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
}

TEST_F(GridRanges, keep_the_first_column_filled_whole_when_the_second_faults) {
  open_times(2);
  fill(3, {"1", "2", "1", "2", "1"});
  click_heading(3);
  click_heading(2);
  // The fill of the first column leaves nothing for the second one to divide by.
  as_handler([this] { program.frmDataGrid->txt_zonedit(4).set_text("1/Base_Travel_Times-1"); });
  analyst.will_press("OK");
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '11':"));
  EXPECT_THAT(sosec(),
              ElementsAre("1|1|null|0|null", "1|2|null|0|null", "2|1|null|0|null", "2|2|null|0|null"));
  EXPECT_THAT(picks(), ElementsAre("Base_Travel_Times", "distance"));
}

TEST_F(GridRanges, find_no_project_where_the_current_directory_holds_none) {
  open_times(2);
  as_handler([this] { program.desktop.files.ChDir("sample"); });
  analyst.will_press("OK");
  fill(2, {"1", "2", "1", "2", "5"});
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3024':"));
  EXPECT_EQ(app.bytes("sample/zelmor.mdb"), "(none)");
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
  EXPECT_THAT(picks(), ElementsAre("distance"));
}

TEST_F(GridRanges, that_were_picked_in_the_population_pass_meet_empty_names_in_the_next) {
  open_population(2, {7, 11});
  click_heading(1);
  press_on_grid("cmdClose");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldCount, 1);
  EXPECT_EQ(program.frmDataGrid.SelectedFields[1], "");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldsText, "Sales\r");
  type_range({"1", "2", "", "", "5"});
  analyst.forget_boxes();
  analyst.will_press("OK");
  press_on_grid("cmd_zonedit(0)");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3144':"));
  press_on_grid("Command1");
  fill(1, {"1", "2", "", "", "5"});
  EXPECT_THAT(sosec(), ElementsAre("1|5|null", "2|5|null"));
}

}  // namespace
