// How a model program can end, and what its verdict file may hold.
#include <sys/stat.h>

#include <functional>

#include "commercial_page.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Key;
using ::testing::UnorderedElementsAre;

namespace fs = std::filesystem;

class CommercialVerdict : public testing_aids::CommercialPage {
 protected:
  /// The last box of a run.
  std::string verdict() {
    make_ready();
    press_and_answer({"Yes", "OK"});
    EXPECT_EQ(shown().front(), summary_of_mining);
    return shown().size() < 2 ? "(none)" : shown().back();
  }

  /// The last box of a run whose program leaves such a file.
  std::string verdict_of(const std::string& file) {
    program_does("write Err.txt " + file + "\n");
    return verdict();
  }

  /// A program that failed: every input stays, the workflow starts anew, in the model directory.
  void expect_failed() {
    EXPECT_EQ(verdict(), "Error executing commercial cost program! [stop sign, OK]");
    EXPECT_EQ(left(), first_step_again("/truck"));
    for (const char* name : {"Dist.txt", "base_time.txt", "imp_time.txt", "sig2.txt", "cost2.txt",
                             "outpar.txt", "trktrp2.txt"}) {
      EXPECT_THAT(model_files(), Contains(Key(name)));
    }
  }
};

TEST_F(CommercialVerdict, an_exit_code_of_1) {
  program_does("write Err.txt 0\\r\\n\nexit 1\n");
  expect_failed();
}

TEST_F(CommercialVerdict, the_highest_exit_code) {
  program_does("write Err.txt 0\\r\\n\nexit 255\n");
  expect_failed();
}

TEST_F(CommercialVerdict, an_exit_code_comes_before_a_verdict) {
  program_does("write Err.txt 1, no such zone\\r\\n\nexit 3\n");
  expect_failed();
}

TEST_F(CommercialVerdict, a_program_that_a_signal_ended) {
  program_does("write Err.txt 0\\r\\n\ncrash\n");
  expect_failed();
}

TEST_F(CommercialVerdict, a_program_that_is_missing) {
  fs::remove(app.file("truck/output.exe"));
  expect_failed();
}

TEST_F(CommercialVerdict, a_file_that_is_no_program) {
  fs::remove(app.file("truck/output.exe"));
  app.put_file("truck/output.exe", "words");
  fs::permissions(app.file("truck/output.exe"), fs::perms::all);
  expect_failed();
}

TEST_F(CommercialVerdict, a_program_that_may_not_be_run) {
  fs::remove(app.file("truck/output.exe"));
  app.put_file("truck/output.exe", "words");
  expect_failed();
}

TEST_F(CommercialVerdict, a_failed_run_is_followed_by_a_good_one_that_clears_what_it_left) {
  program_does("exit 3\n");
  expect_failed();
  EXPECT_EQ(verdict_of("0\\r\\n"), completed);
  EXPECT_EQ(left(), first_step_again());
  EXPECT_THAT(model_files(), UnorderedElementsAre(Key("Err.txt"), Key("stand_in.txt")));
}

TEST_F(CommercialVerdict, is_a_failure_for_every_number_but_zero) {
  for (const char* number : {"1", "-1", "0.5", "1E3"}) {
    EXPECT_EQ(verdict_of(std::string(number) + ", why\\r\\n"), "error occured in program execution!why [OK]");
  }
}

TEST_F(CommercialVerdict, is_a_success_for_zero_in_any_form_and_without_a_number) {
  for (const char* first :
       {"0\\r\\n", " 0 \\r\\n", "0, all is well\\r\\n", "0.0\\n", "fine\\r\\n", "\\r\\n"}) {
    EXPECT_EQ(verdict_of(first), completed) << first;
  }
}

TEST_F(CommercialVerdict, ends_its_words_at_a_comma_or_a_line_end_and_drops_quotes) {
  EXPECT_EQ(verdict_of("2\\r\\nno trips in zone 3\\r\\nmore"),
            "error occured in program execution!no trips in zone 3 [OK]");
  EXPECT_EQ(verdict_of("2, \"bad, very bad\"\\r\\n"),
            "error occured in program execution!bad, very bad [OK]");
}

TEST_F(CommercialVerdict, is_read_in_whatever_case_its_name_is_written) {
  program_does("write err.txt 4, lower\\r\\n\n");
  EXPECT_EQ(verdict(), "error occured in program execution!lower [OK]");
}

