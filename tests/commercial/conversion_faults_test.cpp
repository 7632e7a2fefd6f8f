// What goes wrong in a conversion: a program that fails closes the page, and what no step expects is reported
// and ends the program.
#include <optional>

#include "conversion_page.h"
#include "small_disk.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class ConversionFaults : public testing_aids::ConversionPage {
 protected:
  /// What the page is closed with when its program has been started.
  static constexpr const char* closed_in_truck = R"(forms:
open files:
new levels: 0
directory: ./truck
picks:, output
menus: Inputs Run spec_timdist
)";

  void expect_failed() {
    open_truck_page();
    press_and_answer({"OK"});
    EXPECT_THAT(shown(), ElementsAre("Error executing truck to ton conversion program [stop sign, OK]"));
    EXPECT_EQ(left(), closed_in_truck);
    EXPECT_EQ(program.form3.LastReply, "1");
    EXPECT_EQ(app.bytes("truck/commodity.txt"), "1 2 300\r\n");
  }

  /// A report of that number, behind which the program ends with 1; a new start finds the study as it was.
  void expect_end(const std::string& number) {
    press_to_the_end(number);
    EXPECT_THAT(app.rows("PRAGMA integrity_check"), ElementsAre("ok"));
    EXPECT_THAT(app.rows("SELECT numzones, numdstrct FROM zones"), ElementsAre("24|4"));
    forms::Program again(app.path());
    EXPECT_EQ(again.form3.OutputFile, "");
    EXPECT_EQ(again.desktop.workspace.levels(), 0);
  }
};

TEST_F(ConversionFaults, an_exit_code) {
  program_does("write Err.txt 0\\r\\n\nexit 1\n");
  expect_failed();
}

TEST_F(ConversionFaults, a_program_that_a_signal_ended) {
  program_does("write Err.txt 0\\r\\n\ncrash\n");
  expect_failed();
}

TEST_F(ConversionFaults, a_program_that_is_missing) {
  fs::remove(app.file("truck/tontotruck.exe"));
  expect_failed();
}

TEST_F(ConversionFaults, a_refusal_closes_the_page_too) {
  program_does("write Err.txt 2, no class 9\\r\\n\n");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("error occured in program execution!no class 9 [OK]"));
  EXPECT_EQ(left(), closed_in_truck);
  EXPECT_EQ(program.form3.LastReply, "");
}

TEST_F(ConversionFaults, an_old_verdict_never_counts_because_it_is_deleted_first) {
  app.put_file("truck/Err.txt", "0\r\n");
  program_does("exit 0\n");
  open_truck_page();
  expect_end("53");
}

TEST_F(ConversionFaults, a_verdict_without_words) {
  program_does("write Err.txt 7\n");
  open_truck_page();
  expect_end("62");
}

TEST_F(ConversionFaults, a_table_of_factors_without_a_row) {
  app.put_file("truck/tontotruck.txt", "old");
  open_truck_page();
  app.sql("DELETE FROM tontotruck");
  expect_end("3021");
  EXPECT_EQ(app.bytes("truck/tontotruck.txt"), "(none)") << "the old factors go first of all";
}

TEST_F(ConversionFaults, a_table_of_factors_that_is_gone) {
  open_truck_page();
  app.sql("DROP TABLE tontotruck");
  expect_end("3078");
}

TEST_F(ConversionFaults, a_commodity_file_that_is_gone) {
  open_truck_page();
  fs::remove(app.file("sample/tons.txt"));
  expect_end("53");
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/distance.txt"));
}

TEST_F(ConversionFaults, a_commodity_file_that_was_never_named) {
  app.sql("UPDATE Anfiles SET TonsFile = NULL");
  analyst.choose("mnu_tonstotrucks");
  expect_end("53");
}

TEST_F(ConversionFaults, a_distance_file_that_is_gone) {
  open_truck_page();
  fs::remove(app.file("sample/distance.txt"));
  expect_end("53");
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "(none)");
}

TEST_F(ConversionFaults, a_missing_model_directory) {
  open_truck_page();
  fs::remove_all(app.file("truck"));
  expect_end("76");
}

TEST_F(ConversionFaults, a_directory_in_the_place_of_the_factor_file) {
  open_truck_page();
  fs::create_directory(app.file("truck/tontotruck.txt"));
  expect_end("75");
}

TEST_F(ConversionFaults, store_the_commodity_file_that_was_picked_before_they_end_the_program) {
  program_does("exit 0\n");
  open_truck_page();
  expect_end("53");
  EXPECT_THAT(app.rows("SELECT TonsFile FROM Anfiles"), ElementsAre(in_app("sample/tons.txt")));
}

TEST_F(ConversionFaults, a_base_time_file_that_is_gone_closes_the_page_and_leaves_nothing_open) {
  open_truck_page();
  fs::remove(app.file("sample/base_time.txt"));
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(left(), R"(forms:
open files:
new levels: 0
directory: .
picks:
menus: Inputs Run spec_timdist
)");
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "(none)");
  EXPECT_NE(app.bytes("truck/tontotruck.txt"), "(none)");
}

#ifndef _WIN32
TEST_F(ConversionFaults, a_parameter_file_on_a_full_disk) {
  open_truck_page();
  fs::create_symlink("/dev/full", app.file("truck/ttc.txt"));
  expect_end("61");
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "1 2 300\r\n");
}

// The conversion deletes what stands in the place of these files, or takes no device for one, so that a disk
// without room is all that is left. Nothing was picked: no record is to be stored there as well.
class ConversionWithoutRoom : public ConversionFaults {
 protected:
  void expect_end_on_disk_of(std::uintmax_t bytes, const std::string& file) {
    app.sql("UPDATE Anfiles SET TonsFile = 'sample/tons.txt'");
    analyst.choose("mnu_tonstotrucks");
    std::optional<testing_aids::SmallDisk> disk(bytes);
    analyst.when_box_shows = [&disk](const analyst::Box&) { disk.reset(); };
    expect_end("57");
    EXPECT_THAT(last_box(), ::testing::EndsWith(file));
  }
};

TEST_F(ConversionWithoutRoom, for_the_factors) {
  expect_end_on_disk_of(100, in_app("truck/tontotruck.txt"));
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "(none)");
}

TEST_F(ConversionWithoutRoom, for_the_distances_leaves_no_cut_copy) {
  expect_end_on_disk_of(1000, in_app("truck/Dist.txt"));
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "(none)");
}

TEST_F(ConversionWithoutRoom, for_the_tons_leaves_no_cut_copy) {
  app.put_file("sample/tons.txt", std::string(20000, '1'));
  expect_end_on_disk_of(10000, in_app("truck/commodity.txt"));
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/distance.txt"));
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/ttc.txt"), "(none)");
}
#endif

}  // namespace
