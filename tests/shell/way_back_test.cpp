// Every end that leads back to the first step shows the main window.
#include "analysis/form3.h"
#include "commercial/form3.h"
#include "commuter/form3.h"
#include "program_test.h"

namespace {

class WayBack : public testing_aids::ProgramTest {
 protected:
  using Handler = void (*)(forms::Program&);

  void expect_main_window_after(Handler handler, const std::vector<std::string>& answers) {
    for (const std::string& answer : answers) analyst.will_press(answer);
    program.mdiform1.window().hide();
    as_handler([&] { handler(program); });
    EXPECT_TRUE(program.mdiform1.window().isVisible());
    EXPECT_FALSE(program.form3.loaded());
  }

  void open_commercial_page() {
    save_time_files();
    analyst.choose("Spec_commercial");
    pick("Command1(2)", "sample/trips_Mining.txt");
    pick("Command5", "results/trucks.txt");
  }
};

TEST_F(WayBack, of_a_save_of_the_time_and_distance_page) {
  analyst.choose("spec_timdist");
  expect_main_window_after(analysis::form3::Command8_Click, {"Yes"});
}

TEST_F(WayBack, of_a_quit) {
  analyst.choose("spec_timdist");
  expect_main_window_after(analysis::form3::Command3_Click, {});
}

TEST_F(WayBack, of_a_quit_of_the_truck_page) {
  analyst.choose("mnu_tonstotrucks");
  expect_main_window_after(analysis::form3::Command14_Click, {});
}

TEST_F(WayBack, of_a_commuter_run) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  expect_main_window_after(commuter::form3::Command11_Click, {"Yes", "OK"});
}

TEST_F(WayBack, of_a_commuter_run_that_was_refused) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  std::filesystem::remove(app.file("sample/commute_Sales.txt"));
  expect_main_window_after(commuter::form3::Command11_Click, {"OK"});
}

TEST_F(WayBack, of_a_commercial_run) {
  open_commercial_page();
  expect_main_window_after(commercial::form3::Command2_Click, {"Yes", "OK"});
}

TEST_F(WayBack, of_a_commercial_run_that_was_answered_no) {
  open_commercial_page();
  expect_main_window_after(commercial::form3::Command2_Click, {"No"});
}

TEST_F(WayBack, of_a_conversion) {
  analyst.choose("mnu_tonstotrucks");
  std::filesystem::remove(app.file("sample/base_time.txt"));
  expect_main_window_after(commercial::form3::Command13_Click, {});
}

}  // namespace
