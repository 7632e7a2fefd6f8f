// What the status line tells of a verdict that decides the run, though its program did not write it or wrote
// no number.
#include "chain_test.h"

namespace {

class CommuterRemark : public testing_aids::CommuterChain {
 protected:
  std::string status_line() { return analyst.text_of("StatusLine"); }

  /// The program at `place` runs for so long that the verdict of the one before it has another time.
  void program_leaves_no_verdict(int place) {
    app.put_file("commuter/err.txt", "0\r\n");
    for (const char* steps : {"stand_in.txt", "after_first.txt", "after_second.txt"}) {
      const int at = steps == std::string("stand_in.txt")      ? 1
                     : steps == std::string("after_first.txt") ? 2
                                                               : 3;
      if (at != place) continue;
      std::string text = app.bytes(std::string("commuter/") + steps);
      const std::string verdict = "write err.txt 0\\r\\n\n";
      text.erase(text.find(verdict), verdict.size());
      app.put_file(std::string("commuter/") + steps, text);
    }
  }
};

TEST_F(CommuterRemark, is_empty_after_a_run_whose_programs_leave_their_verdicts) {
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(status_line(), "");
}

TEST_F(CommuterRemark, tells_which_program_left_no_verdict_while_the_old_one_decides) {
  const std::pair<int, const char*> programs[] = {{1, "CC.EXE"}, {2, "CC.EXE"}, {3, "OUTPUT1.EXE"}};
  for (const auto& [place, file] : programs) {
    programs_do("sleep 30", "sleep 30", "");
    program_leaves_no_verdict(place);
    make_ready();
    run();
    EXPECT_EQ(verdict(), completed);
    EXPECT_EQ(status_line(), std::string(file) + " has left no verdict: err.txt is older than its start.");
    analyst.choose("spec_timdist");
    EXPECT_EQ(status_line(), "");
    analyst.click("Command3");
  }
}

TEST_F(CommuterRemark, tells_of_a_verdict_that_begins_with_no_number) {
  for (const char* bytes : {"done\\r\\n", "\\r\\n0\\r\\n", "-\\r\\n"}) {
    programs_do("", "", "write err.txt " + std::string(bytes));
    make_ready();
    run();
    EXPECT_EQ(verdict(), completed);
    EXPECT_EQ(status_line(), "err.txt begins with no number, which counts as success.") << bytes;
  }
}

TEST_F(CommuterRemark, is_silent_about_any_zero) {
  for (const char* bytes : {"0\\r\\n", " 0,\\r\\n", ".0\\r\\n", "+0 ok\\r\\n", "-0.0\\r\\n"}) {
    programs_do("", "", "write err.txt " + std::string(bytes));
    make_ready();
    run();
    EXPECT_EQ(verdict(), completed) << bytes;
    EXPECT_EQ(status_line(), "") << bytes;
  }
}

}  // namespace
