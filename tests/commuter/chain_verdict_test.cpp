// The verdict file: what each program leaves in it decides whether the run goes on.
#include <sys/stat.h>

#include <functional>

#include "chain_test.h"

namespace {

using ::testing::ElementsAre;

class CommuterVerdict : public testing_aids::CommuterChain {
 protected:
  /// The box behind the summary when the program at `place` leaves that verdict file.
  std::string box_after(const std::string& bytes, int place = 1) {
    program_does(place, "write err.txt " + bytes);
    make_ready();
    run();
    return verdict();
  }

  /// The run breaks off without a box.
  void expect_silent_retry_after(const std::string& steps, const std::string& run_by_then) {
    program_does(run_by_then == "first" ? 1 : run_by_then == "first second" ? 2 : 3, steps);
    make_ready();
    press_and_answer({"Yes"});
    EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
    EXPECT_EQ(programs_run(), run_by_then);
  }

  static std::string told(const std::string& words) {
    return "error occured in program execution! " + words + " [OK]";
  }
};

TEST_F(CommuterVerdict, of_the_first_program_ends_the_run) {
  EXPECT_EQ(box_after("1, zone 7 is not there\\r\\n", 1), told("zone 7 is not there"));
  EXPECT_EQ(programs_run(), "first");
  EXPECT_EQ(left(), first_step_again("/commuter"));
}

TEST_F(CommuterVerdict, of_the_second_program_ends_the_run) {
  EXPECT_EQ(box_after("1, zone 7 is not there\\r\\n", 2), told("zone 7 is not there"));
  EXPECT_EQ(programs_run(), "first second");
  EXPECT_EQ(left(), first_step_again("/commuter"));
}

TEST_F(CommuterVerdict, of_the_third_program_ends_the_run_before_anything_is_cleaned) {
  EXPECT_EQ(box_after("1, zone 7 is not there\\r\\n", 3), told("zone 7 is not there"));
  EXPECT_EQ(programs_run(), "first second third");
  EXPECT_EQ(left(), first_step_again("/commuter"));
  EXPECT_TRUE(model_files().contains("popemp7.txt"));
}

TEST_F(CommuterVerdict, is_cut_at_the_first_comma_of_its_words) {
  EXPECT_EQ(box_after("1, zone 7, and zone 8\\r\\n"), told("zone 7"));
}

TEST_F(CommuterVerdict, has_its_words_behind_a_comma_a_blank_or_a_line_end) {
  EXPECT_EQ(box_after("1,no such zone\\r\\n"), told("no such zone"));
  EXPECT_EQ(box_after("1 no such zone\\r\\n"), told("no such zone"));
  EXPECT_EQ(box_after("1\\r\\nno such zone\\r\\n"), told("no such zone"));
  EXPECT_EQ(box_after("1\\nno such zone"), told("no such zone"));
}

TEST_F(CommuterVerdict, drops_the_quotes_around_its_words) {
  EXPECT_EQ(box_after("1,\"no such zone, or none at all\"\\r\\n"), told("no such zone, or none at all"));
}

TEST_F(CommuterVerdict, is_a_failure_for_every_number_but_zero) {
  EXPECT_EQ(box_after("-1, words"), told("words"));
  EXPECT_EQ(box_after("0.5, words"), told("words"));
  EXPECT_EQ(box_after(".001, words"), told("words"));
  EXPECT_EQ(box_after("3021, words"), told("words"));
  EXPECT_EQ(box_after("7th, words"), told("words"));
}

TEST_F(CommuterVerdict, is_a_success_for_zero_in_any_form) {
  EXPECT_EQ(box_after("0"), completed);
  EXPECT_EQ(box_after("0.0\\r\\n"), completed);
  EXPECT_EQ(box_after(" 0 \\r\\n"), completed);
  EXPECT_EQ(box_after("-0, words\\r\\n"), completed);
  EXPECT_EQ(box_after("000,words that nobody reads\\r\\n"), completed);
  EXPECT_EQ(box_after("0E5\\r\\n"), completed);
  EXPECT_EQ(box_after("\\\"0\\\"\\r\\n"), completed);
}

TEST_F(CommuterVerdict, is_a_success_without_a_leading_number) {
  EXPECT_EQ(box_after("ready\\r\\n"), completed);
  EXPECT_EQ(box_after("error 7\\r\\n"), completed);
  EXPECT_EQ(box_after("Information, 1\\r\\n"), completed);
  EXPECT_EQ(box_after("nan\\r\\n"), completed);
}

TEST_F(CommuterVerdict, is_a_success_when_its_first_line_holds_no_value) {
  EXPECT_EQ(box_after("\\r\\n1, words\\r\\n"), completed);
}

TEST_F(CommuterVerdict, left_over_from_an_earlier_run_decides_when_a_program_writes_none) {
  app.put_file("commuter/stand_in.txt", "exit 0\n");
  app.put_file("commuter/err.txt", "1, left over\r\n");
  make_ready();
  run();
  EXPECT_EQ(verdict(), told("left over"));
  app.put_file("commuter/err.txt", "0\r\n");
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
}

TEST_F(CommuterVerdict, is_read_in_whatever_case_its_name_is_written) {
  app.put_file("commuter/stand_in.txt", "write Err.TXT 1, words\n");
  make_ready();
  run();
  EXPECT_EQ(verdict(), told("words"));
}

TEST_F(CommuterVerdict, that_is_missing_breaks_off_without_a_word_in_the_model_directory) {
  app.put_file("commuter/stand_in.txt", "exit 0\n");
  make_ready();
  press_and_answer({"Yes"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 1
directory: ./commuter
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterVerdict, that_was_missing_is_forgotten_at_the_next_press) {
  app.put_file("commuter/stand_in.txt", "exit 0\n");
  make_ready();
  press_and_answer({"Yes"});
  app.put_file("commuter/stand_in.txt", "write err.txt 0\n");
  run();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales, completed));
}

// A pipe without a writer would be waited for, and a device without an end never be read to it.
TEST_F(CommuterVerdict, that_is_no_plain_file_breaks_off_without_a_word) {
  app.put_file("commuter/stand_in.txt", "exit 0\n");
  const std::filesystem::path file = app.file("commuter/err.txt");
  make_ready();
  const std::vector<std::function<void()>> kinds{[&] { ASSERT_EQ(mkfifo(file.c_str(), 0600), 0); },
                                                 [&] { std::filesystem::create_symlink("/dev/zero", file); },
                                                 [&] { std::filesystem::create_directory(file); }};
  for (const auto& make : kinds) {
    make();
    press_and_answer({"Yes"});
    EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
    EXPECT_TRUE(analyst.can_use("Command11"));
    std::filesystem::remove(file);
  }
}

TEST_F(CommuterVerdict, of_any_length_shows_its_beginning) {
  app.put_file("commuter/err.txt", "1, " + std::string(1'000'000, 'x'));
  app.put_file("commuter/stand_in.txt", "exit 0\n");
  make_ready();
  run();
  const std::string words = "error occured in program execution! ";
  EXPECT_EQ(analyst.last_box().text, words + std::string(1000 - words.size(), 'x'));
}

TEST_F(CommuterVerdict, that_is_empty_breaks_off_without_a_word) {
  expect_silent_retry_after("write err.txt ", "first");
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 1
directory: ./commuter
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterVerdict, of_the_second_program_that_is_empty_breaks_off_without_a_word) {
  expect_silent_retry_after("write err.txt ", "first second");
  EXPECT_EQ(left(), R"(forms: Form3* Form1
open files:
new levels: 1
directory: ./commuter
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterVerdict, of_the_third_program_that_is_empty_breaks_off_without_a_word) {
  expect_silent_retry_after("write err.txt ", "first second third");
  EXPECT_EQ(left(), R"(forms: Form3*
open files:
new levels: 1
directory: ./commuter
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterVerdict, of_a_failure_without_words_breaks_off_without_a_word) {
  expect_silent_retry_after("write err.txt 1", "first");
}

TEST_F(CommuterVerdict, of_a_failure_with_an_empty_line_of_words_shows_none) {
  EXPECT_EQ(box_after("1\\r\\n\\r\\n"), told(""));
}

TEST_F(CommuterVerdict, is_still_open_while_the_end_is_told_and_nothing_is_cleaned_yet) {
  make_ready();
  std::string open;
  std::map<std::string, std::string> files;
  analyst.when_box_shows = [&](const analyst::Box& box) {
    if (box.text != "Analysis Completed") return;
    open = left();
    files = model_files();
  };
  run();
  EXPECT_EQ(open, R"(forms: Form3*
open files: 1
new levels: 0
directory: ./commuter
picks: 7, output
menus: spec_CuCo spec_comm
)");
  EXPECT_TRUE(files.contains("ccpar.txt"));
  EXPECT_TRUE(files.contains("imp_var.txt"));
}

}  // namespace
