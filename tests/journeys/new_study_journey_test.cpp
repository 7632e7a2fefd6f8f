// From an empty study to both finished analyses: every input is entered on the screen.
#include <QHeaderView>

#include "inputs/grid_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class NewStudy : public testing_aids::GridPage {
 protected:
  static constexpr int zones = 6;

  NewStudy() {
    app.sql(
        "UPDATE zones SET numzones = 0, numdstrct = 0; DELETE FROM Industries; DELETE FROM Occupations;"
        "UPDATE timdist SET distance = NULL, base_time = NULL, improvement_time = NULL");
    std::filesystem::remove_all(app.file("sample"));
  }

  void enter_number(const std::string& item, const std::string& number_box, int number) {
    analyst.choose(item);
    auto* edit = qobject_cast<QLineEdit*>(analyst.find(number_box));
    ASSERT_NE(edit, nullptr);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::number(number));
    analyst.will_press("Yes");
    press(program.form2, "Command5");
  }

  void fill_all_pairs(int column, const std::string& value) {
    const std::string last = std::to_string(zones);
    fill(column, {"1", last, "1", last, value});
  }
  void fill_all_zones(int column, const std::string& value) {
    fill(column, {"1", std::to_string(zones), "", "", value});
  }

  void enter_times() {
    analyst.choose("Times");
    fill_all_pairs(2, "12");
    fill_all_pairs(3, "30");
    fill_all_pairs(4, "24.5");
    press_on_grid("cmdClose");
    save_into("study");
  }

  void enter_population_and_employment() {
    analyst.choose("Comm_pop");
    press(program.form2, "Chcktrp(7)");
    press(program.form2, "Command3");
    fill_all_zones(1, "400");
    press_on_grid("cmdClose");
    fill_all_zones(1, "390");
    press_on_grid("cmdClose");
    save_into("study");
  }

  void enter_trips() {
    analyst.choose("CommerTdata");
    press(program.form2, "Chcktrp(1)");
    press(program.form2, "Command1");
    fill_all_pairs(2, "3");
    press_on_grid("cmdClose");
    save_into("study");
  }

  void enter_study() {
    enter_number("Zones", "MaskEdBox1", zones);
    enter_number("Districts", "MaskEdBox2", 2);
    enter_times();
    enter_population_and_employment();
    enter_trips();
  }

  void pick_times() {
    analyst.choose("spec_timdist");
    pick("Command4(5)", "study/distance.txt");
    pick("Command4(6)", "study/base_time.txt");
    pick("Command4(7)", "study/imp_time.txt");
    analyst.will_press("Yes");
    analyst.click("Command8");
  }

  void run(const std::string& button) {
    analyst.forget_boxes();
    analyst.will_press("Yes");
    analyst.will_press("OK");
    analyst.click(button);
    EXPECT_EQ(last_box(), "Analysis Completed");
  }
};

TEST_F(NewStudy, is_entered_saved_and_analysed) {
  enter_study();
  EXPECT_THAT(app.names_in("study"), ElementsAre("base_time.txt", "commute _Sales.txt", "distance.txt",
                                                 "imp_time.txt", "trips_Mining.txt"));

  pick_times();
  analyst.choose("spec_comm");
  pick("Command10(7)", "study/commute _Sales.txt");
  pick("Command12", "study/commuters.txt");
  analyst.click("Option4(0)");
  run("Command11");
  EXPECT_THAT(app.bytes("study/commuters.txt"), HasSubstr("Sales"));

  pick_times();
  analyst.choose("Spec_commercial");
  pick("Command1(2)", "study/trips_Mining.txt");
  pick("Command5", "study/trucks.txt");
  analyst.click("Option4(0)");
  run("Command2");
  EXPECT_THAT(app.bytes("study/trucks.txt"), HasSubstr("ining"));
}

}  // namespace
