// A change that is being typed into a leading column of the industries is dropped; one that was left is kept.
#include <QHeaderView>

#include "parameter_page.h"

namespace {

class KeyColumn : public testing_aids::ParameterPage {
 protected:
  static constexpr int sigma = 0;  // the first column that is to be seen
  static constexpr int unit_cost = 2;

  std::string first_sigma() const { return value("SELECT sigma FROM Commercial WHERE industry_number = 1"); }
  bool editing() { return program.form1->DBGrid1.edit_active(); }

  void click_open_cell() {
    auto* editor = analyst.find("DBGrid1")->findChild<QWidget*>(QStringLiteral("CellEditor"));
    ASSERT_NE(editor, nullptr);
    ASSERT_TRUE(editor->isVisible());
    QTest::mouseClick(editor, Qt::LeftButton);
  }

  static constexpr const char* as_installed = "14.51";
};

class KeyColumnButton : public KeyColumn, public ::testing::WithParamInterface<const char*> {};

TEST_P(KeyColumnButton, drops_what_is_being_typed_as_sigma) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  press(GetParam(), "No");
  EXPECT_FALSE(editing());
  press(GetParam(), "Yes");
  EXPECT_EQ(first_sigma(), as_installed);
}

TEST_P(KeyColumnButton, keeps_a_sigma_that_was_left_for_another_column) {
  analyst.choose(commercial_editor);
  edit("DBGrid1", 0, sigma, "3");
  press(GetParam(), "Yes");
  EXPECT_EQ(first_sigma(), "3.0");
}

TEST_P(KeyColumnButton, keeps_a_sigma_that_was_left_and_come_back_to) {
  analyst.choose(commercial_editor);
  edit("DBGrid1", 0, sigma, "3");
  key("DBGrid1", Qt::Key_Left);
  analyst.type("DBGrid1", "4");
  press(GetParam(), "Yes");
  EXPECT_EQ(first_sigma(), "3.0");
}

INSTANTIATE_TEST_SUITE_P(, KeyColumnButton, ::testing::Values("Command3", "Command1"));

TEST_F(KeyColumn, a_click_into_the_open_sigma_drops_what_is_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  click_open_cell();
  EXPECT_FALSE(editing());
  press("Command3", "Yes");
  EXPECT_EQ(first_sigma(), as_installed);
}

TEST_F(KeyColumn, a_click_on_a_heading_or_on_the_row_s_selector_drops_what_is_typed) {
  analyst.choose(commercial_editor);
  auto* view = qobject_cast<QTableView*>(analyst.find("DBGrid1"));
  for (QHeaderView* header : {view->horizontalHeader(), view->verticalHeader()}) {
    type_into("DBGrid1", 0, sigma, "3");
    ASSERT_TRUE(editing());
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(editing());
  }
  press("Command3", "Yes");
  EXPECT_EQ(first_sigma(), as_installed);
}

TEST_F(KeyColumn, a_double_click_opens_the_sigma_and_leaves_it_open) {
  analyst.choose(commercial_editor);
  auto* view = qobject_cast<QTableView*>(analyst.find("DBGrid1"));
  const QPoint place(view->columnViewportPosition(1) + 5, view->rowViewportPosition(0) + 5);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(editing());
  click_open_cell();
  EXPECT_FALSE(editing());
}

TEST_F(KeyColumn, a_click_on_another_column_keeps_what_was_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  click_cell("DBGrid1", 0, 3);
  EXPECT_EQ(program.form1->DBGrid1.current_column(), 3);
  press("Command3", "Yes");
  EXPECT_EQ(first_sigma(), "3.0");
}

TEST_F(KeyColumn, a_click_into_an_open_cost_keeps_what_is_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, unit_cost, "31");
  click_open_cell();
  EXPECT_TRUE(editing());
  press("Command3", "Yes");
  EXPECT_EQ(value(R"(SELECT "Unit Cost" FROM Commercial WHERE industry_number = 1)"), "31.0");
}

TEST_F(KeyColumn, a_move_to_another_row_keeps_what_was_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  key("DBGrid1", Qt::Key_Down);
  EXPECT_EQ(first_sigma(), "3.0");
}

TEST_F(KeyColumn, a_click_on_another_row_keeps_what_was_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  click_cell("DBGrid1", 2, 1);
  EXPECT_EQ(first_sigma(), "3.0");
}

TEST_F(KeyColumn, the_leading_columns_of_another_grid_are_not_guarded) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 7, 1, "3");
  press("Command4", "Yes");
  EXPECT_EQ(value(R"(SELECT sigma FROM commuter WHERE "index" = 7)"), "3.0");
}

TEST_F(KeyColumn, the_hidden_grid_of_the_industries_is_guarded_in_every_editor) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, sigma, "3");
  analyst.choose(reliability_editor);
  press("Command1", "No");
  EXPECT_FALSE(editing());
  EXPECT_EQ(value("SELECT sigma FROM Commercial WHERE industry_number = 2"), "4.62");
}

TEST_F(KeyColumn, the_commuter_pair_drops_what_is_being_typed_as_sigma_before_anything_is_read_anew) {
  for (const char* button : {"Command4", "Command5"}) {
    analyst.choose(commercial_editor);
    type_into("DBGrid1", 0, sigma, "3");
    analyst.choose(commuter_editor);
    ASSERT_TRUE(editing());
    press(button, "No");
    EXPECT_FALSE(editing()) << button;
    press(button, "Yes");
    EXPECT_EQ(first_sigma(), as_installed) << button;
  }
}

TEST_F(KeyColumn, a_save_that_refuses_the_shares_has_dropped_what_is_being_typed_as_sigma) {
  app.sql("UPDATE Commute_Param SET ModeShare1 = 7");
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, sigma, "3");
  analyst.choose(commuter_editor);
  analyst.choose(share_editor);
  press("Command4", "OK");
  EXPECT_EQ(last_box(), "Mode Shares Must Total 1.0");
  EXPECT_FALSE(editing());
}

TEST_F(KeyColumn, the_editor_opens_on_the_unit_cost_with_the_codes_hidden) {
  analyst.choose(commercial_editor);
  EXPECT_EQ(program.form1->DBGrid1.current_column(), 3);
  EXPECT_EQ(program.form1->DBGrid1.current_row(), 0);
  auto* view = qobject_cast<QTableView*>(analyst.find("DBGrid1"));
  std::string headings;
  for (int column = 0; column < view->model()->columnCount(); ++column) {
    headings += view->isColumnHidden(column) ? "-" : "";
    headings += view->model()->headerData(column, Qt::Horizontal).toString().toStdString() + '\n';
  }
  EXPECT_EQ(headings,
            "-industry_number\nsigma\nValue\nUnit Cost\nReliability Cost\nJIT Factor\nLoad Factor\n");
}

}  // namespace
