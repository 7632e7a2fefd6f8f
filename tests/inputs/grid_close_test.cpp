// The save button of the grid, up to the choice of a directory.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "grid_page.h"
#include "inputs/frmdatagrid.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class GridClose : public testing_aids::GridPage {
 protected:
  /// What was chosen changes its name behind the grid's back.
  void rename_the_chosen_occupation() {
    app.sql("UPDATE Occupations SET description = 'Tailors' WHERE occupation_number = 4");
  }
};

TEST_F(GridClose, leaves_the_grid_for_the_chooser_and_minimizes_the_form_of_the_numbers) {
  open_times(2);
  press_on_grid("cmdClose");
  EXPECT_EQ(loaded_forms(), "Form2- Frmdirget*");
  EXPECT_TRUE(analyst.sees("dirList"));
}

TEST_F(GridClose, goes_to_the_application_directory) {
  open_times(2);
  as_handler([this] { program.desktop.files.ChDir("sample"); });
  press_on_grid("cmdClose");
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

TEST_F(GridClose, stores_the_edit_under_way) {
  open_times(2);
  type_into_cell(1, 2, "7");
  press_on_grid("cmdClose");
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), ElementsAre("1|2|7|null|null"));
}

TEST_F(GridClose, keeps_the_grid_and_the_edit_of_a_text_that_its_column_cannot_take) {
  open_times(2);
  type_into_cell(1, 2, "much");
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3421':"));
  EXPECT_EQ(loaded_forms(), "Form2 Frmdirget* frmDataGrid*");
  auto& grid = program.frmDataGrid->grdDataGrid;
  EXPECT_TRUE(grid.edit_active());
  EXPECT_EQ(std::get<std::string>(grid.column_value(2)), "much");
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
  press_key(grid, Qt::Key_Escape);
  press_on_grid("cmdClose");
  EXPECT_EQ(loaded_forms(), "Form2- Frmdirget*");
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
}

// The other program lets go as soon as it was given up, so that the statements behind the first get through.
TEST_F(GridClose, of_the_population_ends_where_it_meets_the_lock_of_another_program) {
  program.desktop.workspace.lock_wait = std::chrono::milliseconds(1);
  app.sql("CREATE TABLE IF NOT EXISTS population (Zone INTEGER) STRICT");
  open_population(1, {7});
  runtime::engine::Workspace other;
  auto holder = other.OpenDatabase(app.file("zelmor.mdb").string());
  holder.Execute("UPDATE zones SET numdstrct = 0");
  program.desktop.workspace.waiting = [&](bool is_waiting) {
    if (!is_waiting) other.handler_ended();
  };
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3260':"));
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  press_on_grid("cmdClose");
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
}

TEST_F(GridClose, leaves_empty_distances_and_times_empty) {
  open_times(2);
  press_on_grid("cmdClose");
  EXPECT_THAT(sosec("WHERE distance = 0 OR Base_Travel_Times = 0 OR Improvement_Travel_Times = 0"),
              IsEmpty());
}

TEST_F(GridClose, issues_the_statements_for_empty_distances_all_the_same) {
  open_trips(2, {1});
  as_handler([this] { program.frmdirget->List1.set_list(0, "distance.txt"); });
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3061':"));
  EXPECT_TRUE(program.frmDataGrid.loaded());
}

TEST_F(GridClose, issues_a_statement_for_each_of_the_three_value_columns) {
  for (const std::string column : {"distance", "Base_Travel_Times", "Improvement_Travel_Times"}) {
    open_times(1);
    app.sql("ALTER TABLE sosec RENAME COLUMN " + column + " TO gone");
    press_and_expect("cmdClose",
                     "Run-time error '3061':\n\nToo few parameters: '" + column + "' is not known");
    EXPECT_TRUE(program.frmDataGrid.visible());
    press_on_grid("Cmdquit");
  }
}

TEST_F(GridClose, of_a_planned_mining_file_asks_for_a_column_of_each_chosen_industry) {
  open_trips(2, {1, 3});
  as_handler([this] {
    program.frmdirget->List1.set_list(0, "mining.txt");
    auto db = program.desktop.workspace.OpenDatabase("zelmor.mdb");
    db.Execute("update industries set description = 'Coal' where industry_number = 9");
  });
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3061':"));
}

TEST_F(GridClose, of_a_planned_mining_file_keeps_no_clone) {
  open_trips(2, {1});
  as_handler([this] { program.frmdirget->List1.set_list(0, "mining.txt"); });
  press_on_grid("cmdClose");
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
}

