// The files that a data entry leaves, byte by byte, and how a save ends that cannot go on.
#include "inputs/grid_save.h"

#include "assistive_tool.h"
#include "grid_save_page.h"
#include "ordinary_user.h"
#include "small_disk.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::StartsWith;
using testing_aids::hourglass;

using GridSave = testing_aids::GridSavePage;

TEST_F(GridSave, of_one_zone_writes_a_line_in_each_of_three_files) {
  open_times(1);
  type_into_cell(0, 2, "2.5");
  save_times_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("base_time.txt", "1 1 \r\n"), Pair("distance.txt", "1 1 2.5\r\n"),
                          Pair("imp_time.txt", "1 1 \r\n")));
}

TEST_F(GridSave, of_two_zones_writes_the_pairs_in_the_order_of_the_table) {
  open_times(2);
  fill(2, {"1", "2", "1", "2", "0.25"});
  fill(3, {"1", "2", "1", "2", "10"});
  type_into_cell(2, 4, "33");
  save_times_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("base_time.txt", "1 1 10\r\n1 2 10\r\n2 1 10\r\n2 2 10\r\n"),
                          Pair("distance.txt", "1 1 0.25\r\n1 2 0.25\r\n2 1 0.25\r\n2 2 0.25\r\n"),
                          Pair("imp_time.txt", "1 1 \r\n1 2 \r\n2 1 33\r\n2 2 \r\n")));
}

TEST_F(GridSave, of_twelve_zones_writes_all_pairs) {
  open_times(12);
  fill(2, {"1", "12", "1", "12", "7"});
  save_times_into("study");
  std::string distances;
  for (int origin = 1; origin <= 12; ++origin) {
    for (int destination = 1; destination <= 12; ++destination) {
      distances += std::to_string(origin) + " " + std::to_string(destination) + " 7\r\n";
    }
  }
  EXPECT_EQ(app.bytes("study/distance.txt"), distances);
}

TEST_F(GridSave, of_times_takes_the_table_and_not_what_a_filter_or_a_sort_shows) {
  open_times(2);
  analyst.will_enter("Origin = 2");
  press_on_grid("cmdFilter");
  save_times_into("study");
  EXPECT_EQ(app.bytes("study/distance.txt"), "1 1 \r\n1 2 \r\n2 1 \r\n2 2 \r\n");
}

TEST_F(GridSave, unloads_the_forms_and_opens_the_menus) {
  open_times(1);
  save_times_into("study");
  EXPECT_EQ(loaded_forms(), "");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_EQ(hourglass(), "normal");
  for (int number = 1; number <= 3; ++number) EXPECT_FALSE(program.desktop.files.is_open(number));
}

TEST_F(GridSave, replaces_the_files_of_an_earlier_one_whatever_their_case) {
  std::filesystem::create_directories(app.file("study"));
  app.put_file("study/DISTANCE.TXT", "old and longer than what comes now\r\n");
  app.put_file("study/other.txt", "stays");
  open_times(1);
  save_times_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("base_time.txt", "1 1 \r\n"), Pair("distance.txt", "1 1 \r\n"),
                          Pair("imp_time.txt", "1 1 \r\n"), Pair("other.txt", "stays")));
}

TEST_F(GridSave, of_trips_writes_a_file_for_each_chosen_industry) {
  open_trips(2, {1, 3});
  fill(2, {"1", "2", "1", "2", "12.5"});
  type_into_cell(3, 3, "100");
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_THAT(files_in("study"), ElementsAre(Pair("trips_Mining.txt",
                                                  "         1         1      12.5\r\n"
                                                  "         1         2      12.5\r\n"
                                                  "         2         1      12.5\r\n"
                                                  "         2         2      12.5\r\n"),
                                             Pair("trips_Service.txt",
                                                  "         1         1          \r\n"
                                                  "         1         2          \r\n"
                                                  "         2         1          \r\n"
                                                  "         2         2       100\r\n")));
  EXPECT_EQ(app.bytes("trips.csv"), "(none)");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_FALSE(program.frmDataGrid.SaveClone.is_set());
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridSave, of_trips_describes_each_file_by_its_own_lines) {
  open_trips(1, {1});
  press_on_grid("cmdClose");
  const std::string description = app.bytes("schema2.inp") + "COL3=Mining Double Width 10\r\n";
  save_into("study");
  EXPECT_EQ(app.bytes("schema.ini"), description);
}

TEST_F(GridSave, of_trips_numbers_the_origins_by_the_place_of_the_record) {
  open_trips(2, {1});
  app.sql("UPDATE sosec SET Origin = 77");
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_EQ(app.bytes("study/trips_Mining.txt"),
            "         1         1          \r\n         1         2          \r\n"
            "         2         1          \r\n         2         2          \r\n");
}

TEST_F(GridSave, of_sorted_trips_numbers_the_origins_in_the_sorted_order) {
  open_trips(2, {1});
  app.sql("UPDATE sosec SET Mining = 10 * Origin + Destination");
  analyst.will_enter("Destination");
  press_on_grid("cmdSort");
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_EQ(app.bytes("study/trips_Mining.txt"),
            "         1         1        11\r\n         2         2        12\r\n"
            "         1         1        21\r\n         2         2        22\r\n");
}

