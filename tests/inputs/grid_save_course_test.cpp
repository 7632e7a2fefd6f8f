// The course of a save: the pointer meanwhile, the directory that the mouse has marked, a fault midway and
// what can be done after it, and the second save into the same directory.
#include "directory_list.h"
#include "grid_save_page.h"
#include "inputs/frmdatagrid.h"

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::StartsWith;
using testing_aids::hourglass;
using testing_aids::PointerWatch;

class GridSaveCourse : public testing_aids::GridSavePage {
 protected:
  // The pointer is that of the process, and the next test begins with a normal one.
  void TearDown() override {
    as_handler([this] { program.desktop.set_pointer(runtime::forms::Desktop::Pointer::normal); });
    GridSavePage::TearDown();
  }

  /// A directory bears the name of one of the files.
  void save_over_a_directory_named(const std::string& file, const std::string& fault) {
    save_into_spoilt([&](const auto& directory) { std::filesystem::create_directory(directory / file); });
    EXPECT_THAT(last_box(), StartsWith("Run-time error '" + fault + "':"));
  }

  void open_chooser_of_trips(const std::vector<int>& boxes, const std::string& first_value) {
    open_trips(1, boxes);
    type_into_cell(0, 2, first_value);
    press_on_grid("cmdClose");
  }

  void open_chooser_of_commuters(int zones, const std::string& residents, const std::string& workers) {
    open_population(zones, {7, 11});
    type_into_cell(0, 1, residents);
    press_on_grid("cmdClose");
    type_into_cell(0, 2, workers);
    press_on_grid("cmdClose");
  }

  std::set<std::string> pointers_during_save() {
    const PointerWatch watch;
    save_into("study");
    return watch.seen();
  }
};

TEST_F(GridSaveCourse, of_trips_and_of_commuters_shows_the_hourglass_while_it_works) {
  open_chooser_of_trips({1}, "5");
  EXPECT_THAT(pointers_during_save(), ElementsAre("hourglass"));
  EXPECT_EQ(hourglass(), "normal");
  open_chooser_of_commuters(1, "40", "7");
  EXPECT_THAT(pointers_during_save(), ElementsAre("hourglass"));
  EXPECT_EQ(hourglass(), "normal");
}

TEST_F(GridSaveCourse, of_times_never_shows_the_hourglass) {
  open_times(1);
  press_on_grid("cmdClose");
  save_over_a_directory_named("imp_time.txt", "75");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_THAT(pointers_during_save(), ElementsAre("normal"));
}

TEST_F(GridSaveCourse, of_times_takes_away_an_hourglass_that_was_left) {
  open_times(1);
  press_on_grid("cmdClose");
  as_handler([this] { program.desktop.set_pointer(runtime::forms::Desktop::Pointer::hourglass); });
  save_into("study");
  EXPECT_EQ(hourglass(), "normal");
}

TEST_F(GridSaveCourse, goes_into_the_directory_that_the_mouse_has_marked_but_not_opened) {
  open_times(1);
  press_on_grid("cmdClose");
  testing_aids::highlight(*static_cast<QListWidget*>(program.frmdirget->dirList.widget()),
                          QStringLiteral("results"));
  press(program.frmdirget, "cmdExit");
  EXPECT_THAT(files_in("results"),
              ElementsAre(Pair("base_time.txt", "1 1 \r\n"), Pair("distance.txt", "1 1 \r\n"),
                          Pair("imp_time.txt", "1 1 \r\n")));
  EXPECT_EQ(app.bytes("distance.txt"), "(none)");
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridSaveCourse, of_trips_that_faults_at_the_second_file_leaves_the_first_and_the_forms) {
  open_chooser_of_trips({1, 3}, "5");
  save_over_a_directory_named("trips_Service.txt", "58");
  EXPECT_THAT(app.names_in("spoilt"), ElementsAre("trips_Mining.txt", "trips_Service.txt"));
  EXPECT_EQ(app.bytes("spoilt/trips_Mining.txt"), "         1         1         5\r\n");
  EXPECT_EQ(app.bytes("trips.csv"), "         1         1          \r\n");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "Form2*- Frmdirget*");
  EXPECT_TRUE(program.frmDataGrid.SaveClone.is_set());
}

