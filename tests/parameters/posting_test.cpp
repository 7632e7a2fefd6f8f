// When an edit goes to the table, and when it does not, in the real windows.
#include <QApplication>
#include <QClipboard>
#include <QTimer>

#include "parameter_page.h"

namespace {

using ParameterPosting = testing_aids::ParameterPage;

constexpr const char* first_unit_cost = R"(SELECT "Unit Cost" FROM Commercial WHERE industry_number = 1)";
constexpr const char* second_unit_cost = R"(SELECT "Unit Cost" FROM Commercial WHERE industry_number = 2)";
constexpr const char* sales_wage = R"(SELECT wage FROM commuter WHERE "index" = 7)";
constexpr const char* second_wage = R"(SELECT wage FROM commuter WHERE "index" = 1)";
constexpr const char* first_share = "SELECT ModeShare1 FROM Commute_Param";
constexpr const char* base_speed = "SELECT BaseSpeed FROM var_input";

TEST_F(ParameterPosting, a_move_to_another_row_stores_the_row) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  EXPECT_EQ(value(sales_wage), "125.2");
  key("DBGrid4", Qt::Key_Down);
  EXPECT_EQ(value(sales_wage), "99.5");
}

TEST_F(ParameterPosting, a_move_along_the_row_stores_nothing) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 1, "12");
  key("DBGrid4", Qt::Key_Tab);
  EXPECT_EQ(value(R"(SELECT sigma FROM commuter WHERE "index" = 7)"), "13.05");
  key("DBGrid4", Qt::Key_Tab);  // from the last cell of the row to the next row
  EXPECT_EQ(value(R"(SELECT sigma FROM commuter WHERE "index" = 7)"), "12.0");
}

TEST_F(ParameterPosting, escape_gives_the_former_value_back) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  key("DBGrid4", Qt::Key_Escape);
  key("DBGrid4", Qt::Key_Down);
  EXPECT_EQ(value(sales_wage), "125.2");
}

TEST_F(ParameterPosting, any_number_is_taken) {
  analyst.choose(commuter_editor);
  edit("DBGrid4", 7, 1, "0");
  edit("DBGrid4", 7, 2, "-3.5");
  EXPECT_EQ(value(R"(SELECT * FROM commuter WHERE "index" = 7)"), "7|0.0|-3.5");
}

TEST_F(ParameterPosting, a_word_is_refused_and_stays_to_be_mended) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "much");
  analyst.will_press("OK");
  key("DBGrid4", Qt::Key_Down);
  EXPECT_EQ(analyst.last_box().name, "MsgBox");
  EXPECT_EQ(program.form1->DBGrid4.current_row(), 7);
  EXPECT_TRUE(program.form1->DBGrid4.edit_active());
  EXPECT_EQ(value(sales_wage), "125.2");
}

TEST_F(ParameterPosting, a_word_keeps_the_form_open) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 1, 2, "much");
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command4");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3421':"));
  EXPECT_TRUE(program.form1.visible());
  EXPECT_TRUE(program.form1->DBGrid4.edit_active());
}

TEST_F(ParameterPosting, a_block_of_another_program_goes_into_the_rows_there_are) {
  analyst.choose(commuter_editor);
  QApplication::clipboard()->setText(QStringLiteral("3.5\t44\n4.5\t55\n"));
  go_to("DBGrid4", 10, 1);
  key("DBGrid4", Qt::Key_V, Qt::ControlModifier);
  press("Command4", "Yes");
  EXPECT_THAT(app.rows(R"(SELECT * FROM commuter WHERE "index" > 9)"),
              ::testing::ElementsAre("10|3.5|44.0", "11|4.5|55.0"));
}