TEST_F(GridSave, of_filtered_trips_stops_at_the_end_of_the_records_with_the_hourglass_on_until_it_is_read) {
  open_trips(2, {1});
  app.sql("UPDATE sosec SET Origin = 77");
  analyst.will_enter("Destination = 2");
  press_on_grid("cmdFilter");
  press_on_grid("cmdClose");
  analyst.forget_boxes();
  analyst.will_press("OK");
  std::string at_report;
  analyst.when_box_shows = [&at_report](const analyst::Box&) { at_report = hourglass(); };
  save_into("study");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3021':"));
  EXPECT_THAT(files_in("study"), IsEmpty());
  EXPECT_EQ(at_report, "hourglass");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_THAT(sosec(), ElementsAre("77|1|null", "1|2|null", "77|1|null", "1|2|null"));
  EXPECT_EQ(loaded_forms(), "Form2*- Frmdirget*");
}

TEST_F(GridSave, of_trips_renumbers_as_many_zones_as_the_box_shows_and_not_as_are_stored) {
  open_trips(2, {1});
  app.sql("UPDATE sosec SET Origin = 77");
  press_on_grid("cmdClose");
  testing_aids::put_by_assistive_tool(*program.form2->MaskEdBox1.widget(), "1");
  save_into("study");
  EXPECT_THAT(sosec(), ElementsAre("1|1|null", "77|2|null", "77|1|null", "77|2|null"));
}

TEST_F(GridSave, of_trips_with_no_industry_chosen_any_more_faults_before_it_changes_anything) {
  open_trips(1, {1});
  app.sql("UPDATE sosec SET Origin = 77; UPDATE Industries SET industry_number = 0");
  press_on_grid("cmdClose");
  save_and_expect("3021");
  EXPECT_THAT(sosec(), ElementsAre("77|1|null"));
}

TEST_F(GridSave, of_trips_has_places_for_four_industries) {
  open_trips(1, {0, 1, 2, 3});
  app.sql("UPDATE sosec SET Origin = 77");
  press_on_grid("cmdClose");
  app.sql("INSERT INTO Industries SELECT * FROM Industries LIMIT 1");
  save_and_expect("9");
  EXPECT_EQ(sosec("WHERE Origin = 77").size(), 1U);
}

TEST_F(GridSave, of_commuters_with_no_occupation_chosen_any_more_faults_before_it_writes_anything) {
  open_employment(1, {7});
  press_on_grid("cmdClose");
  app.sql("UPDATE Occupations SET occupation_number = 0");
  save_and_expect("3021");
}

TEST_F(GridSave, of_commuters_has_places_for_thirteen_occupations) {
  open_employment(1, {4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  press_on_grid("cmdClose");
  app.sql("INSERT INTO Occupations SELECT * FROM Occupations WHERE occupation_number <= 2");
  save_and_expect("9");
  app.sql("DELETE FROM Occupations WHERE rowid = (SELECT max(rowid) FROM Occupations)");
  save_into("study");
  EXPECT_EQ(files_in("study").size(), 12U);
}

TEST_F(GridSave, of_times_faults_on_an_empty_table_and_leaves_the_files_of_an_earlier_one) {
  open_times(1);
  press_on_grid("cmdClose");
  app.sql("DELETE FROM sosec");
  std::filesystem::create_directories(app.file("study"));
  app.put_file("study/distance.txt", "1 1 5\r\n");
  save_and_expect("3021");
}

TEST_F(GridSave, of_commuters_writes_residents_and_workers_for_each_occupation) {
  open_population(3, {11, 7});
  fill(1, {"1", "3", "", "", "40"});
  fill(2, {"1", "2", "", "", "1.5"});
  press_on_grid("cmdClose");
  fill(1, {"2", "3", "", "", "7"});
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_THAT(files_in("study"), ElementsAre(Pair("commute _Sales.txt",
                                                  "         1        40          \r\n"
                                                  "         2        40         7\r\n"
                                                  "         3        40         7\r\n"),
                                             Pair("commute _Service.txt",
                                                  "         1       1.5          \r\n"
                                                  "         2       1.5          \r\n"
                                                  "         3                    \r\n")));
  EXPECT_EQ(
      app.bytes("schema.ini"),
      app.bytes("schema4.inp") + "COL2=Service Double Width 10\r\nCOL3=Service_emp   Double Width 10\r\n");
  EXPECT_EQ(hourglass(), "normal");
  EXPECT_EQ(loaded_forms(), "");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
}

TEST_F(GridSave, of_commuters_leaves_out_a_zone_that_one_of_the_passes_lacks) {
  open_population(3, {7});
  app.sql("DELETE FROM sosec WHERE Zone = 2");
  press_on_grid("cmdClose");
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_EQ(app.bytes("study/commute _Sales.txt"),
            "         1                    \r\n         3                    \r\n");
}

TEST_F(GridSave, of_an_unknown_mode_writes_nothing) {
  open_times(1);
  press_on_grid("cmdClose");
  for (const char* word : {"commuter_trip", "", "freight"}) {
    as_handler([&] {
      program.form2->Text1(2).set_text(word);
      inputs::frmdatagrid::savfle(program);
    });
  }
  save_into("study");
  EXPECT_THAT(files_in("study"), IsEmpty());
}

TEST_F(GridSave, of_daily_trips_writes_one_file_when_it_is_called) {
  open_daily_trips(2);
  fill(2, {"1", "2", "1", "2", "3.5"});
  press_on_grid("cmdClose");
  std::filesystem::create_directories(app.file("study"));
  choose_directory(app.file("study").string());
  as_handler([this] { inputs::frmdatagrid::savcommutrip(program); });
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("commutrip.txt", "1 1 3.5\r\n1 2 3.5\r\n2 1 3.5\r\n2 2 3.5\r\n")));
}

