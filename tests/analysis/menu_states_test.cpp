#include <QMenu>

#include "program_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Inputs, Run | spec_timdist | spec_CuCo | spec_comm, Spec_commercial
constexpr const char* at_start = "on on | on | off | off off";
constexpr const char* first_page = "off off | on | off | off off";
constexpr const char* files_saved = "on on | off | on | on on";
constexpr const char* market_page = "off off | off | on | on on";
constexpr const char* after_a_run = "on on | on | off | on on";
constexpr const char* first_page_again = "off off | on | off | on on";

class MenuStates : public testing_aids::ProgramTest {
 protected:
  std::string state() {
    std::string all;
    for (const char* item :
         {"Inputs", "Run", "|", "spec_timdist", "|", "spec_CuCo", "|", "spec_comm", "Spec_commercial"}) {
      if (!all.empty()) all += ' ';
      all += *item == '|' ? item : analyst.item_enabled(item) ? "on" : "off";
    }
    return all;
  }
  void save(const std::string& answer) {
    analyst.will_press(answer);
    analyst.click("Command8");
  }
  void pick_for_a_run() {
    pick("Command10(7)", "sample/commute_Sales.txt");
    pick("Command12", "results/sales.txt");
    analyst.forget_boxes();
  }
};

TEST_F(MenuStates, from_the_start_through_a_save_and_a_quit_of_the_market_page) {
  EXPECT_EQ(state(), at_start);
  analyst.choose("spec_timdist");
  EXPECT_EQ(state(), first_page);
  save("No");
  EXPECT_EQ(state(), first_page);
  save("Yes");
  EXPECT_EQ(state(), files_saved);
  EXPECT_TRUE(analyst.sees("MDIForm1"));
  analyst.choose("spec_comm");
  EXPECT_EQ(state(), market_page);
  analyst.click("Command3");
  EXPECT_EQ(state(), after_a_run);
  analyst.choose("spec_timdist");
  EXPECT_EQ(state(), first_page_again);
  save("Yes");
  EXPECT_EQ(state(), files_saved);
}

TEST_F(MenuStates, a_quit_of_the_first_page_leads_back) {
  analyst.choose("spec_timdist");
  analyst.click("Command3");
  EXPECT_EQ(state(), at_start);
}

TEST_F(MenuStates, a_quit_of_the_truck_page_leads_back) {
  open_commuter_page();
  program.form3->Command14.set_visible(true);
  analyst.click("Command14");
  EXPECT_EQ(state(), after_a_run);
}

TEST_F(MenuStates, a_finished_run_leads_back) {
  open_commuter_page();
  pick_for_a_run();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_EQ(last_box(), "Analysis Completed");
  EXPECT_EQ(state(), after_a_run);
}

TEST_F(MenuStates, a_run_that_asks_for_another_try_changes_none) {
  open_commuter_page();
  pick("Command12", "results/sales.txt");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_EQ(last_box(), "Must have at least one occupation input file!");
  EXPECT_EQ(state(), market_page);
  EXPECT_TRUE(analyst.sees("Form3"));
}

TEST_F(MenuStates, a_run_that_gives_up_over_an_empty_path_enables_the_menus_only) {
  app.sql("update timdist set base_time = ''");
  open_commuter_page();
  pick_for_a_run();
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_THAT(analyst.texts(), ElementsAre("file  not found. Please respecify file. "));
  EXPECT_EQ(state(), files_saved);
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(MenuStates, the_opening_after_a_run_that_gave_up_goes_on_counting) {
  app.sql("update timdist set base_time = 'nosuch.txt'");
  open_commuter_page();
  pick_for_a_run();
  analyst.will_press("OK");
  analyst.click("Command11");
  analyst.choose("spec_comm");
  EXPECT_EQ(program.form3.PickCount, 1);
  EXPECT_TRUE(program.form3->Option4(0).value());
  EXPECT_TRUE(analyst.can_use("Command10(7)"));
  pick("Command10(7)", "sample/commute_Sales.txt");
  EXPECT_EQ(program.form3.PickCount, 2);
}

TEST_F(MenuStates, after_a_quit_the_market_items_cannot_be_reached_through_their_parent) {
  open_commuter_page();
  analyst.click("Command3");
  EXPECT_TRUE(analyst.item_enabled("spec_comm"));
  EXPECT_FALSE(analyst.item_enabled("spec_CuCo"));
  auto* run = program.mdiform1.window().findChild<QMenu*>(QStringLiteral("Run"));
  auto* parent = program.mdiform1.window().findChild<QMenu*>(QStringLiteral("spec_CuCo"));
  EXPECT_TRUE(run->actions().contains(parent->menuAction()));
  EXPECT_FALSE(parent->menuAction()->isEnabled());
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(MenuStates, after_a_save_the_paths_cannot_be_changed_without_a_quit_of_a_market_page) {
  analyst.choose("spec_timdist");
  save("Yes");
  EXPECT_FALSE(analyst.item_enabled("spec_timdist"));
  analyst.choose("spec_comm");
  EXPECT_FALSE(analyst.item_enabled("spec_timdist"));
  analyst.click("Command3");
  EXPECT_TRUE(analyst.item_enabled("spec_timdist"));
}

TEST_F(MenuStates, a_form_that_leaves_the_menus_usable_gives_way_to_the_analysis_form) {
  program.form1.Show();
  program.form2.Show();
  EXPECT_EQ(state(), at_start);
  analyst.choose("spec_timdist");
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_FALSE(program.form2.visible());
  EXPECT_TRUE(analyst.sees("Form3"));
}

TEST_F(MenuStates, opening_the_submenu_of_commercial_travel_has_no_side_effect) {
  auto* submenu = program.mdiform1.window().findChild<QMenu*>(QStringLiteral("Commercial"));
  submenu->popup(QPoint(0, 0));
  EXPECT_TRUE(submenu->isVisible());
  submenu->close();
  EXPECT_EQ(state(), at_start);
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(MenuStates, a_restart_begins_at_the_first_step_though_the_paths_are_on_file) {
  analyst.choose("spec_timdist");
  save("Yes");
  forms::Program restarted(app.path());
  EXPECT_TRUE(restarted.mdiform1.spec_timdist.is_enabled());
  EXPECT_FALSE(restarted.mdiform1.spec_CuCo.is_enabled());
  EXPECT_FALSE(restarted.mdiform1.spec_comm.is_enabled());
}

}  // namespace
