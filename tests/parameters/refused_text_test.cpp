// A word in an open cell that can take numbers only, when its grid goes from the screen or is given up.
#include "parameter_page.h"

namespace {

using RefusedText = testing_aids::ParameterPage;

constexpr const char* second_unit_cost = R"(SELECT "Unit Cost" FROM Commercial WHERE industry_number = 2)";

TEST_F(RefusedText, in_a_grid_that_another_editor_hides_is_told_and_dropped) {
  for (const char* next : {share_editor, commuter_editor, reliability_editor}) {
    analyst.choose(commercial_editor);
    type_into("DBGrid1", 1, 2, "abc");
    analyst.will_press("OK");
    analyst.choose(next);
    EXPECT_EQ(analyst.last_box().name, "MsgBox") << next;
    EXPECT_EQ(last_box(), "\"abc\" can't be stored in the column \"Unit Cost\": it is not a number.");
    EXPECT_EQ(analyst.last_box().icon, 2) << "an exclamation mark";
    EXPECT_FALSE(program.form1->DBGrid1.edit_active()) << next;
    press(next == commuter_editor ? "Command4" : "Command3", "Yes");
    EXPECT_EQ(last_box(), question) << next;
    EXPECT_FALSE(program.form1.loaded()) << next;
    as_handler([this] { program.mdiform1.Inputs.set_enabled(true); });
  }
  EXPECT_EQ(value(second_unit_cost), "25.04");
}

TEST_F(RefusedText, of_a_hidden_grid_takes_nothing_of_the_row_s_buffer_along) {
  analyst.choose(commercial_editor);
  edit("DBGrid1", 1, 1, "17");
  analyst.type("DBGrid1", "abc");
  analyst.will_press("OK");
  analyst.choose(share_editor);
  press("Command3", "Yes");
  EXPECT_EQ(value(R"(SELECT "Value", "Unit Cost" FROM Commercial WHERE industry_number = 2)"), "17.0|25.04");
}

TEST_F(RefusedText, a_number_in_a_grid_that_another_editor_hides_stays_open) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, 2, "31");
  analyst.choose(share_editor);
  EXPECT_THAT(analyst.boxes(), ::testing::IsEmpty());
  EXPECT_TRUE(program.form1->DBGrid1.edit_active());
  press("Command3", "Yes");
  EXPECT_EQ(value(second_unit_cost), "31.0");
}

TEST_F(RefusedText, is_dropped_by_cancel_without_a_word) {
  for (const auto& [editor, grid, button] : {std::tuple(commercial_editor, "DBGrid1", "Command1"),
                                             {reliability_editor, "DBGrid2", "Command1"},
                                             {share_editor, "DBGrid3", "Command1"},
                                             {commuter_editor, "DBGrid4", "Command5"}}) {
    analyst.choose(editor);
    const std::string before = drawn_row(grid);
    type_into(grid, 0, 1, "abc");
    analyst.forget_boxes();
    press(button, "No");
    EXPECT_THAT(analyst.texts(), ::testing::ElementsAre(question)) << grid;
    EXPECT_EQ(drawn_row(grid), before);
    type_into(grid, 0, 1, "abc");
    press(button, "Yes");
    EXPECT_THAT(analyst.texts(), ::testing::ElementsAre(question, question)) << grid;
    EXPECT_FALSE(program.form1.loaded()) << grid;
  }
}

}  // namespace