TEST_F(ParameterPosting, a_block_that_does_not_fit_is_refused_whole) {
  analyst.choose(commuter_editor);
  QApplication::clipboard()->setText(QStringLiteral("3.5\n4.5\n"));
  go_to("DBGrid4", 11, 1);
  analyst.will_press("OK");
  key("DBGrid4", Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(analyst.last_box().name, "MsgBox");
  press("Command4", "Yes");
  EXPECT_EQ(value(R"(SELECT sigma FROM commuter WHERE "index" = 11)"), "16.49");
}

TEST_F(ParameterPosting, save_of_the_wages_stores_the_row_that_it_leaves) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  press("Command4", "No");
  EXPECT_EQ(value(sales_wage), "99.5");
}

TEST_F(ParameterPosting, cancel_of_the_wages_stores_the_row_that_it_leaves) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  press("Command5", "No");
  EXPECT_EQ(value(sales_wage), "99.5");
}

TEST_F(ParameterPosting, a_button_that_moves_to_no_other_row_stores_nothing) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 1, 2, "99.5");
  press("Command4", "No");
  press("Command5", "No");
  EXPECT_EQ(value(second_wage), "120.64");
  EXPECT_TRUE(program.form1->DBGrid4.edit_active());
}

TEST_F(ParameterPosting, a_yes_stores_the_open_cell) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 1, 2, "99.5");
  press("Command5", "Yes");
  EXPECT_EQ(value(second_wage), "99.5");
}

TEST_F(ParameterPosting, save_of_the_costs_stores_also_the_row_that_it_stays_in) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, 2, "31");
  press("Command3", "No");
  EXPECT_EQ(value(second_unit_cost), "31.0");
}

TEST_F(ParameterPosting, cancel_of_the_costs_stores_the_row_only_where_it_leaves_it) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, 2, "31");
  press("Command1", "No");
  EXPECT_EQ(value(second_unit_cost), "25.04");
  key("DBGrid1", Qt::Key_Escape);
  type_into("DBGrid1", 0, 2, "32");
  press("Command1", "No");
  EXPECT_EQ(value(first_unit_cost), "32.0");
}

TEST_F(ParameterPosting, save_of_the_shares_stores_nothing_before_the_form_goes) {
  analyst.choose(share_editor);
  edit("DBGrid3", 0, 0, "0.5");
  press("Command3", "No");
  EXPECT_EQ(value(first_share), "0.7629");
  press("Command3", "Yes");
  EXPECT_EQ(value(first_share), "0.5");
}

TEST_F(ParameterPosting, save_of_the_speeds_stores_nothing_before_the_form_goes) {
  analyst.choose(reliability_editor);
  edit("DBGrid2", 0, 0, "21");
  press("Command3", "No");
  EXPECT_EQ(value(base_speed), "38.0");
  press("Command3", "Yes");
  EXPECT_EQ(value(base_speed), "21.0");
}

TEST_F(ParameterPosting, an_improvement_speed_equal_to_the_base_speed_is_taken) {
  analyst.choose(reliability_editor);
  edit("DBGrid2", 0, 2, "38");
  press("Command3", "Yes");
  EXPECT_EQ(value("SELECT * FROM var_input"), "38.0|0.42|38.0|0.48");
}

TEST_F(ParameterPosting, save_reads_only_the_commercial_table_anew) {
  analyst.choose(reliability_editor);
  app.sql("UPDATE var_input SET BaseSpeed = 1; UPDATE Commercial SET sigma = 2");
  press("Command3", "No");
  EXPECT_EQ(program.form1->Data2.field(0), runtime::Value(38.0));
  EXPECT_EQ(program.form1->Data1.field(1), runtime::Value(2.0F));
}

TEST_F(ParameterPosting, cancel_takes_back_nothing_that_was_stored) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  key("DBGrid4", Qt::Key_Down);
  press("Command5", "Yes");
  EXPECT_EQ(value(sales_wage), "99.5");
}