TEST_F(GridSave, into_a_vanished_directory_ends_in_a_report_and_can_be_done_again_elsewhere) {
  open_times(1);
  press_on_grid("cmdClose");
  save_into_spoilt([](const auto& directory) { std::filesystem::remove(directory); });
  EXPECT_THAT(last_box(), StartsWith("Run-time error '76':"));
  EXPECT_EQ(loaded_forms(), "Form2- Frmdirget*");
  save_into("study");
  EXPECT_EQ(app.bytes("study/distance.txt"), "1 1 \r\n");
}

TEST_F(GridSave, of_trips_into_a_vanished_directory_ends_in_a_report_and_can_be_done_again_elsewhere) {
  open_trips(1, {1, 3});
  press_on_grid("cmdClose");
  save_into_spoilt([](const auto& directory) { std::filesystem::remove(directory); });
  EXPECT_THAT(last_box(), StartsWith("Run-time error '76':"));
  EXPECT_EQ(hourglass(), "normal");
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("trips_Mining.txt", "         1         1          \r\n"),
                          Pair("trips_Service.txt", "         1         1          \r\n")));
  EXPECT_EQ(hourglass(), "normal");
}

TEST_F(GridSave, of_commuters_that_lacks_its_template_can_be_done_again_when_it_is_back) {
  open_employment(1, {7});
  press_on_grid("cmdClose");
  std::filesystem::rename(app.file("schema4.inp"), app.file("away.inp"));
  analyst.forget_boxes();
  analyst.will_press("OK");
  save_into("study");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '53':"));
  std::filesystem::rename(app.file("away.inp"), app.file("schema4.inp"));
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("commute _Sales.txt", "         1                    \r\n")));
}

TEST_F(GridSave, over_a_directory_of_a_file_s_name_leaves_no_file_of_the_three) {
  open_times(1);
  press_on_grid("cmdClose");
  save_into_spoilt(
      [](const auto& directory) { std::filesystem::create_directory(directory / "base_time.txt"); });
  EXPECT_THAT(last_box(), StartsWith("Run-time error '75':"));
  EXPECT_THAT(app.names_in("spoilt"), ElementsAre("base_time.txt"));
  save_into("study");
  EXPECT_EQ(app.bytes("study/imp_time.txt"), "1 1 \r\n");
}

#ifndef _WIN32
TEST_F(GridSave, into_a_directory_without_permission_ends_in_a_report) {
  open_times(1);
  press_on_grid("cmdClose");
  std::filesystem::create_directory(app.file("locked"));
  choose_directory(app.file("locked").string());
  std::filesystem::permissions(app.file("locked"),
                               std::filesystem::perms::group_write | std::filesystem::perms::others_write |
                                   std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  analyst.will_press("OK");
  {
    const testing_aids::OrdinaryUser user;
    ASSERT_TRUE(user);
    press(program.frmdirget, "cmdExit");
  }
  EXPECT_THAT(last_box(), StartsWith("Run-time error '75':"));
  EXPECT_THAT(app.names_in("locked"), IsEmpty());
  save_into("study");
  EXPECT_EQ(app.bytes("study/distance.txt"), "1 1 \r\n");
}

TEST_F(GridSave, that_runs_out_of_room_ends_in_a_report_with_no_file_and_can_be_done_again) {
  open_times(12);
  fill(3, {"1", "12", "1", "12", "7"});
  press_on_grid("cmdClose");
  std::filesystem::create_directory(app.file("small"));
  choose_directory(app.file("small").string());
  analyst.will_press("OK");
  {
    const testing_aids::SmallDisk disk(100);
    press(program.frmdirget, "cmdExit");
  }
  EXPECT_THAT(last_box(), StartsWith("Run-time error '57':"));
  EXPECT_THAT(last_box(), ::testing::EndsWith("small/base_time.txt"));
  EXPECT_EQ(loaded_forms(), "Form2- Frmdirget*");
  EXPECT_THAT(app.names_in("small"), IsEmpty());
  save_into("small");
  EXPECT_THAT(app.bytes("small/base_time.txt"), ::testing::EndsWith("12 12 7\r\n"));
  EXPECT_EQ(loaded_forms(), "");
}
#endif

}  // namespace
