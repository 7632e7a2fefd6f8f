// The second layout of the directory "truck", which nothing on the screen starts.
#include "commercial/form3.h"
#include "commercial_page.h"

namespace {

using ::testing::IsEmpty;

class Preparation : public testing_aids::CommercialPage {
 protected:
  Preparation() { std::filesystem::create_directory(app.file("truck/trktrp")); }

  void prepare() {
    as_handler([this] { commercial::form3::run_commercform3(program); });
    EXPECT_THAT(analyst.boxes(), IsEmpty());
  }

  void add_pick(const char* code, const std::string& path) {
    const int place = ++program.form3.PickCount;
    program.form3.PickCode(place) = code;
    program.form3.PickPath(place) = path;
  }
};

TEST_F(Preparation, without_a_pick_writes_three_lines_and_copies_the_time_files) {
  prepare();
  EXPECT_EQ(app.bytes("truck/outpar.txt"), app.path() + "\\truck\r\n9\r\n 0 \r\n");
  for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) {
    EXPECT_EQ(app.bytes(std::string("truck/trktrp/") + name), app.bytes(std::string("sample/") + name))
        << name;
  }
}

TEST_F(Preparation, writes_all_fields_but_the_first_each_with_a_comma) {
  add_pick("2", in_app(mining));
  prepare();
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "4.62,5469,25.04,50,1,95,\r\n");
  EXPECT_EQ(app.bytes("truck/trktrp2.txt"), app.bytes(mining));
  EXPECT_EQ(app.bytes("truck/outpar.txt"), app.path() + "\\truck\r\n9\r\n 1 \r\n2\r\n");
}

TEST_F(Preparation, an_empty_path_skips_the_copy_and_the_code_but_not_the_costs) {
  add_pick("9", "");
  prepare();
  EXPECT_EQ(app.bytes("truck/outpar.txt"), app.path() + "\\truck\r\n9\r\n 1 \r\n");
  EXPECT_EQ(app.bytes("truck/cost9.txt"), "10.61,135,0,50,1,95,\r\n");
}

TEST_F(Preparation, deletes_old_costs_in_truck_and_old_trips_in_the_application_directory) {
  app.put_file("truck/cost4.txt", "old");
  app.put_file("truck/trktrp4.txt", "stays");
  app.put_file("trktrp4.txt", "goes");
  prepare();
  EXPECT_EQ(app.bytes("truck/cost4.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/trktrp4.txt"), "stays");
  EXPECT_EQ(app.bytes("trktrp4.txt"), "(none)");
}

TEST_F(Preparation, copies_only_the_time_files_that_exist) {
  app.sql("UPDATE timdist SET base_time = NULL, improvement_time = 'sample/none.txt'");
  prepare();
  EXPECT_THAT(app.names_in("truck/trktrp"), ::testing::ElementsAre("distance.txt"));
}

TEST_F(Preparation, passes_over_a_table_of_time_files_without_a_row) {
  app.sql("DELETE FROM timdist");
  prepare();
  EXPECT_THAT(app.names_in("truck/trktrp"), IsEmpty());
}

TEST_F(Preparation, names_no_file_for_a_path_behind_the_third) {
  app.sql("ALTER TABLE timdist ADD COLUMN more TEXT; UPDATE timdist SET more = 'sample/districts.txt'");
  prepare();
  EXPECT_EQ(app.bytes("truck/trktrp/.txt"), app.bytes("sample/districts.txt"));
}

TEST_F(Preparation, writes_nothing_for_an_empty_field_but_its_comma) {
  app.sql("UPDATE Commercial SET \"Unit Cost\" = NULL, sigma = 0.5");
  add_pick("2", "");
  prepare();
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "0.5,5469,,50,1,95,\r\n");
}

TEST_F(Preparation, without_the_directory_of_the_time_copies_writes_all_else) {
  std::filesystem::remove_all(app.file("truck/trktrp"));
  add_pick("2", in_app(mining));
  prepare();
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "4.62,5469,25.04,50,1,95,\r\n");
  EXPECT_FALSE(std::filesystem::exists(app.file("truck/trktrp")));
}

TEST_F(Preparation, a_cost_file_that_cannot_be_made_is_skipped_and_leaves_no_number_open) {
  std::filesystem::create_directory(app.file("truck/cost2.txt"));
  add_pick("2", "");
  add_pick("9", "");
  prepare();
  EXPECT_EQ(app.bytes("truck/cost9.txt"), "10.61,135,0,50,1,95,\r\n");
  EXPECT_FALSE(program.desktop.files.is_open(2));
}

TEST_F(Preparation, number_2_left_open_is_closed_when_no_cost_file_can_be_made) {
  add_pick("2", "");
  add_pick("9", "");
  by_code([this] { program.desktop.files.open_for_output(2, "left_open.txt"); });
  prepare();
  EXPECT_FALSE(program.desktop.files.is_open(2));
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/cost9.txt"), "10.61,135,0,50,1,95,\r\n");
}

TEST_F(Preparation, a_cost_file_that_is_held_open_stays_as_it_is) {
  add_pick("2", "");
  add_pick("9", "");
  by_code([this] { program.desktop.files.open_for_output(3, "truck/cost2.txt"); });
  prepare();
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "");
  EXPECT_EQ(app.bytes("truck/cost9.txt"), "10.61,135,0,50,1,95,\r\n");
  EXPECT_FALSE(program.desktop.files.is_open(2));
  EXPECT_TRUE(program.desktop.files.is_open(3));
}

TEST_F(Preparation, a_pick_behind_the_last_entry_is_skipped) {
  program.form3.PickCode(13) = "9";
  program.form3.PickCount = 14;
  prepare();
  EXPECT_THAT(app.bytes("truck/outpar.txt"), ::testing::EndsWith("\r\n 14 \r\n"));
  EXPECT_EQ(app.bytes("truck/cost9.txt"), "10.61,135,0,50,1,95,\r\n");
  EXPECT_EQ(app.bytes("truck/trktrp/imp_time.txt"), app.bytes("sample/imp_time.txt"));
  EXPECT_FALSE(program.desktop.files.is_open(1));
  EXPECT_FALSE(program.desktop.files.is_open(2));
}

TEST_F(Preparation, a_path_behind_the_eleventh_is_skipped) {
  std::string columns;
  for (int column = 4; column <= 12; ++column) {
    columns += "ALTER TABLE timdist ADD COLUMN more" + std::to_string(column) + " TEXT;";
  }
  app.sql(columns + "UPDATE timdist SET more12 = 'sample/districts.txt'");
  prepare();
  EXPECT_THAT(app.names_in("truck/trktrp"),
              ::testing::ElementsAre("base_time.txt", "distance.txt", "imp_time.txt"));
}

TEST_F(Preparation, failing_statements_are_skipped) {
  std::filesystem::remove_all(app.file("truck/trktrp"));
  add_pick("2", in_app("sample/none.txt"));
  add_pick("77", in_app(mining));
  prepare();
  EXPECT_EQ(app.bytes("truck/outpar.txt"), app.path() + "\\truck\r\n9\r\n 2 \r\n2\r\n77\r\n");
  EXPECT_EQ(app.bytes("truck/trktrp77.txt"), app.bytes(mining));
  EXPECT_EQ(app.bytes("truck/trktrp2.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/cost77.txt"), "\r\n");
  EXPECT_FALSE(program.desktop.files.is_open(1));
}

}  // namespace
