// Edits in the parameter editors, and what the models are handed at the next run, byte by byte.
#include <QTest>

#include "program_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ParametersJourney : public testing_aids::ProgramTest {
 protected:
  void key(const std::string& grid, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(analyst.find(grid), key, modifiers);
  }

  /// Row and column count from 0, columns those that are to be seen.
  void edit(const std::string& grid, int row, int column, const std::string& text) {
    key(grid, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < row; ++i) key(grid, Qt::Key_Down);
    for (int i = 0; i < column; ++i) key(grid, Qt::Key_Right);
    analyst.type(grid, text);
    key(grid, Qt::Key_Return);
  }

  void leave(const std::string& button) {
    analyst.will_press("Yes");
    analyst.click(button);
  }

  void edit_all_tables() {
    analyst.choose("commute_param_sw");
    edit("DBGrid4", 7, 1, "12.5");
    edit("DBGrid4", 7, 2, "150.25");
    leave("Command4");
    analyst.choose("Commute_param_ms");
    edit("DBGrid3", 0, 0, "0.7");
    edit("DBGrid3", 0, 1, "0.15");
    edit("DBGrid3", 0, 2, "0.14");
    edit("DBGrid3", 0, 3, "0.01");
    edit("DBGrid3", 0, 4, "0.3");
    edit("DBGrid3", 0, 5, "3");
    leave("Command3");
    analyst.choose("mnu_rel");
    edit("DBGrid2", 0, 0, "31");
    edit("DBGrid2", 0, 1, "0.2");
    edit("DBGrid2", 0, 2, "36.5");
    edit("DBGrid2", 0, 3, "0.25");
    leave("Command3");
    analyst.choose("Commerparam");
    edit("DBGrid1", 1, 0, "5.5");
    edit("DBGrid1", 1, 1, "6000");
    edit("DBGrid1", 1, 2, "26.1");
    edit("DBGrid1", 1, 3, "60");
    edit("DBGrid1", 1, 4, "0.5");
    edit("DBGrid1", 1, 5, "80");
    leave("Command3");
  }

  void pick_commuter_files() {
    pick("Command10(7)", "sample/commute_Sales.txt");
    pick("Command12", "results/sales.txt");
    analyst.click("Option4(0)");
  }

  void open_commercial_page() {
    analyst.choose("spec_timdist");
    analyst.will_press("Yes");
    analyst.click("Command8");
    analyst.choose("Spec_commercial");
  }

  /// Presses the run button; `look` sees the model's files while the run asks whether to go on.
  void run(const std::string& button, const std::function<void()>& look) {
    analyst.when_box_shows = [look](const analyst::Box& box) {
      if (box.text.find("Do you wish to continue?") != std::string::npos) look();
    };
    analyst.will_press("Yes");
    analyst.will_press("OK");
    analyst.click(button);
    EXPECT_EQ(last_box(), "Analysis Completed");
  }
};

TEST_F(ParametersJourney, edits_of_the_commuter_parameters_reach_the_models) {
  edit_all_tables();
  open_commuter_page();
  pick_commuter_files();
  run("Command11", [this] {
    EXPECT_EQ(app.bytes("commuter/sig7.txt"), " 12.5 \r\n");
    EXPECT_EQ(app.bytes("commuter/wage7.txt"), " 150.25 \r\n");
    EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 31            .2 \r\n");
    EXPECT_EQ(app.bytes("commuter/costpar.txt"),
              " .3            3 \r\n"
              "0              .7  .15  .14  .01 \r\n");
  });
  EXPECT_THAT(app.bytes("results/sales.txt"), HasSubstr("150.25"));
}

TEST_F(ParametersJourney, edits_of_the_improvement_reach_the_second_run) {
  edit_all_tables();
  app.put_stand_in("commuter/OUTPUT1.EXE");
  app.put_file("commuter/stand_in.txt", "exit 1\n");
  open_commuter_page();
  pick_commuter_files();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_EQ(last_box(), "Error executing third commuter cost program!");
  EXPECT_EQ(app.bytes("commuter/imp_var.txt"), " 36.5          .25 \r\n");
}

TEST_F(ParametersJourney, edits_of_the_commercial_parameters_reach_the_model) {
  edit_all_tables();
  open_commercial_page();
  pick("Command1(2)", "sample/trips_Mining.txt");
  pick("Command5", "results/mining.txt");
  analyst.click("Option4(0)");
  run("Command2", [this] {
    EXPECT_EQ(app.bytes("truck/sig2.txt"), " 5.5 \r\n");
    EXPECT_EQ(app.bytes("truck/cost2.txt"),
              " 6000          26.1          60            .5            80 \r\n");
    EXPECT_EQ(app.bytes("truck/base_var.txt"), " 31  .2 \r\n");
    EXPECT_EQ(app.bytes("truck/imp_var.txt"), " .2  36.5 \r\n");
  });
}

TEST_F(ParametersJourney, restored_costs_reach_the_model_with_their_seven_digits) {
  app.sql(R"(UPDATE Commercial SET sigma = 1, "Unit Cost" = 1)");
  analyst.choose("Commerparam");
  leave("Command2");
  open_commercial_page();
  pick("Command1(1)", "sample/trips_Agriculture.txt");
  pick("Command5", "results/agriculture.txt");
  analyst.click("Option4(2)");
  run("Command2", [this] {
    EXPECT_EQ(app.bytes("truck/sig1.txt"), " 14.51 \r\n");
    EXPECT_EQ(app.bytes("truck/cost1.txt"),
              " 16765         25.07         430           1             90 \r\n");
  });
}

TEST_F(ParametersJourney, speeds_are_not_handed_over_without_sketch_planning_data) {
  edit_all_tables();
  app.sql("DELETE FROM var_input");
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  analyst.click("Option4(2)");
  run("Command11", [this] { EXPECT_EQ(app.bytes("commuter/base_var.txt"), "(none)"); });
}

}  // namespace
