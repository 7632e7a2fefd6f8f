// The menu around a commuter run: which way is open in which state of the workflow.
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "commuter_page.h"

namespace {

using ::testing::IsEmpty;

class CommuterWorkflow : public testing_aids::CommuterPage {
 protected:
  QMenu& menu(const char* name) { return *program.mdiform1.window().findChild<QMenu*>(name); }

  /// Opens "Run Model" with the mouse.
  QMenu& open_run_menu() {
    QMenu& run = menu("Run");
    QMenuBar& bar = *program.mdiform1.window().menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(run.menuAction()).center());
    EXPECT_TRUE(QTest::qWaitFor([&run] { return run.isVisible(); }));
    return run;
  }

  /// The enabled flags, whether or not the way to the item is open.
  std::string flags() {
    const std::string state = left();
    return state.substr(state.find("menus:") + 6);
  }

  void finish_a_run() {
    make_ready();
    press_and_answer({"Yes", "OK"});
    ASSERT_EQ(shown().back(), "Analysis Completed [OK]");
  }

  void expect_no_way_to_the_commuter_page() {
    QMenu& run = open_run_menu();
    QAction* way = menu("spec_CuCo").menuAction();
    EXPECT_FALSE(way->isEnabled());
    run.setActiveAction(way);
    QTest::keyClick(&run, Qt::Key_Right);
    QTest::keyClick(&run, Qt::Key_Return);
    QTest::mouseMove(&run, run.actionGeometry(way).center());
    QTest::mouseClick(&run, Qt::LeftButton, {}, run.actionGeometry(way).center());
    QCoreApplication::processEvents();
    EXPECT_FALSE(menu("spec_CuCo").isVisible());
    EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
    run.close();
  }
};

TEST_F(CommuterWorkflow, opens_and_closes_its_steps_in_turn) {
  EXPECT_EQ(flags(), " Inputs Run spec_timdist\n");
  analyst.choose("spec_timdist");
  EXPECT_EQ(flags(), " spec_timdist\n");
  analyst.will_press("No");
  analyst.click("Command8");
  EXPECT_EQ(flags(), " spec_timdist\n");
  analyst.will_press("Yes");
  analyst.click("Command8");
  EXPECT_EQ(flags(), " Inputs Run spec_CuCo spec_comm\n");
  analyst.choose("spec_comm");
  EXPECT_EQ(flags(), " spec_CuCo spec_comm\n");
  analyst.click("Command3");
  EXPECT_EQ(flags(), " Inputs Run spec_timdist spec_comm\n");
}

TEST_F(CommuterWorkflow, bars_the_commuter_page_at_the_start) {
  expect_no_way_to_the_commuter_page();
}

TEST_F(CommuterWorkflow, bars_the_commuter_page_after_a_run_though_its_item_is_enabled) {
  finish_a_run();
  EXPECT_EQ(flags(), " Inputs Run spec_timdist spec_comm\n");
  expect_no_way_to_the_commuter_page();
}

TEST_F(CommuterWorkflow, bars_the_commuter_page_after_quit_though_its_item_is_enabled) {
  open_commuter_page();
  analyst.click("Command3");
  EXPECT_EQ(flags(), " Inputs Run spec_timdist spec_comm\n");
  expect_no_way_to_the_commuter_page();
}

TEST_F(CommuterWorkflow, opens_the_time_and_distance_page_after_a_run) {
  finish_a_run();
  analyst.choose("spec_timdist");
  EXPECT_TRUE(analyst.can_use("Command8"));
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
  EXPECT_EQ(flags(), " spec_timdist spec_comm\n");
}

TEST_F(CommuterWorkflow, bars_both_top_menus_while_a_run_that_stopped_keeps_its_page) {
  make_ready();
  press_and_answer({"No"});
  EXPECT_EQ(flags(), " spec_CuCo spec_comm\n");
}

}  // namespace
