// A save that does not come to its end leaves the former files as they were.
#include "grid_save_page.h"
#include "inputs/grid_save.h"
#include "small_disk.h"

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::StartsWith;

class GridSaveCut : public testing_aids::GridSavePage {
 protected:
  void put_former_files() {
    for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) {
      app.put_file(std::string("study/") + name, std::string("former ") + name);
    }
  }
  void expect_former_files() {
    EXPECT_THAT(files_in("study"), ElementsAre(Pair("base_time.txt", "former base_time.txt"),
                                               Pair("distance.txt", "former distance.txt"),
                                               Pair("imp_time.txt", "former imp_time.txt")));
  }
  void save_and_expect_report(const std::string& number) {
    analyst.forget_boxes();
    analyst.will_press("OK");
    save_into("study");
    EXPECT_THAT(last_box(), StartsWith("Run-time error '" + number + "':"));
  }
};

#ifndef _WIN32
TEST_F(GridSaveCut, of_times_on_a_full_disk_leaves_the_three_former_files) {
  constexpr int zones = 40;
  std::filesystem::create_directory(app.file("study"));
  put_former_files();
  open_times(zones);
  press_on_grid("cmdClose");
  for (const std::uintmax_t bytes : {0, 1, 5000, 10000}) {
    const testing_aids::SmallDisk disk(bytes);
    save_and_expect_report("57");
    EXPECT_THAT(last_box(), ::testing::HasSubstr("study"));
    EXPECT_THAT(last_box(), ::testing::Not(::testing::HasSubstr("part")));
    expect_former_files();
  }
  save_into("study");
  EXPECT_THAT(app.bytes("study/distance.txt"), StartsWith("1 1 \r\n1 2 \r\n"));
  EXPECT_THAT(app.names_in("study"), ElementsAre("base_time.txt", "distance.txt", "imp_time.txt"));
}

#endif

TEST_F(GridSaveCut, of_times_with_one_place_barred_puts_none_of_the_three_in_place) {
  std::filesystem::create_directory(app.file("study"));
  put_former_files();
  std::filesystem::remove(app.file("study/imp_time.txt"));
  std::filesystem::create_directory(app.file("study/imp_time.txt"));
  open_times(1);
  press_on_grid("cmdClose");
  save_and_expect_report("75");
  EXPECT_EQ(app.bytes("study/distance.txt"), "former distance.txt");
  EXPECT_EQ(app.bytes("study/base_time.txt"), "former base_time.txt");
  EXPECT_THAT(app.names_in("study"), ElementsAre("base_time.txt", "distance.txt", "imp_time.txt"));
}

TEST_F(GridSaveCut, of_trips_leaves_a_former_file_that_the_program_holds_open) {
  std::filesystem::create_directory(app.file("study"));
  app.put_file("study/trips_Mining.txt", "former");
  open_trips(1, {1});
  press_on_grid("cmdClose");
  as_handler([this] { program.desktop.files.open_for_input(5, "study/trips_Mining.txt"); });
  save_and_expect_report("55");
  EXPECT_THAT(files_in("study"), ElementsAre(Pair("trips_Mining.txt", "former")));
  as_handler([this] { program.desktop.files.Close(5); });
  save_into("study");
  EXPECT_EQ(app.bytes("study/trips_Mining.txt"), "         1         1          \r\n");
}

TEST_F(GridSaveCut, of_times_is_not_hindered_by_numbers_that_are_open_and_leaves_them_so) {
  open_times(1);
  press_on_grid("cmdClose");
  as_handler([this] {
    for (const int number : {1, 3, 5}) {
      program.desktop.files.open_for_output(number, "held" + std::to_string(number) + ".txt");
    }
  });
  save_into("study");
  EXPECT_THAT(files_in("study"),
              ElementsAre(Pair("base_time.txt", "1 1 \r\n"), Pair("distance.txt", "1 1 \r\n"),
                          Pair("imp_time.txt", "1 1 \r\n")));
  std::string open;
  for (int number = 1; number <= 10; ++number) {
    if (program.desktop.files.is_open(number)) open += std::to_string(number);
  }
  EXPECT_EQ(open, "135");
}

TEST_F(GridSaveCut, of_trips_and_of_commuters_is_not_hindered_by_numbers_that_are_open) {
  as_handler([this] { program.desktop.files.open_for_output(3, "held.txt"); });
  open_trips(1, {1});
  press_on_grid("cmdClose");
  as_handler([this] { program.desktop.files.open_for_output(1, "held_too.txt"); });
  save_into("study");
  EXPECT_EQ(app.bytes("study/trips_Mining.txt"), "         1         1          \r\n");
  as_handler([this] { program.desktop.files.Close(1); });
  open_employment(1, {7});
  press_on_grid("cmdClose");
  as_handler([this] { program.desktop.files.open_for_output(1, "held_too.txt"); });
  save_into("study");
  EXPECT_EQ(app.bytes("study/commute _Sales.txt"), "         1                    \r\n");
}

TEST_F(GridSaveCut, lets_former_files_of_another_case_give_way) {
  std::filesystem::create_directory(app.file("study"));
  app.put_file("study/DISTANCE.TXT", "former");
  app.put_file("study/Trips_Mining.txt", "former");
  open_times(1);
  press_on_grid("cmdClose");
  save_into("study");
  open_trips(1, {1});
  press_on_grid("cmdClose");
  save_into("study");
  EXPECT_THAT(app.names_in("study"),
              ElementsAre("base_time.txt", "distance.txt", "imp_time.txt", "trips_Mining.txt"));
}

}  // namespace