TEST_F(ParameterPosting, the_close_box_of_the_main_window_stores) {
  analyst.choose(reliability_editor);
  type_into("DBGrid2", 0, 0, "21");
  QTimer::singleShot(0, &program.mdiform1.window(), [this] { program.mdiform1.window().close(); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_EQ(value(base_speed), "21.0");
}

TEST_F(ParameterPosting, the_analysis_page_closes_the_editor_and_drops_what_is_not_stored) {
  analyst.choose(reliability_editor);
  type_into("DBGrid2", 0, 0, "21");
  analyst.choose("spec_timdist");
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_EQ(value(base_speed), "38.0");
}

TEST_F(ParameterPosting, the_wages_chosen_again_store_the_row_that_they_leave) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 2, "99.5");
  analyst.choose(commuter_editor);
  EXPECT_EQ(program.form1->DBGrid4.current_row(), 1);
  EXPECT_FALSE(program.form1->DBGrid4.edit_active());
  EXPECT_EQ(value(sales_wage), "99.5");
}

TEST_F(ParameterPosting, the_costs_chosen_again_keep_an_open_sigma_in_its_row) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, 0, "3");
  analyst.choose(commercial_editor);
  EXPECT_EQ(program.form1->DBGrid1.current_row(), 1);
  EXPECT_EQ(program.form1->DBGrid1.current_column(), 3);
  EXPECT_FALSE(program.form1->DBGrid1.edit_active());
  EXPECT_EQ(program.form1->DBGrid1.column_value(1), runtime::Value(3.0F));
  EXPECT_EQ(value("SELECT sigma FROM Commercial WHERE industry_number = 2"), "4.62");
  press("Command1", "Yes");
  EXPECT_EQ(value("SELECT sigma FROM Commercial WHERE industry_number = 2"), "3.0");
}

TEST_F(ParameterPosting, a_word_in_the_open_cell_is_told_when_its_editor_is_chosen_again) {
  for (const auto& [editor, grid] : {std::pair(commuter_editor, "DBGrid4"), {commercial_editor, "DBGrid1"}}) {
    analyst.choose(editor);
    type_into(grid, 2, 1, "much");
    analyst.will_press("OK");
    analyst.choose(editor);
    EXPECT_EQ(analyst.last_box().name, "RuntimeError");
    EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3421':")) << editor;
    EXPECT_TRUE(program.form1.visible());
    key(grid, Qt::Key_Escape);
    as_handler([this] { program.form1.Unload(); });
  }
  EXPECT_EQ(value(R"(SELECT sigma FROM commuter WHERE "index" = 2)"), "12.25");
  EXPECT_EQ(value("SELECT sigma FROM Commercial WHERE industry_number = 4"), "7.44");
}

// What makes and takes away rows in other grids: a step beyond the last one, a block pasted over the end, and
// the delete key with the whole row selected.
TEST_F(ParameterPosting, no_row_comes_or_goes_in_any_grid) {
  for (const auto& [editor, grid, table] : {std::tuple(commercial_editor, "DBGrid1", "Commercial"),
                                            {reliability_editor, "DBGrid2", "var_input"},
                                            {share_editor, "DBGrid3", "Commute_Param"},
                                            {commuter_editor, "DBGrid4", "commuter"}}) {
    const std::string count = std::string("SELECT count(*) FROM ") + table;
    const std::string before = value(count);
    analyst.choose(editor);
    key(grid, Qt::Key_End, Qt::ControlModifier);
    analyst.type(grid, "1");
    key(grid, Qt::Key_Tab);
    key(grid, Qt::Key_Down);
    QApplication::clipboard()->setText(QStringLiteral("3\n4\n"));
    analyst.will_press("OK");
    key(grid, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(analyst.last_box().name, "MsgBox") << table;
    key(grid, Qt::Key_Home, Qt::ShiftModifier);
    key(grid, Qt::Key_Delete);
    as_handler([this] { program.form1.Unload(); });
    EXPECT_EQ(value(count), before) << table;
    as_handler([this] { program.mdiform1.Inputs.set_enabled(true); });
  }
}

}  // namespace
