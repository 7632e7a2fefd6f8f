// A program that fails ends the run at its place.
#include "chain_test.h"

namespace {

using ::testing::ElementsAre;

namespace fs = std::filesystem;

using CommuterChain = testing_aids::CommuterChain;

constexpr const char* first_failed = "Error executing first commuter cost program! [stop sign, OK]";
constexpr const char* second_failed = "Error executing second commuter cost program! [stop sign, OK]";
constexpr const char* third_failed = "Error executing third commuter cost program! [stop sign, OK]";

TEST_F(CommuterChain, runs_the_three_programs_in_the_model_directory) {
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, completed));
  EXPECT_EQ(programs_run(), "first second third");
  for (const char* place : {"first", "second", "third"}) {
    EXPECT_EQ(app.bytes(std::string("commuter/seen/") + place), in_app("commuter"));
  }
}

TEST_F(CommuterChain, ends_at_the_first_program_that_exits_with_1) {
  program_does(1, "exit 1");
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, first_failed));
  EXPECT_EQ(programs_run(), "first");
  EXPECT_EQ(left(), first_step_again("/commuter"));
  EXPECT_EQ(program.form3.LastReply, "1");
}

TEST_F(CommuterChain, ends_at_the_second_program_that_exits_with_1) {
  program_does(2, "exit 1");
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, second_failed));
  EXPECT_EQ(programs_run(), "first second");
  EXPECT_EQ(left(), first_step_again("/commuter"));
  EXPECT_EQ(program.form3.LastReply, "1");
}

TEST_F(CommuterChain, ends_at_the_third_program_that_exits_with_1) {
  program_does(3, "exit 1");
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, third_failed));
  EXPECT_EQ(programs_run(), "first second third");
  EXPECT_EQ(left(), first_step_again("/commuter"));
  EXPECT_EQ(program.form3.LastReply, "1");
}

TEST_F(CommuterChain, takes_an_exit_code_before_a_verdict) {
  program_does(1, "write err.txt 1, no such zone\nexit 3");
  make_ready();
  run();
  EXPECT_EQ(verdict(), first_failed);
}

TEST_F(CommuterChain, keeps_every_input_after_a_failure) {
  program_does(1, "exit 1");
  make_ready();
  run();
  const auto files = model_files();
  for (const char* name :
       {"Dist.txt", "base_time.txt", "base_var.txt", "ccpar.txt", "ccpar2.txt", "costpar.txt", "imp_time.txt",
        "outpar.txt", "popemp7.txt", "sig7.txt", "wage7.txt"}) {
    EXPECT_TRUE(files.contains(name)) << name;
  }
  EXPECT_FALSE(files.contains("imp_var.txt"));
}

TEST_F(CommuterChain, leaves_the_parameters_of_the_improvement_after_a_second_failure_and_makes_both_anew) {
  program_does(2, "exit 1");
  make_ready();
  run();
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nDB\r\n1\r\n 1 \r\n7\r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar2.txt"), "(none)");
  program_does(1, "exit 1");
  make_ready();
  run();
  EXPECT_EQ(app.bytes("commuter/ccpar.txt"), " 24 \r\nDB\r\n0\r\n 1 \r\n7\r\n");
  EXPECT_EQ(app.bytes("commuter/ccpar2.txt"), " 24 \r\nDB\r\n1\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterChain, counts_a_missing_cost_program_as_failed) {
  fs::remove(app.file("commuter/CC.EXE"));
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, first_failed));
  EXPECT_EQ(left(), first_step_again("/commuter"));
}

TEST_F(CommuterChain, counts_a_missing_report_program_as_failed) {
  fs::remove(app.file("commuter/OUTPUT1.EXE"));
  make_ready();
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, third_failed));
  EXPECT_EQ(programs_run(), "first second");
}

TEST_F(CommuterChain, counts_a_program_that_may_not_be_run_as_failed) {
  fs::remove(app.file("commuter/CC.EXE"));
  app.put_file("commuter/CC.EXE", "#!/bin/sh\nexit 0\n");
  make_ready();
  run();
  EXPECT_EQ(verdict(), first_failed);
}

TEST_F(CommuterChain, counts_a_file_that_is_no_program_as_failed) {
  fs::remove(app.file("commuter/OUTPUT1.EXE"));
  app.put_file("commuter/OUTPUT1.EXE", "exit 0\n");
  fs::permissions(app.file("commuter/OUTPUT1.EXE"), fs::perms::all);
  make_ready();
  run();
  EXPECT_EQ(verdict(), third_failed);
}

TEST_F(CommuterChain, counts_a_program_that_a_signal_ended_as_failed) {
  program_does(2, "crash");
  make_ready();
  run();
  EXPECT_EQ(verdict(), second_failed);
}

TEST_F(CommuterChain, finds_the_programs_beside_the_executable_as_well) {
  for (const char* program : {"CC.EXE", "OUTPUT1.EXE"}) {
    fs::remove(app.file(std::string("commuter/") + program));
    app.put_stand_in(program);
  }
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(programs_run(), "first second third");
}

TEST_F(CommuterChain, goes_back_without_a_word_when_the_parameters_of_the_improvement_are_gone) {
  make_ready();
  analyst.when_box_shows = [&](const analyst::Box&) { fs::remove(app.file("commuter/ccpar2.txt")); };
  press_and_answer({"Yes"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(programs_run(), "first");
  EXPECT_EQ(left(), R"(forms: Form3* Form1
open files:
new levels: 1
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterChain, goes_back_without_a_word_when_the_speeds_are_gone) {
  make_ready();
  analyst.when_box_shows = [&](const analyst::Box&) { app.sql("DELETE FROM var_input"); };
  press_and_answer({"Yes"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(programs_run(), "first");
}

}  // namespace
