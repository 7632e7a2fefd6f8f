// Every message of the checks before the question, and what its end leaves behind.
#include "commuter_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CommuterEnds : public testing_aids::CommuterPage {
 protected:
  void make_ready_with_districts() {
    make_ready();
    analyst.click("Check1");
    pick("Command7", "sample/districts.txt");
  }

  void set_zones(const std::string& value) {
    by_code([this] { program.form2.unload_without_storing(); });
    app.sql("UPDATE zones SET numzones = " + value);
  }
};

constexpr const char* no_zones = "The number of zones for this analysis has not been specified! [OK]";

// Without a database object to close, the way back to the start breaks off: the picks and the page are gone,
// and the form comes anew in its design layout while the menus stay off.
TEST_F(CommuterEnds, no_zones_forgets_the_picks_and_shows_the_form_in_its_design_layout) {
  make_ready();
  set_zones("0");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre(no_zones));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 1
directory: .
picks:
menus: spec_CuCo spec_comm
)");
  EXPECT_TRUE(analyst.sees("Command2"));
  EXPECT_FALSE(analyst.sees("Command11"));
  EXPECT_FALSE(analyst.sees("Command10(7)"));
  EXPECT_EQ(program.form3.caption(), "Form3");
  EXPECT_EQ(program.form3.window_state(), runtime::forms::WindowState::maximized);
}

TEST_F(CommuterEnds, a_number_of_zones_that_was_left_out_counts_as_none) {
  make_ready();
  set_zones("NULL");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre(no_zones));
}

TEST_F(CommuterEnds, no_output_file_keeps_the_page_with_its_picks) {
  open_commuter_page();
  pick("Command10(7)", sales);
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("No Output File Specified! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 1
directory: .
picks: 7
menus: spec_CuCo spec_comm
)");
  EXPECT_TRUE(analyst.can_use("Command11"));
}

TEST_F(CommuterEnds, an_output_path_that_stands_in_the_box_from_the_table_counts_for_nothing) {
  open_commuter_page();
  ASSERT_EQ(analyst.text_of("Text6"), "results/commuter.txt");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("No Output File Specified! [OK]"));
}

TEST_F(CommuterEnds, no_occupation_keeps_the_page) {
  open_commuter_page();
  pick("Command12", "results/sales.txt");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Must have at least one occupation input file! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2 Form1
open files:
new levels: 1
directory: .
picks:, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterEnds, no_reliability_option_keeps_the_page) {
  make_ready();
  by_code([this] { program.form3->Option4(0).set_value(false); });
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Please select an option for reliability analysis! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2 Form1
open files:
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
  EXPECT_THAT(model_files(), IsEmpty());
}

TEST_F(CommuterEnds, a_missing_time_file_closes_the_page_and_keeps_the_picks_and_the_step) {
  make_ready();
  std::filesystem::remove(app.file("sample/base_time.txt"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file sample/base_time.txt not found. Please respecify file. "
                                   " [exclamation, OK]"));
  EXPECT_EQ(left(), R"(forms: Form1
open files:
new levels: 0
directory: .
picks: 7, output
menus: Inputs Run spec_CuCo spec_comm
)");
  EXPECT_THAT(app.names_in("commuter"), ElementsAre("CC.EXE", "OUTPUT1.EXE", "base_var.txt"));
}

TEST_F(CommuterEnds, each_of_the_three_time_files_is_looked_for_and_the_first_missing_one_is_told) {
  for (const char* file : {"sample/imp_time.txt", "sample/base_time.txt", "sample/distance.txt"}) {
    std::filesystem::remove(app.file(file));
    open_commuter_page();
    program.form3.PickCount = 1;
    program.form3.OutputFile = "out";
    press_and_answer({"OK"});
    EXPECT_THAT(shown(), ElementsAre(std::string("file ") + file +
                                     " not found. Please respecify file.  [exclamation, OK]"));
    by_code([this] { program.mdiform1.spec_timdist.set_enabled(true); });
  }
}

TEST_F(CommuterEnds, a_time_file_that_was_never_named_is_missing) {
  app.sql("UPDATE timdist SET distance = NULL");
  make_ready();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file  not found. Please respecify file.  [exclamation, OK]"));
}

