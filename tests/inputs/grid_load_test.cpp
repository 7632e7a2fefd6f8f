// What the grid shows and makes when it is loaded.
#include "grid_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GridLoad : public testing_aids::GridPage {
 protected:
  /// The captions of the form, its save button and the word of the pass; whether that word is to be seen.
  std::string captions() {
    auto& form = program.frmDataGrid;
    return form.caption() + "|" + form->cmdClose.caption() + "|" + form->Label1.caption() + "|" +
           (form->Label1.visible() ? "seen" : "hidden");
  }

  void show_grid_with(const std::string& word) {
    as_handler([this, word] {
      program.form2->Text1(2).set_text(word);
      program.frmDataGrid.Show();
    });
  }
};

TEST_F(GridLoad, of_distances_and_times_has_three_value_columns) {
  open_times(2);
  EXPECT_EQ(captions(), "frmDataGrid|Save Distance and Time and Return to Main Menu||hidden");
  EXPECT_EQ(columns_of("sosec"), "Origin Destination distance Base_Travel_Times Improvement_Travel_Times");
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null", "1|2|null|null|null", "2|1|null|null|null",
                                   "2|2|null|null|null"));
}

TEST_F(GridLoad, of_trips_has_a_column_for_each_chosen_industry_in_the_order_of_the_list) {
  open_trips(1, {3, 1});
  EXPECT_EQ(captions(), "frmDataGrid|Save Commercial Trips and Return to Main Menu||hidden");
  EXPECT_EQ(columns_of("sosec"), "Origin Destination Mining Service");
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null"));
}

TEST_F(GridLoad, of_population_keeps_the_designed_button_and_the_caption_of_its_launcher) {
  open_population(3, {7, 11});
  EXPECT_EQ(captions(),
            "Enter the number of persons living in each zone by occupation|"
            "&Save Population by Occupation and Continue|POPULATION|hidden");
  EXPECT_EQ(columns_of("sosec"), "Zone Sales Service");
  EXPECT_THAT(sosec(), ElementsAre("1|null|null", "2|null|null", "3|null|null"));
}

TEST_F(GridLoad, of_employment_has_captions_of_its_own) {
  open_employment(2, {7});
  EXPECT_EQ(captions(),
            "ENTER EMPLOYMENT FOR COMMUTER ANALYSIS|Save Employment Data and Return to Main Menu|EMPLOYMENT|"
            "hidden");
  EXPECT_EQ(columns_of("sosec"), "Zone Sales");
}

TEST_F(GridLoad, of_population_without_its_launcher_has_a_caption_of_its_own) {
  open_population(1, {7});
  as_handler([this] {
    program.frmDataGrid.Unload();
    program.frmDataGrid.Show();
  });
  EXPECT_EQ(program.frmDataGrid.caption(), "ENTER POPULATION BY OCCUPATION FOR COMMUTER ANALYSIS");
}

TEST_F(GridLoad, of_daily_trips_has_one_value_column_and_the_designed_captions) {
  open_daily_trips(2);
  EXPECT_EQ(captions(), "frmDataGrid|&Save Population by Occupation and Continue||hidden");
  EXPECT_EQ(columns_of("sosec"), "Origin Destination Daily_Trips");
  EXPECT_THAT(sosec(), ElementsAre("1|1|null", "1|2|null", "2|1|null", "2|2|null"));
}

TEST_F(GridLoad, does_not_use_the_column_list_for_distances_and_times) {
  open_times(1);
  EXPECT_NE(program.form2->Text1(0).text(), "");
  EXPECT_EQ(columns_of("sosec"), "Origin Destination distance Base_Travel_Times Improvement_Travel_Times");
}

TEST_F(GridLoad, takes_whole_numbers_for_zones_and_numbers_with_fractions_for_values) {
  open_trips(1, {1});
  auto& records = program.frmDataGrid->DataLu.recordset();
  EXPECT_EQ(records.field_kind(0), runtime::engine::FieldKind::Whole);
  EXPECT_EQ(records.field_kind(1), runtime::engine::FieldKind::Whole);
  EXPECT_EQ(records.field_kind(2), runtime::engine::FieldKind::Double);
}

