// "Restore Defaults": the tables to the digit, and how they go over what is there.
#include "parameter_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

const std::vector<std::string> commercial_defaults{
    "1|14.5100002288818|16765.0|25.0699996948242|430.0|1.0|90.0",
    "2|4.61999988555908|5469.0|25.0400009155273|50.0|1.0|95.0",
    "4|7.44000005722046|34682.0|25.6599998474121|50.0|1.0|95.0",
    "9|10.6099996566772|135.0|0.0|50.0|1.0|95.0",
};

const std::vector<std::string> commuter_defaults{
    "0|11.27|129.6", "1|11.35|120.64", "2|12.25|175.2",  "3|12.83|139.2",  "4|13.04|98.0",    "5|13.21|78.32",
    "6|13.75|88.24", "7|13.05|125.2",  "8|14.57|179.12", "9|14.66|101.12", "10|16.02|116.56", "11|16.49|88.2",
};

constexpr const char* share_defaults = "0.7629|0.0929|0.1394|0.0048|0.25|2.38";

class RestoreDefaults : public testing_aids::ParameterPage {
 protected:
  void spoil_tables() const {
    app.sql(R"(UPDATE Commercial SET industry_number = 7, sigma = 1, "Value" = 1, "Unit Cost" = 1,
                 "Reliability Cost" = 1, "JIT Factor" = 2, "Load Factor" = 1;
               UPDATE commuter SET sigma = 1, wage = 1;
               UPDATE Commute_Param SET (ModeShare1, ModeShare2, ModeShare3, ModeShare4, CostParameterA,
                 CostParameterB) = (1, 1, 1, 1, 1, 1))");
  }

  std::vector<std::string> wages() const { return app.rows("SELECT * FROM commuter"); }
};

TEST_F(RestoreDefaults, writes_the_industries_in_single_precision_codes_included) {
  spoil_tables();
  analyst.choose(commercial_editor);
  press("Command2", "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
  EXPECT_THAT(industries(), ElementsAreArray(commercial_defaults));
  EXPECT_FALSE(program.form1.loaded());
}

TEST_F(RestoreDefaults, writes_the_wages_and_leaves_the_codes_alone) {
  spoil_tables();
  app.sql(R"(UPDATE commuter SET "index" = 40 WHERE "index" = 4)");
  auto expected = commuter_defaults;
  expected[4] = "40|13.04|98.0";
  analyst.choose(commuter_editor);
  press("Command6", "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
  EXPECT_THAT(wages(), ElementsAreArray(expected));
}

TEST_F(RestoreDefaults, writes_shares_that_pass_their_test) {
  spoil_tables();
  analyst.choose(commuter_editor);
  analyst.choose(share_editor);
  press("Command6", "No");
  EXPECT_EQ(shares(), share_defaults);
  press("Command4", "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question, question));
}

TEST_F(RestoreDefaults, enables_the_menus_whatever_the_answer) {
  for (const char* answer : {"No", "Yes"}) {
    analyst.choose(share_editor);
    EXPECT_FALSE(menus_enabled());
    press("Command6", answer);
    EXPECT_TRUE(menus_enabled()) << answer;
  }
  for (const char* answer : {"No", "Yes"}) {
    analyst.choose(commercial_editor);
    as_handler([this] { program.mdiform1.Inputs.set_enabled(false); });
    press("Command2", answer);
    EXPECT_TRUE(menus_enabled()) << answer;
  }
}

TEST_F(RestoreDefaults, writes_nothing_in_an_editor_that_it_has_no_figures_for) {
  app.sql("UPDATE commuter SET wage = 1; UPDATE Commute_Param SET ModeShare1 = 1");
  for (const char* editor : {commercial_editor, reliability_editor}) {
    analyst.choose(commuter_editor);
    analyst.choose(editor);
    press("Command6", "Yes");
  }
  EXPECT_THAT(analyst.texts(), ElementsAre(question, question));
  EXPECT_EQ(value("SELECT sum(wage) FROM commuter"), "12.0");
  EXPECT_EQ(shares(), "1.0|0.0929|0.1394|0.0048|0.25|2.38");
}

TEST_F(RestoreDefaults, shows_what_it_wrote) {
  spoil_tables();
  analyst.choose(commercial_editor);
  press("Command2", "No");
  EXPECT_EQ(program.form1->DBGrid1.column_value(0), runtime::Value(std::int64_t{9}));
  analyst.choose(commuter_editor);
  press("Command6", "No");
  EXPECT_EQ(program.form1->DBGrid4.current_row(), 1);
  EXPECT_EQ(program.form1->DBGrid4.column_value(2), runtime::Value(120.64));
  analyst.choose(share_editor);
  press("Command6", "No");
  EXPECT_EQ(program.form1->DBGrid3.column_value(0), runtime::Value(0.7629));
}

TEST_F(RestoreDefaults, is_not_taken_back_by_cancel) {
  spoil_tables();
  analyst.choose(commercial_editor);
  press("Command2", "No");
  press("Command1", "Yes");
  EXPECT_THAT(industries(), ElementsAreArray(commercial_defaults));
  analyst.choose(commuter_editor);
  press("Command6", "No");
  press("Command5", "Yes");
  EXPECT_THAT(wages(), ElementsAreArray(commuter_defaults));
  analyst.choose(share_editor);
  press("Command6", "No");
  press("Command1", "Yes");
  EXPECT_EQ(shares(), share_defaults);
}

TEST_F(RestoreDefaults, keeps_a_sigma_that_is_being_typed_beside_its_own_rows) {
  app.sql("INSERT INTO Commercial VALUES (5, 1, 2, 3, 4, 5, 6)");
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 4, 0, "3");
  press("Command2", "Yes");
  EXPECT_EQ(value("SELECT * FROM Commercial WHERE industry_number = 5"), "5|3.0|2.0|3.0|4.0|5.0|6.0");
}

TEST_F(RestoreDefaults, writes_the_shares_over_the_record_that_is_current) {
  spoil_tables();
  app.sql("INSERT INTO Commute_Param VALUES (2, 2, 2, 2, 2, 2)");
  analyst.choose(share_editor);
  key("DBGrid3", Qt::Key_Down);
  press("Command6", "Yes");
  EXPECT_THAT(app.rows("SELECT * FROM Commute_Param"),
              ElementsAre("1.0|1.0|1.0|1.0|1.0|1.0", share_defaults));
}

TEST_F(RestoreDefaults, wins_over_what_was_just_typed) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, 2, "31");
  press("Command2", "Yes");
  EXPECT_THAT(industries(), ElementsAreArray(commercial_defaults));
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 0, 2, "31");
  press("Command6", "Yes");
  EXPECT_THAT(wages(), ElementsAreArray(commuter_defaults));
  analyst.choose(share_editor);
  type_into("DBGrid3", 0, 0, "31");
  press("Command6", "Yes");
  EXPECT_EQ(shares(), share_defaults);
}

