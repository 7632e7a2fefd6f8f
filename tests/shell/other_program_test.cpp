// Every screen waits for another program that writes to the project database, and tells when that takes too
// long; what it meant to store can be stored by the same press then.
#include "other_program.h"

#include "event_loop.h"
#include "inputs/grid_page.h"
#include "parameters/parameter_page.h"

namespace {

using ::testing::ElementsAre;
using testing_aids::GridPage;
using testing_aids::in_event_loop;
using testing_aids::ParameterPage;
using testing_aids::ProgramTest;

TEST(PatienceWithOtherPrograms, lasts_five_seconds) {
  const testing_aids::Installation app;
  const forms::Program program(app.path());
  EXPECT_EQ(program.desktop.workspace.lock_wait, std::chrono::seconds(5));
}

using Beside = testing_aids::BesideOtherProgram<ProgramTest>;

TEST_F(Beside, the_number_of_zones_is_stored) {
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "30");
  const auto save = [this] { analyst.click("Command5"); };
  expect_refusal({"Yes"}, save);
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "30__");
  expect_wait({"Yes"}, save);
  EXPECT_THAT(app.rows("SELECT numzones FROM zones"), ElementsAre("30"));
}

TEST_F(Beside, the_paths_of_the_first_page_are_stored) {
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/imp_time.txt");
  const auto save = [this] { analyst.click("Command8"); };
  expect_refusal({"Yes"}, save);
  expect_wait({"Yes"}, save);
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"),
              ElementsAre(app.file("sample/imp_time.txt").string()));
}

TEST_F(Beside, the_picks_of_a_page_that_is_left_are_stored) {
  open_commuter_page();
  pick("Command10(7)", "sample/trips_Mining.txt");
  const auto quit = [this] { analyst.click("Command3"); };
  expect_refusal({}, quit);
  expect_wait({}, quit);
  EXPECT_THAT(app.rows("SELECT Salesfiles FROM Anfiles"),
              ElementsAre(app.file("sample/trips_Mining.txt").string()));
}

TEST_F(Beside, the_picks_of_a_finished_run_are_stored) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  expect_wait({"Yes", "OK"}, [this] { analyst.click("Command11"); });
  EXPECT_EQ(last_box(), "Analysis Completed");
  EXPECT_THAT(app.rows("SELECT Salesfiles FROM Anfiles"),
              ElementsAre(app.file("sample/commute_Sales.txt").string()));
}

TEST_F(Beside, the_close_box_stores) {
  program.form3.Show();
  program.form3->Text1(5).set_text("stored.txt");
  const auto close = [this] { in_event_loop([this] { program.mdiform1.window().close(); }); };
  expect_refusal({}, close);
  EXPECT_TRUE(program.form3.loaded());
  expect_wait({}, close);
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"), ElementsAre("stored.txt"));
}

using GridBeside = testing_aids::BesideOtherProgram<GridPage>;

TEST_F(GridBeside, the_distances_and_times_are_opened) {
  set_zones(1);
  const auto open = [this] { analyst.choose("Times"); };
  expect_refusal({}, open);
  EXPECT_FALSE(program.frmDataGrid.loaded());
  expect_wait({}, open);
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null"));
}

TEST_F(GridBeside, the_chosen_industries_are_stored_and_their_grid_opened) {
  set_zones(1);
  analyst.choose("CommerTdata");
  tick({1});
  const auto go_ahead = [this] { press(program.form2, "Command1"); };
  expect_refusal({}, go_ahead);
  EXPECT_FALSE(program.frmDataGrid.loaded());
  expect_wait({}, go_ahead);
  EXPECT_THAT(sosec(), ElementsAre("1|1|null"));
}

TEST_F(GridBeside, the_chosen_occupations_are_stored_and_their_grid_opened) {
  set_zones(1);
  analyst.choose("Comm_pop");
  tick({7});
  const auto go_ahead = [this] { press(program.form2, "Command3"); };
  expect_refusal({}, go_ahead);
  EXPECT_FALSE(program.frmDataGrid.loaded());
  expect_wait({}, go_ahead);
  EXPECT_THAT(sosec(), ElementsAre("1|null"));
}

TEST_F(GridBeside, a_cell_is_stored_when_its_row_is_left) {
  open_times(2);
  type_into_cell(0, 2, "7.5");
  auto& grid = program.frmDataGrid->grdDataGrid;
  expect_refusal({}, [&] { press_key(grid, Qt::Key_Down); });
  EXPECT_THAT(sosec("LIMIT 1"), ElementsAre("1|1|null|null|null"));
  expect_wait({}, [&] { press_key(grid, Qt::Key_Down); });
  EXPECT_THAT(sosec("LIMIT 1"), ElementsAre("1|1|7.5|null|null"));
}

