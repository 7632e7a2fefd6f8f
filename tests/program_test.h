// The fixture of tests that drive the real forms: an installation, the program on it, and an analyst.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "analyst/analyst.h"
#include "deferred_deletes.h"
#include "event_table.h"
#include "installation.h"

namespace testing_aids {

class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() {
    quelar::tie_events(program);
    program.mdiform1.window().resize(1000, 760);
    quelar::start(program);
  }

  void TearDown() override { EXPECT_THAT(analyst.complaints(), ::testing::IsEmpty()); }

  /// Runs what a handler would, through the edge at which every handler starts and ends.
  void as_handler(const std::function<void()>& code) { program.desktop.run_event(code); }

  /// The first step of the workflow: the stored time and distance files are saved.
  void save_time_files() {
    analyst.choose("spec_timdist");
    analyst.will_press("Yes");
    analyst.click("Command8");
  }

  /// From the start of the program to the commuter page.
  void open_commuter_page() {
    save_time_files();
    analyst.choose("spec_comm");
    analyst.forget_boxes();
  }

  void pick(const std::string& button, const std::string& file) {
    analyst.will_choose_file(app.file(file).string());
    analyst.click(button);
  }

  /// The text of the last box that was shown.
  std::string last_box() const { return analyst.last_box().text; }

  Installation app;
  forms::Program program{app.path()};
  analyst::Analyst analyst{program.mdiform1.window()};

 private:
  DeferredDeletes deferred_deletes_;
};

}  // namespace testing_aids
