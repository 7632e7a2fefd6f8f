// What each program finds in its directory, and what the clean-up leaves there.
#include "chain_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

namespace fs = std::filesystem;

class CommuterInputs : public testing_aids::CommuterChain {
 protected:
  /// What a program found in a file at its run, by the program's place: the file as it was then.
  std::string found(const std::string& place, const std::string& file) const {
    return app.bytes("commuter/seen/" + place + "_" + file);
  }

  static std::string copies(const std::string& place, const std::vector<std::string>& files) {
    std::string steps;
    for (const std::string& file : files) steps += "copy " + file + " seen/" + place + "_" + file + "\n";
    return steps;
  }

  void put_in_model_directory(const std::vector<std::string>& names) {
    for (const std::string& name : names) app.put_file("commuter/" + name, "left by a model");
  }

  /// The names in the model directory but what the stand-ins need.
  std::vector<std::string> names_left() const {
    std::vector<std::string> names;
    for (const std::string& name : app.names_in("commuter")) {
      if (name != "CC.EXE" && name != "OUTPUT1.EXE" && name != "seen" && name != "stand_in.txt" &&
          !name.starts_with("after_")) {
        names.push_back(name);
      }
    }
    return names;
  }
};

constexpr const char* base_parameters = " 24 \r\nDB\r\n0\r\n 1 \r\n7\r\n";
constexpr const char* improvement_parameters = " 24 \r\nDB\r\n1\r\n 1 \r\n7\r\n";

TEST_F(CommuterInputs, of_the_first_program_are_those_of_the_base_case) {
  program_does(
      1, copies("first", {"ccpar.txt", "ccpar2.txt", "base_var.txt", "sig7.txt", "wage7.txt", "popemp7.txt",
                          "Dist.txt", "base_time.txt", "imp_time.txt", "costpar.txt"}));
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(found("first", "ccpar.txt"), base_parameters);
  EXPECT_EQ(found("first", "ccpar2.txt"), improvement_parameters);
  EXPECT_EQ(found("first", "base_var.txt"), " 38            .42 \r\n");
  EXPECT_EQ(found("first", "sig7.txt"), " 13.05 \r\n");
  EXPECT_EQ(found("first", "wage7.txt"), " 125.2 \r\n");
  EXPECT_EQ(found("first", "popemp7.txt"), app.bytes(sales));
  EXPECT_EQ(found("first", "Dist.txt"), app.bytes("sample/distance.txt"));
  EXPECT_EQ(found("first", "base_time.txt"), app.bytes("sample/base_time.txt"));
  EXPECT_EQ(found("first", "imp_time.txt"), app.bytes("sample/imp_time.txt"));
  EXPECT_EQ(found("first", "costpar.txt"),
            " .25           2.38 \r\n0              .7629  .0929  .1394  .0048 \r\n");
}

TEST_F(CommuterInputs, of_the_first_program_hold_no_improvement_speeds) {
  program_does(1, "copy imp_var.txt seen/first_imp_var.txt");
  make_ready();
  run();
  // The stand-in crashes on the copy of a file that is not there.
  EXPECT_EQ(verdict(), "Error executing first commuter cost program! [stop sign, OK]");
}

TEST_F(CommuterInputs, of_the_second_program_are_those_of_the_improvement_case) {
  program_does(2, copies("second", {"ccpar.txt", "base_var.txt", "imp_var.txt"}));
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(found("second", "ccpar.txt"), improvement_parameters);
  EXPECT_EQ(found("second", "base_var.txt"), " 38            .42 \r\n");
  EXPECT_EQ(found("second", "imp_var.txt"), " 47            .48 \r\n");
}

TEST_F(CommuterInputs, of_the_second_program_hold_one_parameter_file) {
  program_does(2, "copy ccpar2.txt seen/second_ccpar2.txt");
  make_ready();
  run();
  EXPECT_EQ(verdict(), "Error executing second commuter cost program! [stop sign, OK]");
}

TEST_F(CommuterInputs, of_the_third_program_tell_where_the_report_goes) {
  program_does(3, copies("third", {"outpar.txt"}));
  make_ready();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  run();
  EXPECT_EQ(found("third", "outpar.txt"),
            in_app("results/sales") + "\r\n 24 \r\n1              4 \r\n 1 \r\n7\r\n");
}

