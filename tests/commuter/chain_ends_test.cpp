// The ends of a finished run: what the clean-up passes over, and what stands behind it.
#include "chain_test.h"

namespace {

using ::testing::ElementsAre;

class CommuterRunEnd : public testing_aids::CommuterChain {
 protected:
  /// Does something while the box with that text is on the screen.
  void while_told(const std::string& text, const std::function<void()>& action) {
    analyst.when_box_shows = [=](const analyst::Box& box) {
      if (box.text.starts_with(text)) action();
    };
  }
};

// The pattern of a held file breaks off there; the others go on, so patterns that seem to be of no use beside
// a wider one remove what they name.
TEST_F(CommuterRunEnd, passes_over_files_that_cannot_be_removed) {
  for (const char* name : {"cost9.txt", "costAL7.txt", "costbase7.txt", "dist9.txt", "district.txt"}) {
    app.put_file(std::string("commuter/") + name, "left by a model");
  }
  make_ready();
  while_told("Analysis Completed", [this] {
    program.desktop.files.open_for_append(4, in_app("commuter/cost9.txt"));
    program.desktop.files.open_for_append(5, in_app("commuter/dist9.txt"));
  });
  run();
  EXPECT_EQ(verdict(), completed);
  std::string names;
  for (const auto& [name, bytes] : model_files()) names += name + " ";
  EXPECT_EQ(names,
            "after_first.txt after_second.txt cost9.txt costbase7.txt dist9.txt err.txt stand_in.txt ");
}

TEST_F(CommuterRunEnd, passes_over_patterns_that_find_nothing) {
  make_ready();
  analyst.click("Option4(2)");
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(left(), first_step_again(""));
}

TEST_F(CommuterRunEnd, passes_over_a_model_directory_that_is_gone) {
  make_ready();
  while_told("Analysis Completed",
             [this] { std::filesystem::rename(app.file("commuter"), app.file("elsewhere")); });
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(left(), first_step_again(""));
}

TEST_F(CommuterRunEnd, tells_of_a_fault_behind_the_clean_up) {
  make_ready();
  while_told("Analysis Completed", [this] { app.sql("DROP TABLE Anfiles"); });
  press_and_answer({"Yes", "OK", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, completed,
                                   "RuntimeError: Run-time error '3078':\n\nThe table 'Anfiles' was not "
                                   "found [stop sign, OK]"));
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 0
directory: .
picks:
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterRunEnd, keeps_the_page_without_a_word_when_it_cannot_store_its_paths_after_a_failure) {
  program_does(1, "exit 1");
  make_ready();
  while_told("Error executing", [this] { app.sql("DROP TABLE Anfiles"); });
  run();
  EXPECT_EQ(verdict(), "Error executing first commuter cost program! [stop sign, OK]");
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 1
directory: ./commuter
picks:
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterRunEnd, asks_the_reliability_option_again_before_the_second_program) {
  make_ready();
  while_told("The Number of Zones", [this] { program.form3->Option4(2).set_value(true); });
  program_does(2, "exit 1");
  run();
  EXPECT_TRUE(model_files().contains("base_var.txt"));
  EXPECT_FALSE(model_files().contains("imp_var.txt"));
}

TEST_F(CommuterRunEnd, goes_back_without_a_word_when_a_number_holds_the_second_parameter_file) {
  make_ready();
  while_told("The Number of Zones",
             [this] { program.desktop.files.open_for_append(3, in_app("commuter/ccpar2.txt")); });
  press_and_answer({"Yes"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(programs_run(), "first");
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), "(none)");
  EXPECT_EQ(left(), R"(forms: Form3* Form1
open files: 3
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterRunEnd, stores_the_paths_that_were_picked) {
  make_ready();
  run();
  EXPECT_THAT(app.rows("SELECT Salesfiles, OccOutfile, Prodfile FROM Anfiles"),
              ElementsAre(in_app(sales) + "|" + in_app("results/sales.txt") +
                          "|sample/commute_Precision_production_craft_and_repair.txt"));
}

// A run of ten goes on without a leftover of the one before: the forms, the files and the levels do not pile
// up.
TEST_F(CommuterRunEnd, leaves_nothing_behind_that_a_later_run_would_stumble_over) {
  for (int round = 0; round < 10; ++round) {
    programs_do("", "", "");
    make_ready();
    run();
    EXPECT_EQ(verdict(), completed);
    EXPECT_EQ(left(), first_step_again(""));
  }
}

}  // namespace
