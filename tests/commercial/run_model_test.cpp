// The one model program of the commercial run: its verdict, the clean-up, the way back.
#include "commercial_page.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Key;
using ::testing::UnorderedElementsAre;
using CommercialModel = testing_aids::CommercialPage;

TEST_F(CommercialModel, a_good_run_tells_so_clears_its_files_and_goes_back_to_the_first_step) {
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_mining, "Analysis Completed [OK]"));
  EXPECT_EQ(left(), first_step_again());
  EXPECT_THAT(model_files(), UnorderedElementsAre(Key("Err.txt"), Key("stand_in.txt")));
}

TEST_F(CommercialModel, finds_its_files_in_its_own_directory) {
  program_does("copy outpar.txt seen.txt\nwrite Err.txt 0\\r\\n\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(app.bytes("truck/seen.txt"),
            " 24 \r\n0             0\r\nNONE\r\n" + in_app("results/trucks") + "\r\n 1 \r\n2\r\n");
}

TEST_F(CommercialModel, an_exit_code_keeps_the_files_and_the_directory) {
  program_does("exit 3\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(),
              ElementsAre(summary_of_mining, "Error executing commercial cost program! [stop sign, OK]"));
  EXPECT_THAT(left(), ::testing::HasSubstr("directory: ./truck\n"));
  EXPECT_THAT(model_files(), Contains(Key("outpar.txt")));
}

TEST_F(CommercialModel, a_program_that_is_missing_counts_as_failed) {
  make_ready();
  std::filesystem::remove(app.file("truck/output.exe"));
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(shown().back(), "Error executing commercial cost program! [stop sign, OK]");
}

TEST_F(CommercialModel, a_refusal_is_told_without_a_blank_and_the_files_go_all_the_same) {
  program_does("write Err.txt 7, no trips, sorry\\r\\n\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(shown().back(), "error occured in program execution!no trips [OK]");
  EXPECT_EQ(left(), first_step_again());
  EXPECT_THAT(model_files(), UnorderedElementsAre(Key("Err.txt"), Key("stand_in.txt")));
}

TEST_F(CommercialModel, an_old_verdict_counts_when_the_program_leaves_none) {
  program_does("exit 0\n");
  app.put_file("truck/Err.txt", "1, from yesterday\r\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(shown().back(), "error occured in program execution!from yesterday [OK]");
}

TEST_F(CommercialModel, a_missing_verdict_is_a_run_time_error) {
  program_does("exit 0\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_TRUE(program.form3.visible());
}

TEST_F(CommercialModel, a_later_finished_run_cleans_up_what_a_stopped_one_left) {
  make_ready();
  press_and_answer({"No"});
  analyst.forget_boxes();
  app.put_file("truck/trktrp9.txt", "left over");
  app.put_file("truck/var.txt", "mine");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(model_files(), UnorderedElementsAre(Key("Err.txt"), Key("stand_in.txt"), Key("var.txt")));
}

TEST_F(CommercialModel, a_dot_in_a_directorys_name_cuts_the_output_there) {
  std::filesystem::create_directory(app.file("run.1"));
  open_commercial_page();
  pick("Command1(2)", mining);
  analyst.will_choose_file(in_app("run.1/out.txt"));
  analyst.will_press("OK");  // the box about the long extension changes nothing
  analyst.click("Command5");
  press_and_answer({"No"});
  EXPECT_THAT(app.bytes("truck/outpar.txt"), ::testing::HasSubstr("\r\n" + in_app("run") + "\r\n"));
}

TEST_F(CommercialModel, finds_the_paths_of_the_page_in_the_database_file) {
  program_does("copy ../zelmor.mdb seen.mdb\nwrite Err.txt 0\\r\\n\n");
  make_ready();
  by_code([this] { program.form3->Text1(6).set_text("sample/imp_time.txt"); });
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(shown().back(), completed);
  app.put_file("zelmor.mdb", app.bytes("truck/seen.mdb"));
  EXPECT_THAT(app.rows("SELECT base_time FROM timdist"), ElementsAre("sample/imp_time.txt"));
}

}  // namespace
