// While a box of the commercial run or of the conversion is up nothing of the end behind it has happened,
// but for the one box that comes when the forms have gone.
#include "conversion_page.h"

namespace {

class CommercialBox : public testing_aids::CommercialPage {
 protected:
  CommercialBox() {
    analyst.when_box_shows = [this](const analyst::Box&) { at_the_last_box = left(); };
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

  std::string at_the_last_box;
};

TEST_F(CommercialBox, of_no_zones_keeps_the_parameter_form) {
  make_ready();
  store_numbers("numzones = 0");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form1 Form2", "", "", " 2, output"));
}

TEST_F(CommercialBox, of_no_output_file_comes_when_the_parameter_form_has_gone) {
  open_commercial_page();
  pick("Command1(2)", mining);
  by_code([this] { program.form3->Command2.set_enabled(true); });
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", "", "", " 2"));
}

TEST_F(CommercialBox, of_no_industry_keeps_the_parameter_form) {
  open_commercial_page();
  pick("Command5", "results/trucks.txt");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", ", output"));
}

TEST_F(CommercialBox, of_no_reliability_option_keeps_the_parameter_form) {
  make_ready();
  by_code([this] { program.form3->Option4(2).set_value(false); });
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", " 2, output"));
}

TEST_F(CommercialBox, of_no_district_file_comes_when_the_parameter_form_has_gone) {
  make_ready();
  analyst.click("Check1");
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", "", "", " 2, output"));
}

TEST_F(CommercialBox, of_a_missing_district_file_keeps_the_parameter_form) {
  make_ready_with_districts();
  std::filesystem::remove(app.file("sample/districts.txt"));
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2 Form1", "", "", " 2, output, districts"));
}

TEST_F(CommercialBox, of_a_missing_time_file_comes_when_all_but_the_menus_is_done) {
  make_ready();
  std::filesystem::remove(app.file("sample/base_time.txt"));
  by_code([this] {
    for (const int number : {1, 2}) {
      program.desktop.files.open_for_output(number, "results/" + std::to_string(number));
    }
  });
  press_and_answer({"OK"});
  EXPECT_EQ(at_the_last_box, R"(forms:
open files:
new levels: 0
directory: .
picks:
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommercialBox, of_the_number_of_districts_comes_while_the_parameter_file_is_open) {
  make_ready_with_districts();
  for (const char* number : {"numdstrct = 0", "numdstrct = 25"}) {
    store_numbers(number);
    press_and_answer({"OK"});
    EXPECT_EQ(at_the_last_box, page_up(" Form2", " 1", "", " 2, output, districts")) << number;
  }
}

TEST_F(CommercialBox, of_the_question_comes_with_the_number_form_there_and_the_files_closed) {
  make_ready();
  press_and_answer({"No"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", "", "", " 2, output"));
}

TEST_F(CommercialBox, of_a_failed_program_comes_before_the_page_goes) {
  program_does("exit 3\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(at_the_last_box, page_up(" Form2", "", "/truck", " 2, output"));
}

TEST_F(CommercialBox, of_a_verdict_comes_while_its_file_is_open) {
  for (const char* verdict : {"0", "7, no trips"}) {
    program_does(std::string("write Err.txt ") + verdict + "\\r\\n\n");
    make_ready();
    press_and_answer({"Yes", "OK"});
    EXPECT_EQ(at_the_last_box, page_up(" Form2", " 1", "/truck", " 2, output")) << verdict;
  }
}

class ConversionBox : public testing_aids::ConversionPage {
 protected:
  std::string state_at_the_box() {
    std::string state;
    analyst.when_box_shows = [&](const analyst::Box&) { state = left(); };
    open_truck_page();
    press_and_answer({"OK"});
    return state;
  }
  static std::string page_up(const std::string& open_files) {
    return "forms: Form3* Form2\nopen files:" + open_files +
           "\nnew levels: 0\ndirectory: ./truck\npicks:, output\nmenus: spec_timdist\n";
  }
};

TEST_F(ConversionBox, of_a_failed_program_comes_before_the_page_goes) {
  program_does("exit 3\n");
  EXPECT_EQ(state_at_the_box(), page_up(""));
}

TEST_F(ConversionBox, of_a_verdict_comes_while_its_file_is_open) {
  for (const char* verdict : {"0", "7, no trips"}) {
    program_does(std::string("write Err.txt ") + verdict + "\\r\\n\n");
    EXPECT_EQ(state_at_the_box(), page_up(" 1")) << verdict;
  }
}

}  // namespace