TEST_F(CommuterEnds, a_district_file_that_was_not_named_leaves_number_3_open) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("File  not Found or not Specified! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files: 3
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterEnds, a_district_file_that_was_not_named_leaves_the_heads_of_the_parameter_files) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  by_code([this] { program.desktop.files.Close(3); });
  EXPECT_EQ(app.bytes("commuter/outpar.txt"), in_app("results/sales") + "\r\n 24 \r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nDB\r\n0\r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar2.txt"), " 24 \r\nDB\r\n1\r\n");
}

TEST_F(CommuterEnds, a_district_file_that_is_gone_is_told_by_its_path) {
  make_ready_with_districts();
  std::filesystem::remove(app.file("sample/districts.txt"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("File " + in_app("sample/districts.txt") + " not Found or not Specified! [OK]"));
}

TEST_F(CommuterEnds, number_3_left_open_makes_the_next_press_end_without_a_word) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  analyst.click("Check1");
  for (int again = 0; again < 2; ++again) {
    press();
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(left(), R"(forms: Form3* Form2
open files: 3
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
  }
}

TEST_F(CommuterEnds, no_number_of_districts_goes_back_to_the_first_step) {
  app.sql("UPDATE zones SET numdstrct = 0");
  make_ready_with_districts();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("Please specify number of Districts under - Prepare Inputs - Menu Item!  [OK]"));
  EXPECT_EQ(left(), R"(forms:
open files: 3
new levels: 0
directory: .
picks:
menus: Inputs Run spec_timdist spec_comm
)");
  EXPECT_EQ(model_files().at("district.txt"), "= sample/districts.txt");
}

TEST_F(CommuterEnds, more_districts_than_zones_goes_back_to_the_first_step) {
  app.sql("UPDATE zones SET numdstrct = 25");
  make_ready_with_districts();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Number of Districts greater than zones! [OK]"));
  EXPECT_EQ(left(), R"(forms:
open files: 3
new levels: 0
directory: .
picks:
menus: Inputs Run spec_timdist spec_comm
)");
}

TEST_F(CommuterEnds, as_many_districts_as_zones_go_on) {
  app.sql("UPDATE zones SET numdstrct = 24");
  make_ready_with_districts();
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre("The Number of Zones= 24\nThe Number of Districts= 24\n"
                                   "The occupations are Sales\nDo you wish to continue? [Yes, No]"));
}

TEST_F(CommuterEnds, a_missing_occupation_file_goes_back_to_the_first_step) {
  app.put_file("sample/first.txt", "");
  open_commuter_page();
  pick("Command10(7)", sales);
  pick("Command10(0)", "sample/first.txt");
  pick("Command12", "results/sales.txt");
  std::filesystem::remove(app.file("sample/first.txt"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("File " + in_app("sample/first.txt") + " not Found! [OK]"));
  EXPECT_EQ(left(), R"(forms:
open files: 3
new levels: 0
directory: .
picks:
menus: Inputs Run spec_timdist spec_comm
)");
  EXPECT_EQ(model_files().at("popemp7.txt"), std::string("= ") + sales);
  EXPECT_FALSE(model_files().contains("popemp0.txt"));
  by_code([this] { program.desktop.files.Close(3); });
  EXPECT_EQ(app.bytes("commuter/outpar.txt"),
            in_app("results/sales") + "\r\n 24 \r\n0             0\r\n 2 \r\n7\r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nDB\r\n0\r\n 2 \r\n7\r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar2.txt"), " 24 \r\nDB\r\n1\r\n 2 \r\n7\r\n");
  EXPECT_EQ(program.form3.PickPath(1) + program.form3.PickPath(2) + program.form3.PickCode(1), "");
}

// A directory is no file, whatever names it.
TEST_F(CommuterEnds, a_directory_counts_as_a_missing_file) {
  make_ready_with_districts();
  program.form3.DistrictFile = in_app("sample");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("File " + in_app("sample") + " not Found or not Specified! [OK]"));
  by_code([this] { program.desktop.files.Close(3); });
  analyst.click("Check1");
  program.form3.PickPath(1) = in_app("sample");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("File " + in_app("sample") + " not Found! [OK]"));
  by_code([this] { program.desktop.files.Close(3); });
  make_ready();
  app.sql("UPDATE timdist SET distance = 'sample'");
  by_code([this] { program.form3->Data1(1).Refresh(); });
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file sample not found. Please respecify file.  [exclamation, OK]"));
}

TEST_F(CommuterEnds, number_3_left_open_outlives_the_page) {
  app.sql("UPDATE zones SET numdstrct = 0");
  make_ready_with_districts();
  press_and_answer({"OK"});
  make_ready();
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files: 3
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

}  // namespace