TEST_F(GridBeside, a_range_is_filled) {
  open_times(1);
  fill(2, {"0", "1", "0", "1", "4"});
  const auto fill_again = [this] { fill(2, {"0", "1", "0", "1", "6"}); };
  expect_refusal({}, fill_again);
  EXPECT_THAT(sosec(), ElementsAre("1|1|4|null|null"));
  expect_wait({}, fill_again);
  EXPECT_THAT(sosec(), ElementsAre("1|1|6|null|null"));
}

TEST_F(GridBeside, an_edit_is_stored_on_the_way_to_the_chooser) {
  open_times(1);
  type_into_cell(0, 2, "7.5");
  const auto close = [this] { press_on_grid("cmdClose"); };
  expect_refusal({}, close);
  EXPECT_TRUE(program.frmDataGrid.visible());
  expect_wait({}, close);
  EXPECT_FALSE(program.frmDataGrid.loaded());
  EXPECT_THAT(sosec(), ElementsAre("1|1|7.5|null|null"));
}

TEST_F(GridBeside, trips_are_numbered_and_exported) {
  open_trips(1, {1});
  type_into_cell(0, 2, "5");
  press_on_grid("cmdClose");
  std::filesystem::create_directory(app.file("study"));
  choose_directory(app.file("study").string());
  const auto save = [this] { press(program.frmdirget, "cmdExit"); };
  expect_refusal({}, save);
  EXPECT_THAT(app.names_in("study"), ::testing::IsEmpty());
  expect_wait({}, save);
  EXPECT_EQ(app.bytes("study/trips_Mining.txt"), "         1         1         5\r\n");
}

using ParametersBeside = testing_aids::BesideOtherProgram<ParameterPage>;

TEST_F(ParametersBeside, the_costs_are_stored) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 0, 2, "1234");
  const auto save = [this] { analyst.click("Command3"); };
  const std::string before = industries().front();
  expect_refusal({}, save);
  EXPECT_EQ(industries().front(), before);
  expect_wait({"Yes"}, save);
  EXPECT_NE(industries().front(), before);
  EXPECT_THAT(industries().front(), ::testing::HasSubstr("|1234.0|"));
}

TEST_F(ParametersBeside, the_wages_are_stored) {
  analyst.choose(commuter_editor);
  type_into("DBGrid4", 0, 2, "7.5");
  const auto save = [this] { analyst.click("Command4"); };
  expect_refusal({}, save);
  expect_wait({"Yes"}, save);
  EXPECT_EQ(value("SELECT wage FROM commuter"), "7.5");
}

TEST_F(ParametersBeside, the_shares_are_stored) {
  analyst.choose(share_editor);
  type_into("DBGrid3", 0, 0, "0.76");
  const auto save = [this] { analyst.click("Command3"); };
  expect_refusal({"Yes"}, save);
  expect_wait({"Yes"}, save);
  EXPECT_EQ(value("SELECT ModeShare1 FROM Commute_Param"), "0.76");
}

TEST_F(ParametersBeside, the_speeds_are_stored) {
  analyst.choose(reliability_editor);
  type_into("DBGrid2", 0, 0, "21");
  const auto save = [this] { analyst.click("Command3"); };
  expect_refusal({"Yes"}, save);
  expect_wait({"Yes"}, save);
  EXPECT_EQ(value("SELECT BaseSpeed FROM var_input"), "21.0");
}

TEST_F(ParametersBeside, the_defaults_are_restored) {
  app.sql("UPDATE Commercial SET \"Unit Cost\" = 1; UPDATE commuter SET wage = 1");
  const std::pair<const char*, const char*> editors[] = {{commercial_editor, "Command2"},
                                                         {commuter_editor, "Command6"}};
  for (const auto& [editor, button] : editors) {
    analyst.choose(editor);
    const auto restore = [this, button = button] { analyst.click(button); };
    expect_refusal({}, restore);
    expect_wait({"Yes"}, restore);
  }
  EXPECT_EQ(value("SELECT count(*) FROM Commercial WHERE \"Unit Cost\" = 1"), "0");
  EXPECT_EQ(value("SELECT count(*) FROM commuter WHERE wage = 1"), "0");
}

}  // namespace
