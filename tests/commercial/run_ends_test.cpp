// Every message of the commercial checks, and what its end leaves behind.
#include "commercial/form3.h"
#include "commercial_page.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

/// The page with its picks behind an end that asks for another try.
class CommercialEnds : public testing_aids::CommercialPage {
 protected:
  static std::string page_stays(const std::string& forms, const std::string& picks) {
    return "forms: Form3* " + forms + "\nopen files:\nnew levels: 1\ndirectory: .\npicks:" + picks +
           "\nmenus: spec_CuCo spec_comm\n";
  }
};

TEST_F(CommercialEnds, no_zones_ends_plainly_with_the_page_up) {
  make_ready();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numzones = 0");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("The number of zones for this analysis has not been specified! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form1 Form2
open files:
new levels: 0
directory: .
picks: 2, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommercialEnds, no_output_file_keeps_the_page) {
  open_commercial_page();
  pick("Command1(2)", mining);
  by_code([this] { program.form3->Command2.set_enabled(true); });
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("No Output File Specified! [OK]"));
  EXPECT_EQ(left(), page_stays("Form2", " 2"));
}

TEST_F(CommercialEnds, an_end_that_asks_for_another_try_tells_the_fault_that_the_handler_has_met_before) {
  open_commercial_page();
  analyst.will_press("OK");
  analyst.will_press("OK");
  as_handler([this] {
    program.desktop.err.set(runtime::Fault(55));
    commercial::form3::Command2_Click(program);
  });
  EXPECT_THAT(shown(), ElementsAre("No Output File Specified! [OK]", "File already open [OK]"));
  EXPECT_EQ(left(), page_stays("Form2", ""));
}

TEST_F(CommercialEnds, no_industry_keeps_the_page) {
  open_commercial_page();
  pick("Command5", "results/trucks.txt");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Must have at least one industry input file! [OK]"));
  EXPECT_EQ(program.form3.OutputFile, in_app("results/trucks.txt"));
  EXPECT_EQ(left(), page_stays("Form2 Form1", ", output"));
}

TEST_F(CommercialEnds, no_reliability_option_ends_plainly) {
  make_ready();
  by_code([this] { program.form3->Option4(2).set_value(false); });
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Please select an option for reliability analysis! [OK]"));
  EXPECT_THAT(model_files(), UnorderedElementsAre(Key("stand_in.txt")));
}

TEST_F(CommercialEnds, a_district_file_that_was_not_picked_ends_plainly) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("No District File Specified! [OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 0
directory: .
picks: 2, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommercialEnds, a_district_file_that_is_gone_keeps_the_page_and_the_parameter_form) {
  make_ready_with_districts();
  std::filesystem::remove(app.file("sample/districts.txt"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("File " + in_app("sample/districts.txt") + " not Found! [OK]"));
  EXPECT_EQ(left(), page_stays("Form2 Form1", " 2, output, districts"));
}

TEST_F(CommercialEnds, a_missing_time_file_is_told_after_the_forms_are_gone) {
  make_ready();
  std::filesystem::remove(app.file("sample/base_time.txt"));
  bool form_was_there = true;
  bool menus_were_on = true;
  analyst.when_box_shows = [&](const analyst::Box&) {
    form_was_there = program.form3.loaded();
    menus_were_on = analyst.item_enabled("Inputs");
  };
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file sample/base_time.txt not found! [OK]"));
  EXPECT_FALSE(form_was_there);
  EXPECT_FALSE(menus_were_on);
  EXPECT_EQ(left(), first_step_again());
}

TEST_F(CommercialEnds, no_number_of_districts_keeps_the_page) {
  make_ready_with_districts();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numdstrct = 0");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("Please specify number of Districts under - Prepare Inputs - Menu Item!  [OK]"));
  EXPECT_EQ(left(), page_stays("Form2", " 2, output, districts"));
  EXPECT_EQ(program.form3.window_state(), runtime::forms::WindowState::maximized);
  EXPECT_EQ(app.bytes("truck/outpar.txt"), " 24 \r\n");
}

TEST_F(CommercialEnds, more_districts_than_zones_keeps_the_page) {
  make_ready_with_districts();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numdstrct = 25");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("Number of Districts greater than zones! [OK]"));
  EXPECT_EQ(left(), page_stays("Form2", " 2, output, districts"));
}

TEST_F(CommercialEnds, as_many_districts_as_zones_are_allowed) {
  make_ready_with_districts();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numdstrct = 24");
  press_and_answer({"No"});
  EXPECT_THAT(analyst.texts(), ElementsAre("The Number of Zones= 24\nThe Number of Districts= 24\n"
                                           "The industries areMining\nDo you wish to continue?"));
}

TEST_F(CommercialEnds, a_trip_file_that_is_gone_stops_without_a_word_and_leaves_the_parameter_file_open) {
  make_ready();
  std::filesystem::remove(app.file(mining));
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files: 1
new levels: 0
directory: .
picks: 2, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommercialEnds, the_answer_no_forgets_the_picks_and_leaves_the_files) {
  make_ready();
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_mining));
  EXPECT_EQ(left(), first_step_again());
  EXPECT_THAT(model_files(),
              UnorderedElementsAre(
                  Pair("Dist.txt", "= sample/distance.txt"), Pair("base_time.txt", "= sample/base_time.txt"),
                  Pair("imp_time.txt", "= sample/imp_time.txt"), Pair("sig2.txt", " 4.62 \r\n"),
                  Pair("cost2.txt", " 5469          25.04         50            1             95 \r\n"),
                  Pair("outpar.txt",
                       " 24 \r\n0             0\r\nNONE\r\n" + in_app("results/trucks") + "\r\n 1 \r\n2\r\n"),
                  Pair("trktrp2.txt", "= sample/trips_Mining.txt"), Key("stand_in.txt")));
}