TEST_F(GridLoad, maximizes_the_form) {
  open_times(1);
  EXPECT_EQ(program.frmDataGrid.window_state(), runtime::forms::WindowState::maximized);
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridLoad, shows_the_form_at_a_mere_reference) {
  open_times(1);
  press_on_grid("Cmdquit");
  as_handler([this] {
    program.form2->Text1(2).set_text("timdist");
    program.frmDataGrid->Label3.set_caption("");
  });
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridLoad, goes_to_the_application_directory) {
  open_times(1);
  as_handler([this] {
    program.frmDataGrid.Unload();
    program.desktop.files.ChDir("sample");
    program.frmDataGrid.Show();
  });
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

TEST_F(GridLoad, works_on_a_database_that_never_had_the_staging_table) {
  EXPECT_THAT(app.rows("SELECT name FROM sqlite_master WHERE name IN ('sosec', 'population')"), IsEmpty());
  open_times(1);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null"));
}

TEST_F(GridLoad, replaces_the_table_of_an_earlier_entry) {
  open_trips(2, {1});
  press_on_grid("Cmdquit");
  open_times(1);
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null"));
}

TEST_F(GridLoad, makes_the_two_scratch_files_that_are_absent) {
  open_times(1);
  std::filesystem::remove(app.file("trips.csv"));
  std::filesystem::remove(app.file("timdist.csv"));
  as_handler([this] {
    program.frmDataGrid.Unload();
    program.frmDataGrid.Show();
  });
  EXPECT_EQ(app.bytes("trips.csv"), "");
  EXPECT_EQ(app.bytes("timdist.csv"), "");
  EXPECT_THAT(sosec(), IsEmpty());
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridLoad, leaves_scratch_files_that_are_there) {
  app.put_file("timdist.csv", "kept");
  open_times(1);
  EXPECT_EQ(app.bytes("timdist.csv"), "kept");
  EXPECT_EQ(app.bytes("trips.csv"), "\r\n 1 ,           1 \r\n");
}

TEST_F(GridLoad, with_an_unknown_mode_word_stops_before_the_table_is_made) {
  open_times(1);
  press_on_grid("Cmdquit");
  analyst.will_press("OK");
  show_grid_with("freight");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3129':"));
  EXPECT_FALSE(program.frmDataGrid.loaded());
  EXPECT_THAT(app.rows("SELECT name FROM sqlite_master WHERE name = 'sosec'"), IsEmpty());
}

TEST_F(GridLoad, with_an_unknown_mode_word_has_linked_the_skeleton_by_then) {
  open_times(1);
  press_on_grid("Cmdquit");
  analyst.will_press("OK");
  show_grid_with("freight");
  EXPECT_THAT(app.rows("SELECT name, source FROM table_links"), ElementsAre("csvtable|trips.csv"));
}

TEST_F(GridLoad, after_a_fault_can_be_tried_again) {
  open_times(1);
  press_on_grid("Cmdquit");
  analyst.will_press("OK");
  show_grid_with("freight");
  show_grid_with("timdist");
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null"));
}

TEST_F(GridLoad, without_the_description_of_the_skeleton_ends_in_a_report) {
  open_times(1);
  press_on_grid("Cmdquit");
  std::filesystem::remove(app.file("schema.ini"));
  analyst.will_press("OK");
  show_grid_with("timdist");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_FALSE(program.frmDataGrid.loaded());
}

TEST_F(GridLoad, without_the_project_database_ends_in_a_report) {
  open_times(1);
  press_on_grid("Cmdquit");
  as_handler([this] { program.form2->Text1(2).set_text("timdist"); });
  as_handler([this] {
    program.form2->Data1.close_database();
    std::filesystem::rename(app.file("zelmor.mdb"), app.file("away.mdb"));
  });
  analyst.will_press("OK");
  as_handler([this] { program.frmDataGrid.Show(); });
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3024':"));
  EXPECT_EQ(app.bytes("zelmor.mdb"), "(none)");
}

// The other program lets go as soon as it was given up, so that the statements behind the first get through.
TEST_F(GridLoad, ends_where_it_meets_the_lock_of_another_program) {
  program.desktop.workspace.lock_wait = std::chrono::milliseconds(1);
  open_times(1);
  press_on_grid("Cmdquit");
  runtime::engine::Workspace other;
  auto holder = other.OpenDatabase(app.file("zelmor.mdb").string());
  holder.Execute("UPDATE zones SET numdstrct = 0");
  program.desktop.workspace.waiting = [&](bool is_waiting) {
    if (!is_waiting) other.handler_ended();
  };
  analyst.will_press("OK");
  show_grid_with("timdist");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3260':"));
  EXPECT_FALSE(program.frmDataGrid.loaded());
  show_grid_with("timdist");
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridLoad, writes_the_word_of_the_pass_in_red_on_grey) {
  open_population(1, {7});
  const QPalette& colours = program.frmDataGrid->Label1.widget()->palette();
  EXPECT_EQ(colours.color(QPalette::WindowText), QColor(Qt::red));
  EXPECT_EQ(colours.color(QPalette::Window), QColor(0xC0, 0xC0, 0xC0));
}

TEST_F(GridLoad, shows_the_records_in_a_grid_whose_cells_can_be_edited) {
  open_times(2);
  type_into_cell(2, 3, "7.5");
  as_handler([this] { program.frmDataGrid->DataLu.Refresh(); });
  EXPECT_THAT(sosec("WHERE Base_Travel_Times NOTNULL"), ElementsAre("2|1|null|7.5|null"));
}

}  // namespace