TEST_F(RestoreDefaults, wins_over_a_word_in_the_open_cell_without_a_word) {
  spoil_tables();
  for (const auto& [editor, grid, button] : {std::tuple(commercial_editor, "DBGrid1", "Command2"),
                                             {commuter_editor, "DBGrid4", "Command6"},
                                             {share_editor, "DBGrid3", "Command6"}}) {
    analyst.choose(editor);
    type_into(grid, 0, 1, "abc");
    press(button, "Yes");
    EXPECT_FALSE(program.form1.loaded()) << editor;
  }
  EXPECT_THAT(analyst.texts(), ElementsAre(question, question, question));
  EXPECT_THAT(industries(), ElementsAreArray(commercial_defaults));
  EXPECT_THAT(wages(), ElementsAreArray(commuter_defaults));
  EXPECT_EQ(shares(), share_defaults);
}

TEST_F(RestoreDefaults, leaves_the_earlier_rows_written_where_there_are_too_few) {
  spoil_tables();
  app.sql("DELETE FROM Commercial WHERE rowid > 2; DELETE FROM commuter WHERE rowid > 3");
  analyst.choose(commercial_editor);
  as_handler([this] { program.mdiform1.Inputs.set_enabled(false); });
  press("Command2", "OK");
  EXPECT_EQ(last_box(), "Run-time error '3021':\n\nNo current record");
  EXPECT_THAT(industries(), ElementsAre(commercial_defaults[0], commercial_defaults[1]));
  EXPECT_FALSE(menus_enabled());
  EXPECT_TRUE(program.form1.visible());
  run_menu_handler(commuter_editor);
  press("Command6", "OK");
  EXPECT_EQ(last_box(), "Run-time error '3021':\n\nNo current record");
  EXPECT_THAT(wages(), ElementsAre(commuter_defaults[0], commuter_defaults[1], commuter_defaults[2]));
}

TEST_F(RestoreDefaults, faults_on_an_empty_table) {
  app.sql("DELETE FROM Commercial; DELETE FROM Commute_Param");
  analyst.choose(commercial_editor);
  press("Command2", "OK");
  EXPECT_EQ(last_box(), "Run-time error '3021':\n\nNo current record");
  analyst.choose(share_editor);
  press("Command6", "OK");
  EXPECT_EQ(last_box(), "Run-time error '3021':\n\nNo current record");
}

TEST_F(RestoreDefaults, stores_each_field_by_itself) {
  spoil_tables();
  app.sql(R"(CREATE TRIGGER no_wage BEFORE UPDATE OF wage ON commuter WHEN OLD."index" = 2
             BEGIN SELECT RAISE(ABORT, 'no'); END)");
  analyst.choose(commuter_editor);
  press("Command6", "OK");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  auto left = wages();
  left.resize(4);
  EXPECT_THAT(left, ElementsAre(commuter_defaults[0], commuter_defaults[1], "2|12.25|1.0", "3|1.0|1.0"));
}

TEST_F(RestoreDefaults, keeps_rows_beyond_its_own) {
  app.sql("INSERT INTO Commercial VALUES (5, 1, 2, 3, 4, 5, 6); INSERT INTO commuter VALUES (12, 1, 2)");
  auto expected_industries = commercial_defaults;
  expected_industries.emplace_back("5|1.0|2.0|3.0|4.0|5.0|6.0");
  auto expected_wages = commuter_defaults;
  expected_wages.emplace_back("12|1.0|2.0");
  analyst.choose(commercial_editor);
  press("Command2", "Yes");
  EXPECT_THAT(industries(), ElementsAreArray(expected_industries));
  analyst.choose(commuter_editor);
  press("Command6", "Yes");
  EXPECT_THAT(wages(), ElementsAreArray(expected_wages));
}

TEST_F(RestoreDefaults, opens_no_transaction) {
  analyst.choose(commercial_editor);
  press("Command2", "No");
  EXPECT_EQ(program.SharedWorkspace, nullptr);
}

}  // namespace
