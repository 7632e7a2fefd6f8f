// While a box of the commuter run is up nothing of the end behind it has happened: the page, the picks, the
// menus, the file numbers and the directory are as the run had them.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "chain_test.h"

namespace {

using runtime::forms::WindowState;

class CommuterBox : public testing_aids::CommuterChain {
 protected:
  CommuterBox() {
    analyst.when_box_shows = [this](const analyst::Box&) { at_the_last_box = left(); };
  }

  void make_ready_with_districts() {
    make_ready();
    analyst.click("Check1");
    pick("Command7", "sample/districts.txt");
  }
  void store_numbers(const std::string& assignments) {
    by_code([this] { program.form2.unload_without_storing(); });
    app.sql("UPDATE zones SET " + assignments);
  }

  /// The page with what a run has at hand: forms behind it, open files, directory, picks.
  static std::string page_up(const std::string& forms, const std::string& open_files,
                             const std::string& directory, const std::string& picks) {
    return "forms: Form3*" + forms + "\nopen files:" + open_files + "\nnew levels: 0\ndirectory: ." +
           directory + "\npicks:" + picks + "\nmenus: spec_CuCo spec_comm\n";
  }
  /// The same while the programs run.
  static std::string chain_up(const std::string& forms, const std::string& open_files) {
    return page_up(forms, open_files, "/commuter", " 7, output");
  }

  bool page_is_maximised() const {
    return program.form3.window_state() == WindowState::maximized &&
           program.desktop.mdi_area->activeSubWindow()->isMaximized();
  }

  std::string at_the_last_box;
};

TEST_F(CommuterBox, of_no_zones_comes_before_the_picks_are_forgotten) {
  make_ready();
  store_numbers("numzones = 0");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form1 Form2", "", "", " 7, output"));
}

TEST_F(CommuterBox, of_no_output_file_comes_when_the_parameter_form_has_gone) {
  open_commuter_page();
  pick("Command10(7)", sales);
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", "", "", " 7"));
}

TEST_F(CommuterBox, of_no_occupation_keeps_the_parameter_form) {
  open_commuter_page();
  pick("Command12", "results/sales.txt");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", ", output"));
}

TEST_F(CommuterBox, of_no_reliability_option_keeps_the_parameter_form) {
  make_ready();
  by_code([this] { program.form3->Option4(0).set_value(false); });
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", " 7, output"));
}

TEST_F(CommuterBox, of_a_missing_time_file_comes_before_the_page_goes) {
  make_ready();
  std::filesystem::remove(app.file("sample/base_time.txt"));
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", " 7, output"));
}

TEST_F(CommuterBox, of_a_missing_district_file_comes_while_the_parameter_files_are_open) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", " 1 2 3", "", " 7, output"));
}

TEST_F(CommuterBox, of_the_number_of_districts_comes_while_the_parameter_files_are_open) {
  for (const char* number : {"numdstrct = 0", "numdstrct = 25"}) {
    make_ready_with_districts();
    store_numbers(number);
    press_and_answer({"OK"});
    EXPECT_EQ(at_the_last_box, page_up(" Form2", " 1 2 3", "", " 7, output, districts")) << number;
    by_code([this] { program.desktop.files.Close(3); });
  }
}

TEST_F(CommuterBox, of_a_missing_occupation_file_comes_while_the_parameter_files_are_open) {
  app.put_file("sample/first.txt", "");
  open_commuter_page();
  pick("Command10(7)", sales);
  pick("Command10(0)", "sample/first.txt");
  pick("Command12", "results/sales.txt");
  std::filesystem::remove(app.file("sample/first.txt"));
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", " 1 2 3", "", " 7 0, output"));
}

TEST_F(CommuterBox, of_a_failed_program_comes_before_the_page_goes) {
  for (const int place : {1, 2, 3}) {
    program_does(place, "exit 1");
    make_ready();
    run();
    EXPECT_THAT(verdict(), ::testing::StartsWith("Error executing"));
    EXPECT_EQ(at_the_last_box, chain_up(place == 1 ? "" : " Form1", "")) << place;
  }
}

TEST_F(CommuterBox, of_a_refusal_comes_while_its_file_is_open) {
  for (const int place : {1, 2, 3}) {
    program_does(place, "write err.txt 2,no zone 7\\r\\n");
    make_ready();
    run();
    EXPECT_EQ(verdict(), "error occured in program execution! no zone 7 [OK]");
    EXPECT_EQ(at_the_last_box, chain_up(place == 2 ? " Form1" : "", " 1")) << place;
  }
}

TEST_F(CommuterBox, of_success_comes_while_the_last_verdict_is_open_and_before_the_files_go) {
  std::string names;
  analyst.when_box_shows = [&](const analyst::Box&) {
    at_the_last_box = left();
    names.clear();
    for (const auto& [name, bytes] : model_files()) names += name + " ";
  };
  make_ready();
  run();
  EXPECT_EQ(verdict(), completed);
  EXPECT_EQ(at_the_last_box, chain_up("", " 1"));
  EXPECT_THAT(names, ::testing::HasSubstr("base_time.txt base_var.txt ccpar.txt costpar.txt err.txt "));
}

TEST_F(CommuterBox, finds_a_page_that_was_made_small_maximised) {
  open_commuter_page();
  pick("Command12", "results/sales.txt");
  by_code([this] { program.form3.set_window_state(WindowState::normal); });
  ASSERT_FALSE(page_is_maximised());
  bool is_maximised = false;
  analyst.when_box_shows = [&](const analyst::Box&) { is_maximised = page_is_maximised(); };
  press_and_answer({"OK"});
  EXPECT_TRUE(is_maximised);
}

TEST_F(CommuterBox, is_followed_by_a_maximised_page_for_another_try) {
  make_ready();
  analyst.when_box_shows = [this](const analyst::Box&) {
    program.form3.set_window_state(WindowState::normal);
  };
  press_and_answer({"No"});
  EXPECT_TRUE(page_is_maximised());
}

}  // namespace