TEST_F(CommercialVerdict, is_still_open_while_it_is_told_and_nothing_is_cleaned_yet) {
  make_ready();
  bool open = false;
  bool inputs = false;
  analyst.when_box_shows = [&](const analyst::Box& box) {
    if (box.text != "Analysis Completed") return;
    open = program.desktop.files.is_open(1);
    inputs = fs::exists(app.file("truck/outpar.txt")) && program.form3.loaded();
  };
  press_and_answer({"Yes", "OK"});
  EXPECT_TRUE(open);
  EXPECT_TRUE(inputs);
}

TEST_F(CommercialVerdict, of_any_length_shows_its_beginning) {
  app.put_file("truck/Err.txt", "1, " + std::string(1'000'000, 'x'));
  program_does("exit 0\n");
  verdict();
  const std::string words = "error occured in program execution!";
  EXPECT_EQ(analyst.last_box().text, words + std::string(1000 - words.size(), 'x'));
  EXPECT_THAT(analyst.last_box().buttons, UnorderedElementsAre("OK", "Show Details..."));
}

// A pipe without a writer would be waited for, and a device without an end never be read to it.
TEST_F(CommercialVerdict, that_is_no_plain_file_is_a_run_time_error) {
  program_does("exit 0\n");
  const fs::path file = app.file("truck/Err.txt");
  const std::vector<std::function<void()>> kinds{[&] { ASSERT_EQ(mkfifo(file.c_str(), 0600), 0); },
                                                 [&] { fs::create_symlink("/dev/zero", file); },
                                                 [&] { fs::create_directory(file); }};
  for (const auto& make : kinds) {
    make();
    EXPECT_EQ(verdict(),
              "RuntimeError: Run-time error '75':\n\nPath/File access error: Err.txt [stop sign, OK]");
    EXPECT_FALSE(program.desktop.files.is_open(1));
    analyst.click("Command3");
    fs::remove(file);
  }
}

// An empty file, and a failure without words, are run-time errors; the file stays open until the page is
// left.
TEST_F(CommercialVerdict, that_ends_too_soon_is_a_run_time_error) {
  for (const char* file : {"", "7"}) {
    EXPECT_EQ(verdict_of(file),
              "RuntimeError: Run-time error '62':\n\nInput past end of file [stop sign, OK]");
    EXPECT_EQ(left(), R"(forms: Form3* Form2
open files: 1
new levels: 0
directory: ./truck
picks: 2, output
menus: spec_CuCo spec_comm
)");
    analyst.click("Command3");
    EXPECT_FALSE(program.desktop.files.is_open(1));
  }
}

TEST_F(CommercialVerdict, the_clean_up_takes_either_case_any_extension_and_none_and_leaves_the_rest) {
  for (const char* name : {"SIG4.TXT", "cost", "district.dat", "DIST.OLD", "Dist.txt", "trktrp77.txt"}) {
    app.put_file(std::string("truck/") + name, "old");
  }
  for (const char* name : {"var.txt", "imp_var2.txt", "base_var.old", "ttc.txt", "commodity.txt",
                           "tontotruck.txt", "notes.txt"}) {
    app.put_file(std::string("truck/") + name, "mine");
  }
  EXPECT_EQ(verdict(), completed);
  EXPECT_THAT(model_files(),
              UnorderedElementsAre(Key("Err.txt"), Key("stand_in.txt"), Key("var.txt"), Key("imp_var2.txt"),
                                   Key("base_var.old"), Key("ttc.txt"), Key("commodity.txt"),
                                   Key("tontotruck.txt"), Key("notes.txt")));
}

TEST_F(CommercialVerdict, the_clean_up_follows_a_refusal_too) {
  EXPECT_EQ(verdict_of("1, no\\r\\n"), "error occured in program execution!no [OK]");
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "(none)");
  EXPECT_EQ(app.bytes("truck/outpar.txt"), "(none)");
}

TEST_F(CommercialVerdict, the_clean_up_passes_over_what_cannot_be_deleted) {
  program_does("copy outpar.txt seen.txt\nwrite Err.txt 0\\r\\n\n");
  fs::create_directory(app.file("truck/cost_reports"));
  app.put_file("truck/cost_reports/kept.txt", "kept");
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(left(), first_step_again());
  EXPECT_EQ(app.bytes("truck/cost_reports/kept.txt"), "kept");
}

TEST_F(CommercialVerdict, the_end_stores_the_paths_that_were_picked) {
  EXPECT_EQ(verdict(), completed);
  EXPECT_THAT(app.rows("SELECT Minfile, foutfile FROM Anfiles"),
              ElementsAre(in_app(mining) + "|" + in_app("results/trucks.txt")));
}

}  // namespace