TEST_F(CommuterInputs, hold_no_improvement_speeds_without_sketch_planning_data) {
  for (const char* option : {"Option4(1)", "Option4(2)"}) {
    program_does(2, "exit 1");
    make_ready();
    analyst.click(option);
    run();
    EXPECT_EQ(verdict(), "Error executing second commuter cost program! [stop sign, OK]");
    EXPECT_FALSE(model_files().contains("imp_var.txt"));
    EXPECT_FALSE(model_files().contains("base_var.txt"));
  }
}

TEST_F(CommuterInputs, take_the_speeds_of_the_improvement_from_the_table_when_the_first_program_has_ended) {
  program_does(2, "exit 1");
  make_ready();
  analyst.when_box_shows = [&](const analyst::Box&) {
    app.sql("UPDATE var_input SET ImprovementSpeed = 50.5");
  };
  run();
  EXPECT_EQ(app.bytes("commuter/imp_var.txt"), " 50.5          .48 \r\n");
}

TEST_F(CommuterInputs, are_cleaned_away_but_for_the_verdict) {
  make_ready();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_THAT(names_left(), ElementsAre("err.txt"));
}

TEST_F(CommuterInputs, leave_what_no_pattern_of_the_clean_up_means) {
  put_in_model_directory(
      {"var.txt", "variance.txt", "err.txt", "outline.txt", "mysig.txt", "notes", "cos.txt"});
  make_ready();
  run();
  EXPECT_THAT(names_left(), UnorderedElementsAre("var.txt", "variance.txt", "err.txt", "outline.txt",
                                                 "mysig.txt", "notes", "cos.txt"));
}

TEST_F(CommuterInputs, are_cleaned_away_in_either_case_and_with_any_extension_or_none) {
  put_in_model_directory({"var&.txt",     "VAR&1",         "SIG99.TXT",    "sig",         "signal.dat",
                          "Wage.old.txt", "COSTBASE7.TXT", "costAL7",      "popemp",      "BASE_TIME2.txt",
                          "imp_timeout",  "DISTRICT.BAK",  "distance.txt", "release.txt", "REL",
                          "imp_variance", "base_var2.txt", "CcPar9.tXt",   "outparts",    "costparts.txt"});
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_THAT(names_left(), ElementsAre("err.txt"));
}

TEST_F(CommuterInputs, are_cleaned_away_beside_directories_of_such_names) {
  fs::create_directories(app.file("commuter/signals"));
  fs::create_directories(app.file("commuter/cost.old"));
  app.put_file("commuter/cost.old/cost.txt", "kept");
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_THAT(names_left(), ElementsAre("cost.old", "err.txt", "signals"));
  EXPECT_EQ(app.bytes("commuter/cost.old/cost.txt"), "kept");
}

TEST_F(CommuterInputs, outside_the_model_directory_are_never_cleaned_away) {
  app.put_file("sig7.txt", "kept");
  app.put_file("truck/sig7.txt", "kept");
  make_ready();
  run();
  EXPECT_EQ(app.bytes("sig7.txt"), "kept");
  EXPECT_EQ(app.bytes("truck/sig7.txt"), "kept");
}

TEST_F(CommuterInputs, are_gone_and_the_first_step_is_open_again_after_a_finished_run) {
  make_ready();
  run();
  EXPECT_EQ(left(), first_step_again(""));
}

TEST_F(CommuterInputs, cannot_be_chosen_again_before_the_first_step_is_passed_again) {
  make_ready();
  run();
  EXPECT_TRUE(analyst.item_enabled("spec_comm"));
  EXPECT_FALSE(analyst.item_enabled("spec_CuCo"));
  analyst.choose("spec_timdist");
  EXPECT_TRUE(analyst.sees("Command8"));
  analyst.will_press("Yes");
  analyst.click("Command8");
  EXPECT_TRUE(analyst.item_enabled("spec_CuCo"));
}

TEST_F(CommuterInputs, of_a_second_run_in_one_session_are_made_as_those_of_the_first) {
  make_ready();
  run();
  program_does(2, copies("second", {"ccpar.txt"}));
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(found("second", "ccpar.txt"), improvement_parameters);
  EXPECT_EQ(left(), first_step_again(""));
}

}  // namespace
