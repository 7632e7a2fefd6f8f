// The conversion of tons to trucks, with a stand-in in the place of its program.
#include "conversion_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Conversion : public testing_aids::ConversionPage {
 protected:
  Conversion() {
    app.sql(
        "DROP TABLE tontotruck; CREATE TABLE tontotruck (a INTEGER, b REAL, c REAL) STRICT;"
        "INSERT INTO tontotruck VALUES (3, 12.5, 0.5), (4, 1, NULL)");
  }

  static constexpr const char* closed = R"(forms:
open files:
new levels: 0
directory: ./truck
picks:
menus: Inputs Run spec_timdist
)";
};

TEST_F(Conversion, writes_its_files_runs_and_tells) {
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Analysis Completed [OK]"));
  EXPECT_EQ(app.bytes("truck/tontotruck.txt"), "  3  12.5  0.5\r\n  4  1  \r\n");
  EXPECT_EQ(app.bytes("truck/ttc.txt"), in_app("sample") + "/\r\n 24 \r\n");
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "1 2 300\r\n");
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/distance.txt"));
  EXPECT_EQ(program.form3.OutputFile, in_app("sample/tons.txt"));
  program.form3.OutputFile.clear();
  EXPECT_EQ(left(), closed);
}

TEST_F(Conversion, a_bare_commodity_name_gives_an_empty_first_line) {
  app.put_file("tons.txt", "1 2 300\r\n");
  app.sql("UPDATE Anfiles SET TonsFile = 'tons.txt'");
  analyst.choose("mnu_tonstotrucks");
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/ttc.txt"), "\r\n 24 \r\n");
}

TEST_F(Conversion, a_backslash_parts_the_directory_of_the_commodity_file_too) {
  app.sql("UPDATE Anfiles SET TonsFile = 'sample\\tons.txt'");
  analyst.choose("mnu_tonstotrucks");
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/ttc.txt"), "sample\\\r\n 24 \r\n");
}

TEST_F(Conversion, passes_every_row_and_column_on_in_stored_order) {
  app.sql(
      "DROP TABLE tontotruck; CREATE TABLE tontotruck (z TEXT, y INTEGER, x REAL, w REAL) STRICT;"
      "INSERT INTO tontotruck VALUES ('grain', 9, -0.25, 100), (NULL, 1, 2.5, 1234567), ('ore', 5, 0, 1e20)");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/tontotruck.txt"),
            "  grain  9  -0.25  100\r\n    1  2.5  1234567\r\n  ore  5  0  1E+20\r\n");
}

TEST_F(Conversion, takes_the_distance_file_that_the_page_shows) {
  open_truck_page();
  pick("Command4(5)", "sample/imp_time.txt");
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/imp_time.txt"));
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"), ElementsAre(in_app("sample/imp_time.txt")));
}

TEST_F(Conversion, finds_its_files_in_its_own_directory) {
  program_does("directory where.txt\ncopy ttc.txt seen.txt\nwrite Err.txt 0\\r\\n\n");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/where.txt"), in_app("truck"));
  EXPECT_EQ(app.bytes("truck/seen.txt"), in_app("sample") + "/\r\n 24 \r\n");
}

TEST_F(Conversion, keeps_the_picks_of_an_earlier_page) {
  program.form3.PickCount = 1;
  program.form3.PickCode(1) = "2";
  program.form3.DistrictFile = "kept";
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_EQ(program.form3.PickCount, 1);
  EXPECT_EQ(program.form3.PickCode(1), "2");
  EXPECT_EQ(program.form3.DistrictFile, "kept");
}

TEST_F(Conversion, removes_what_an_earlier_run_left_before_it_starts) {
  app.put_file("truck/district.txt", "old");
  app.put_file("truck/err.txt", "1, old\r\n");
  program_does("exit 3\n");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/district.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/err.txt"), "(none)");
}

TEST_F(Conversion, no_zones_ends_with_the_page_up_and_leaves_the_files_of_an_earlier_one) {
  const std::map<std::string, std::string> old{
      {"Dist.txt", "old"}, {"Err.txt", "1, old\r\n"}, {"district.txt", "old"}, {"tontotruck.txt", "old"}};
  std::filesystem::remove(app.file("truck/stand_in.txt"));
  for (const auto& [name, bytes] : old) app.put_file("truck/" + name, bytes);
  open_truck_page();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numzones = 0");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("The number of zones for this analysis has not been specified! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 0
directory: .
picks:
menus: spec_timdist
)");
  EXPECT_EQ(model_files(), old);
}

TEST_F(Conversion, a_missing_base_time_file_closes_the_page_without_a_word) {
  open_truck_page();
  std::filesystem::remove(app.file("sample/base_time.txt"));
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_FALSE(program.form3.loaded());
  EXPECT_EQ(app.bytes("truck/ttc.txt"), "(none)");
}