TEST_F(CommercialEnds, sketch_planning_data_write_both_cases_first_of_all) {
  make_ready();
  analyst.click("Option4(0)");
  press_and_answer({"No"});
  EXPECT_THAT(model_files(), Contains(Pair("base_var.txt", " 38  .42 \r\n")));
  EXPECT_THAT(model_files(), Contains(Pair("imp_var.txt", " .42  47 \r\n")));
}

TEST_F(CommercialEnds, a_reliability_file_that_does_not_exist_changes_nothing_but_the_mode) {
  make_ready();
  analyst.click("Option4(1)");
  std::filesystem::remove(app.file("sample/reliability.txt"));
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/outpar.txt"),
            " 24 \r\n0             0\r\nFILE\r\n" + in_app("results/trucks") + "\r\n 1 \r\n2\r\n");
  EXPECT_THAT(model_files(), Not(Contains(Key("var.txt"))));
}

TEST_F(CommercialEnds, an_industry_without_a_row_is_a_run_time_error_and_loses_nothing_that_was_stored) {
  make_ready();
  app.sql("DELETE FROM Commercial WHERE industry_number = 2");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("RuntimeError: Run-time error '3021':\n\nNo current record [stop sign, OK]"));
  EXPECT_TRUE(program.form3.visible());
  EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("24"));
}

TEST_F(CommercialEnds, a_missing_directory_is_a_run_time_error) {
  make_ready();
  std::filesystem::remove_all(app.file("truck"));
  press_and_answer({"OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
}

TEST_F(CommercialEnds, the_checks_come_in_the_order_output_industry_reliability_district_time_files) {
  open_commercial_page();
  analyst.click("Check1");
  std::filesystem::remove(app.file("sample/base_time.txt"));
  std::filesystem::remove_all(app.file("truck"));
  by_code([this] {
    program.form3->Command2.set_enabled(true);
    program.form3->Option4(0).set_value(false);
  });
  std::vector<std::string> told;
  const auto press_again = [&] {
    press_and_answer({"OK"});
    told.push_back(last_box());
  };
  press_again();
  program.form3.OutputFile = "out";
  press_again();
  program.form3.PickCount = 1;
  press_again();
  analyst.click("Option4(2)");
  press_again();
  program.form3.DistrictFile = "nowhere.txt";
  press_again();
  analyst.click("Check1");
  press_again();
  EXPECT_THAT(told,
              ElementsAre("No Output File Specified!", "Must have at least one industry input file!",
                          "Please select an option for reliability analysis!", "No District File Specified!",
                          "File nowhere.txt not Found!", "file sample/base_time.txt not found!"));
}

TEST_F(CommercialEnds, the_speeds_are_written_before_the_district_file_is_looked_for) {
  make_ready();
  analyst.click("Option4(0)");
  analyst.click("Check1");
  press_and_answer({"OK"});
  EXPECT_THAT(model_files(),
              UnorderedElementsAre(Key("base_var.txt"), Key("imp_var.txt"), Key("stand_in.txt")));
}

TEST_F(CommercialEnds, each_of_the_three_time_files_is_looked_for_and_the_first_missing_one_is_told) {
  for (const char* name : {"imp_time.txt", "base_time.txt", "distance.txt"}) {
    make_ready();
    std::filesystem::remove(app.file(std::string("sample/") + name));
    press_and_answer({"OK"});
    EXPECT_THAT(shown(), ElementsAre(std::string("file sample/") + name + " not found! [OK]"));
  }
}

TEST_F(CommercialEnds, a_time_file_that_was_never_named_is_missing) {
  app.sql("UPDATE timdist SET improvement_time = NULL");
  make_ready();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file  not found! [OK]"));
}

TEST_F(CommercialEnds, a_page_that_was_made_small_comes_back_maximised_for_another_try) {
  using runtime::forms::WindowState;
  open_commercial_page();
  pick("Command5", "results/trucks.txt");
  by_code([this] { program.form3.set_window_state(WindowState::normal); });
  press_and_answer({"OK"});
  EXPECT_EQ(program.form3.window_state(), WindowState::maximized);
}

TEST_F(CommercialEnds, the_stored_time_files_are_looked_for_and_those_on_the_page_are_copied) {
  make_ready();
  by_code([this] { program.form3->Text1(6).set_text(in_app("sample/none.txt")); });
  press_and_answer({"OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '53':"));
  EXPECT_TRUE(program.form3.visible());
  EXPECT_THAT(app.rows("SELECT base_time FROM timdist"), ElementsAre(in_app("sample/none.txt")));
}

TEST_F(CommercialEnds, the_run_opens_the_database_where_it_finds_itself) {
  make_ready();
  std::filesystem::current_path(app.file("results"));
  press_and_answer({"OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '3024':"));
  EXPECT_TRUE(program.form3.visible());
  EXPECT_THAT(app.names_in("results"), IsEmpty());
}

TEST_F(CommercialEnds, a_trip_file_of_the_second_pick_that_is_gone_leaves_the_first_in_the_parameter_file) {
  make_ready();
  pick("Command1(9)", "sample/trips_Service.txt");
  std::filesystem::remove(app.file("sample/trips_Service.txt"));
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(app.bytes("truck/trktrp2.txt"), app.bytes(mining));
  EXPECT_EQ(app.bytes("truck/trktrp9.txt"), "(none)");
  by_code([this] { program.desktop.files.Close(1); });
  EXPECT_EQ(app.bytes("truck/outpar.txt"),
            " 24 \r\n0             0\r\nNONE\r\n" + in_app("results/trucks") + "\r\n 2 \r\n2\r\n");
}

}  // namespace