TEST_F(GridClose, keeps_a_clone_of_what_the_grid_shows_for_trips_alone) {
  open_trips(2, {1});
  analyst.will_enter("Destination Desc");
  press_on_grid("cmdSort");
  press_on_grid("cmdClose");
  auto& clone = program.frmDataGrid.SaveClone;
  ASSERT_TRUE(clone.is_set());
  as_handler([&] { clone.MoveFirst(); });
  EXPECT_EQ(std::get<std::int64_t>(clone.field("Destination")), 2);
  as_handler([&] { clone.Close(); });
}

TEST_F(GridClose, closes_the_clone_of_distances_and_times) {
  open_times(2);
  press_on_grid("cmdClose");
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
}

TEST_F(GridClose, in_the_population_pass_keeps_the_population_and_comes_back_for_employment) {
  open_population(3, {7, 11});
  fill(1, {"1", "3", "", "", "40"});
  type_into_cell(1, 2, "5");
  press_on_grid("cmdClose");
  EXPECT_EQ(columns_of("population"), "Zone Sales Service");
  EXPECT_THAT(table("population ORDER BY Zone"), ElementsAre("1|40|null", "2|40|5", "3|40|null"));
  EXPECT_THAT(sosec(), ElementsAre("1|null|null", "2|null|null", "3|null|null"));
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "Save Employment Data and Return to Main Menu");
}

TEST_F(GridClose, in_the_population_pass_replaces_an_older_population) {
  app.sql("CREATE TABLE population (Zone INTEGER, Mining REAL); INSERT INTO population VALUES (7, 1)");
  open_employment(1, {7});
  EXPECT_EQ(columns_of("population"), "Zone Sales");
  EXPECT_THAT(table("population"), ElementsAre("1|null"));
}

TEST_F(GridClose, in_the_population_pass_forgets_the_picked_names_but_not_how_many) {
  open_population(2, {7, 11});
  click_heading(1);
  click_heading(2);
  press_on_grid("cmdClose");
  const auto& form = program.frmDataGrid;
  EXPECT_EQ(form.SelectedFieldCount, 2);
  EXPECT_EQ(form.SelectedFields[1] + form.SelectedFields[2], "");
  EXPECT_EQ(form.SelectedFieldsText, "Service\rSales\r");
}

TEST_F(GridClose, in_the_population_pass_asks_for_a_column_of_each_chosen_occupation) {
  open_population(2, {7});
  rename_the_chosen_occupation();
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3061':"));
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  EXPECT_EQ(columns_of("population"), "Zone Sales");
}

TEST_F(GridClose, in_the_employment_pass_leads_to_the_chooser_and_ends_the_pass) {
  open_employment(2, {7});
  fill(1, {"1", "2", "", "", "6"});
  press_on_grid("cmdClose");
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
  EXPECT_EQ(loaded_forms(), "Form2*- Frmdirget*");
  EXPECT_THAT(sosec(), ElementsAre("1|6", "2|6"));
}

TEST_F(GridClose, in_the_employment_pass_asks_for_a_column_of_each_chosen_occupation) {
  open_employment(2, {7});
  rename_the_chosen_occupation();
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3061':"));
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
}

TEST_F(GridClose, then_quit_in_the_chooser_writes_nothing_and_keeps_the_table) {
  open_population(2, {7});
  press_on_grid("cmdClose");
  fill(1, {"1", "2", "", "", "6"});
  press_on_grid("cmdClose");
  std::filesystem::create_directory(app.file("study"));
  choose_directory(app.file("study").string());
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  press(program.frmdirget, "Command1");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_THAT(files_in("study"), IsEmpty());
  EXPECT_EQ(loaded_forms(), "Form2*-");
  EXPECT_THAT(sosec(), ElementsAre("1|6", "2|6"));
}

TEST_F(GridClose, gives_the_chooser_the_focus) {
  open_trips(1, {1});
  QApplication::setActiveWindow(&program.mdiform1.window());
  press_on_grid("cmdClose");
  const QMdiSubWindow* chooser = program.desktop.mdi_area->activeSubWindow();
  ASSERT_TRUE(chooser->isAncestorOf(program.frmdirget.surface()));
  ASSERT_TRUE(chooser->isAncestorOf(QApplication::focusWidget()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(program.frmdirget.surface()->isAncestorOf(QApplication::focusWidget()));
}

// The number entry shares its form with the word that tells what the grid serves, and takes it along.
TEST_F(GridClose, after_a_number_entry_that_was_left_leads_to_a_save_that_writes_nothing) {
  open_times(1);
  type_into_cell(0, 2, "7.5");
  analyst.choose("Zones");
  analyst.will_press("Yes");
  press(program.form2, "Command6");
  EXPECT_EQ(program.form2->Text1(2).text(), "");
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_THAT(app.names_in("study"), IsEmpty());
  EXPECT_FALSE(program.frmdirget.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_THAT(sosec(), ElementsAre("1|1|7.5|null|null"));
}

}  // namespace