TEST_F(GridSaveCourse, of_trips_after_a_fault_at_the_second_file_can_be_made_into_another_directory) {
  open_chooser_of_trips({1, 3}, "5");
  save_over_a_directory_named("trips_Service.txt", "58");
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("trips_Mining.txt", "         1         1         5\r\n"),
                          Pair("trips_Service.txt", "         1         1          \r\n")));
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridSaveCourse, of_trips_after_a_fault_can_be_left_and_the_entry_made_anew) {
  open_chooser_of_trips({1, 3}, "5");
  save_over_a_directory_named("trips_Service.txt", "58");
  press(program.frmdirget, "Command1");
  EXPECT_EQ(loaded_forms(), "Form2*-");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  analyst.choose("CommerTdata");
  press(program.form2, "Command2");
  open_chooser_of_trips({3}, "6");
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("trips_Service.txt", "         1         1         6\r\n")));
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "");
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
}

TEST_F(GridSaveCourse, of_commuters_that_faults_at_the_second_file_leaves_the_first_and_the_forms) {
  open_chooser_of_commuters(1, "40", "7");
  save_over_a_directory_named("commute _Service.txt", "58");
  EXPECT_THAT(app.names_in("spoilt"), ElementsAre("commute _Sales.txt", "commute _Service.txt"));
  EXPECT_EQ(app.bytes("spoilt/commute _Sales.txt"), "         1        40          \r\n");
  EXPECT_EQ(app.bytes("trips.csv"), "         1                   7\r\n");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "Form2*- Frmdirget*");
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
}

TEST_F(GridSaveCourse, of_commuters_after_a_fault_can_be_left_and_the_entry_made_anew) {
  open_chooser_of_commuters(1, "40", "7");
  save_over_a_directory_named("commute _Service.txt", "58");
  press(program.frmdirget, "Command1");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  analyst.choose("Comm_pop");
  press(program.form2, "Command2");
  open_chooser_of_commuters(1, "30", "2");
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("commute _Sales.txt", "         1        30          \r\n"),
                          Pair("commute _Service.txt", "         1                   2\r\n")));
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridSaveCourse, of_commuters_into_the_same_directory_replaces_the_files) {
  open_chooser_of_commuters(2, "40", "7");
  save_into("study");
  EXPECT_EQ(app.bytes("study/commute _Sales.txt"),
            "         1        40          \r\n         2                    \r\n");
  open_chooser_of_commuters(1, "30", "2");
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("commute _Sales.txt", "         1        30          \r\n"),
                          Pair("commute _Service.txt", "         1                   2\r\n")));
}

TEST_F(GridSaveCourse, of_trips_that_is_left_in_the_chooser_keeps_no_later_entry_from_its_table) {
  open_chooser_of_trips({1}, "5");
  press(program.frmdirget, "Command1");
  EXPECT_TRUE(program.frmDataGrid.SaveClone.is_set());
  analyst.choose("Times");
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null"));
}

TEST_F(GridSaveCourse, of_trips_that_faults_midway_through_the_records_keeps_no_later_entry_from_its_table) {
  open_trips(2, {1});
  analyst.will_enter("Destination = 2");
  press_on_grid("cmdFilter");
  press_on_grid("cmdClose");
  analyst.will_press("OK");
  save_into("study");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3021':"));
  press(program.frmdirget, "Command1");
  analyst.choose("Times");
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_THAT(sosec(), ElementsAre("1|1|null|null|null", "1|2|null|null|null", "2|1|null|null|null",
                                   "2|2|null|null|null"));
}

}  // namespace