// The step that was done before is undone: whatever the end, the workflow begins anew.
TEST_F(Conversion, after_the_time_files_were_saved_goes_back_to_the_first_step) {
  for (const bool silent : {false, true}) {
    save_time_files();
    ASSERT_TRUE(analyst.item_enabled("spec_CuCo"));
    ASSERT_FALSE(analyst.item_enabled("spec_timdist"));
    open_truck_page();
    if (silent) std::filesystem::remove(app.file("sample/base_time.txt"));
    press_and_answer(silent ? std::vector<std::string>{} : std::vector<std::string>{"OK"});
    EXPECT_EQ(shown().empty(), silent);
    EXPECT_THAT(left(), ::testing::EndsWith("menus: Inputs Run spec_timdist spec_comm\n"));
    EXPECT_FALSE(analyst.item_enabled("spec_CuCo"));
  }
}

TEST_F(Conversion, another_follows_from_the_directory_that_the_first_was_left_in) {
  for (const char* tons : {"1 2 300\r\n", "1 2 400\r\n"}) {
    app.put_file("sample/tons.txt", tons);
    open_truck_page();
    EXPECT_EQ(program.desktop.files.current_directory(), app.path());
    press_and_answer({"OK"});
    EXPECT_THAT(shown(), ElementsAre("Analysis Completed [OK]"));
    EXPECT_EQ(program.desktop.files.current_directory(), in_app("truck"));
    EXPECT_EQ(app.bytes("truck/commodity.txt"), tons);
  }
}

TEST_F(Conversion, comes_to_the_application_directory_before_it_opens_the_database) {
  open_truck_page();
  std::filesystem::current_path(app.file("results"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Analysis Completed [OK]"));
  EXPECT_THAT(app.names_in("results"), IsEmpty());
}

TEST_F(Conversion, its_program_finds_the_picks_in_the_database_file) {
  program_does("copy ../zelmor.mdb seen.mdb\nwrite Err.txt 0\\r\\n\n");
  open_truck_page();
  pick("Command4(5)", "sample/imp_time.txt");
  press_and_answer({"OK"});
  app.put_file("zelmor.mdb", app.bytes("truck/seen.mdb"));
  EXPECT_THAT(app.rows("SELECT distance, TonsFile FROM timdist, Anfiles"),
              ElementsAre(in_app("sample/imp_time.txt") + "|" + in_app("sample/tons.txt")));
}

TEST_F(Conversion, takes_the_first_record_of_the_paths_and_of_the_picks) {
  app.put_file("tons.txt", "9 9 900\r\n");
  app.sql(
      "UPDATE Anfiles SET TonsFile = 'sample/tons.txt'; INSERT INTO Anfiles (TonsFile) VALUES ('tons.txt');"
      "INSERT INTO timdist (distance, base_time) VALUES ('sample/districts.txt', 'sample/districts.txt')");
  analyst.choose("mnu_tonstotrucks");
  by_code([this] {
    for (const int data : {0, 1}) program.form3->Data1(data).recordset().MoveNext();
  });
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/distance.txt"));
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "1 2 300\r\n");
}

TEST_F(Conversion, names_a_directory_with_umlauts_commas_and_blanks_as_it_is) {
  std::filesystem::create_directory(app.file("Größe, neu"));
  app.put_file("Größe, neu/tons.txt", "1 2 300\r\n");
  analyst.choose("mnu_tonstotrucks");
  pick("Command15", "Größe, neu/tons.txt");
  press_and_answer({"OK"});
  EXPECT_EQ(app.bytes("truck/ttc.txt"), in_app("Größe, neu") + "/\r\n 24 \r\n");
  EXPECT_EQ(app.bytes("truck/commodity.txt"), "1 2 300\r\n");
}

TEST_F(Conversion, an_exit_code_is_told_with_the_words_turned_round) {
  program_does("exit 3\n");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Error executing truck to ton conversion program [stop sign, OK]"));
  EXPECT_EQ(program.form3.LastReply, "1");
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(Conversion, a_refusal_is_told_directly_behind_the_words) {
  program_does("write Err.txt 2 bad tons\\r\\n\n");
  open_truck_page();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("error occured in program execution!bad tons [OK]"));
}

TEST_F(Conversion, a_fault_is_reported_and_ends_the_program_and_loses_nothing_that_was_stored) {
  open_truck_page();
  app.sql("DELETE FROM tontotruck");
  press_to_the_end("3021");
  EXPECT_THAT(shown(),
              ElementsAre("RuntimeError: Run-time error '3021':\n\nNo current record [stop sign, OK]"));
  EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("24"));
}

}  // namespace
