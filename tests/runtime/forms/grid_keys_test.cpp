// Keys, clicks and what the grid tells its form.
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QDialog>
#include <QToolButton>
#include <map>

#include "assistive_tool.h"
#include "grid_test.h"
#include "runtime/forms/twips.h"

namespace {

namespace rf = runtime::forms;

using ::testing::ElementsAre;
using testing_aids::fault_of;

class GridKeys : public testing_aids::GridTest {
 protected:
  using Place = std::pair<std::int64_t, int>;
  Place place() { return {grid().current_row(), grid().current_column()}; }
};

TEST_F(GridKeys, arrows_move_by_a_cell_and_stop_at_the_edges) {
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  EXPECT_EQ(place(), Place(1, 1));
  press(Qt::Key_Left, {}, 5);
  press(Qt::Key_Up, {}, 5);
  EXPECT_EQ(place(), Place(0, 0));
}

TEST_F(GridKeys, tab_and_enter_move_on_and_into_the_next_row) {
  go_to(0, 3);
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  EXPECT_EQ(place(), Place(1, 0));
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(place(), Place(0, 4));
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(place(), Place(0, 3));
}

TEST_F(GridKeys, tab_in_the_last_cell_leaves_the_grid) {
  go_to(3, 4);
  press(Qt::Key_Tab);
  EXPECT_NE(QApplication::focusWidget(), &view());
  EXPECT_EQ(place(), Place(3, 4));
}

TEST_F(GridKeys, home_and_end_reach_the_ends_of_the_row_and_with_control_of_the_table) {
  go_to(1, 2);
  press(Qt::Key_End);
  EXPECT_EQ(place(), Place(1, 4));
  press(Qt::Key_Home);
  EXPECT_EQ(place(), Place(1, 0));
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(place(), Place(3, 4));
  press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(place(), Place(0, 0));
}

TEST_F(GridKeys, arrows_with_control_reach_the_first_and_the_last_row_in_their_column) {
  go_to(1, 2);
  press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(place(), Place(3, 2));
  press(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(place(), Place(0, 2));
}

TEST_F(GridKeys, page_keys_move_by_a_screen) {
  fill();
  press(Qt::Key_PageDown);
  const auto page = grid().current_row();
  EXPECT_GT(page, 5);
  EXPECT_LT(page, 40);
  press(Qt::Key_PageDown);
  EXPECT_EQ(grid().current_row(), 2 * page);
  press(Qt::Key_PageUp, {}, 2);
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridKeys, pass_over_hidden_columns) {
  as_handler([&] {
    for (const int column : {0, 2, 4}) grid().set_column_visible(column, false);
    grid().set_current_column(1);
  });
  press(Qt::Key_Right);
  EXPECT_EQ(place(), Place(0, 3));
  press(Qt::Key_Tab);
  EXPECT_EQ(place(), Place(1, 1));
  press(Qt::Key_End);
  EXPECT_EQ(place(), Place(1, 3));
  press(Qt::Key_Home);
  EXPECT_EQ(place(), Place(1, 1));
  EXPECT_EQ(drawn(),
            "Destination | cost\n"
            "1 | 14.51\n"
            "[2] | 2\n"
            "1 | 3\n"
            "2 | 4\n");
}

TEST_F(GridKeys, arrows_end_a_typed_edit_and_move_on) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Left);
  EXPECT_EQ(place(), Place(0, 1));
  EXPECT_EQ(std::get<double>(grid().column_value(2)), 7);
}

TEST_F(GridKeys, the_end_of_a_large_table_is_shown_with_its_last_row_whole) {
  fill();
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(foot(), "Row 10000 of 10000");
  const auto index = view().currentIndex();
  EXPECT_EQ(index.data().toString(), "");
  EXPECT_EQ(index.siblingAtColumn(2).data().toString(), "9999");
  EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(index.siblingAtColumn(0)).bottomLeft()));
  EXPECT_LT(view().model()->rowCount(), 40);
}

TEST_F(GridKeys, the_model_stands_its_tester_while_the_grid_scrolls_and_reloads) {
  const QAbstractItemModelTester tester(view().model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  fill();
  for (const int top : {500, 0, 9999, 3}) view().verticalScrollBar()->setValue(top);
  press(Qt::Key_End, Qt::ControlModifier);
  view().resize(view().width(), view().height() / 2);
  app.sql("delete from pairs where Origin > 1 or Destination > 2");
  as_handler([&] { form->Data1(0).Refresh(); });
  EXPECT_EQ(view().model()->rowCount(), 2);
  app.sql("delete from pairs");
  as_handler([&] { form->Data1(0).Refresh(); });
  EXPECT_EQ(view().model()->rowCount(), 0);
}

TEST_F(GridKeys, there_is_a_current_cell_wherever_the_grid_is_scrolled_to) {
  fill();
  view().verticalScrollBar()->setValue(5000);
  ASSERT_TRUE(view().currentIndex().isValid());
  EXPECT_EQ(view().currentIndex().data().toString(), "1");
  auto* accessible = QAccessible::queryAccessibleInterface(&view());
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Pairs");
  for (int child = 0; child < accessible->childCount(); ++child) {
    ASSERT_NE(accessible->child(child), nullptr);
  }
}

TEST_F(GridKeys, an_empty_result_can_be_read_by_an_assistive_tool_and_filled_again) {
  view().setFocus();
  as_handler([&] {
    auto& records = form->Data1(0).recordset();
    records.set_Filter("Origin = 77");
    form->Data1(0).set_recordset(records.OpenRecordset());
  });
  EXPECT_EQ(foot(), "No rows");
  const auto read = testing_aids::read_by_assistive_tool(view());
  EXPECT_THAT(read, ::testing::IsSupersetOf({"Pairs", "Origin", "name"}));
  as_handler([&] {
    form->Data1(0).set_recordset(desktop.workspace.OpenDatabase("zelmor.mdb").OpenRecordset("pairs"));
  });
  EXPECT_THAT(testing_aids::read_by_assistive_tool(view()), ::testing::Contains("14.51"));
}

TEST_F(GridKeys, the_wheel_scrolls_the_table) {
  fill();
  const QPointF middle = QRectF(view().viewport()->rect()).center();
  QWheelEvent wheel(middle, view().viewport()->mapToGlobal(middle), {}, {0, -240}, {}, {}, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(view().viewport(), &wheel);
  EXPECT_EQ(view().verticalScrollBar()->value(), 6);
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridKeys, a_cell_that_is_made_current_from_outside_is_a_move_like_any_other) {
  go_to(0, 2);
  type("7");
  view().setCurrentIndex(view().model()->index(2, 1));
  EXPECT_EQ(place(), Place(2, 1));
  EXPECT_THAT(app.rows("select trips from pairs limit 1"), ElementsAre("7.0"));
}

TEST_F(GridKeys, a_text_that_an_assistive_tool_sets_is_an_edit) {
  EXPECT_TRUE(view().model()->setData(view().model()->index(1, 2), QStringLiteral("9")));
  EXPECT_EQ(place(), Place(1, 2));
  EXPECT_TRUE(grid().current_cell_modified());
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select trips from pairs limit 2"), ElementsAre("10.0", "9.0"));
}

TEST_F(GridKeys, a_click_into_a_cell_tells_the_button_and_then_the_column) {
  std::vector<std::string> heard;
  grid().on(rf::Event::MouseUp, [&](int button) { heard.push_back("up " + std::to_string(button)); });
  grid().on(rf::Event::Click, [&](int column) { heard.push_back("click " + std::to_string(column)); });
  click(1, 3);
  QTest::mouseClick(view().viewport(), Qt::RightButton, {}, {5, 5});
  EXPECT_THAT(heard, ElementsAre("up 1", "click 3", "up 2"));
}

TEST_F(GridKeys, a_click_into_the_cell_that_is_edited_is_told_while_it_is) {
  bool edited = false;
  grid().on(rf::Event::Click, [&](int) { edited = grid().current_cell_modified(); });
  go_to(0, 2);
  type("7");
  click(0, 2);
  EXPECT_TRUE(edited);
}

TEST_F(GridKeys, a_click_on_a_heading_tells_its_column_and_moves_nothing) {
  std::vector<int> heard;
  grid().on(rf::Event::HeadClick, [&](int column) { heard.push_back(column); });
  QHeaderView& heads = *view().horizontalHeader();
  for (const int column : {2, 0}) {
    QTest::mouseClick(heads.viewport(), Qt::LeftButton, {},
                      {heads.sectionViewportPosition(column) + 20, heads.height() / 2});
  }
  EXPECT_THAT(heard, ElementsAre(2, 0));
  EXPECT_EQ(place(), Place(0, 0));
}

TEST_F(GridKeys, a_fault_of_a_click_handler_is_reported) {
  grid().on(rf::Event::Click, [](int) { throw runtime::Fault(13); });
  analyst.will_press("OK");
  click(0, 0);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
}

TEST_F(GridKeys, a_handler_may_unload_the_form) {
  grid().on(rf::Event::Click, [&](int) { form.Unload(); });
  click(0, 0);
  EXPECT_FALSE(form.loaded());
}

TEST_F(GridKeys, rows_are_as_high_as_the_labels_beside_them_are_apart) {
  EXPECT_EQ(grid().row_height(), 218);
  EXPECT_EQ(grid().row_top(3) - grid().row_top(0), 3 * 218);
  const int top = view().viewport()->y();
  EXPECT_EQ(grid().row_top(0), rf::twips(top) - 85);
  for (int row = 0; row < 4; ++row) {
    const auto place = view().visualRect(view().model()->index(row, 0));
    EXPECT_EQ(place.top(), qRound(row * 218 * rf::pixels_per_twip()));
  }
}

/// Counts what reaches the widgets of a grid while nobody does anything.
class Unrest : public QObject {
 public:
  explicit Unrest(QWidget& grid) {
    grid.installEventFilter(this);
    for (auto* part : grid.findChildren<QObject*>()) part->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    ++events[event->type()];
    return false;
  }
  std::map<QEvent::Type, int> events;
};

TEST_F(GridKeys, nothing_happens_in_a_grid_that_is_left_alone) {
  QTest::qWait(100);
  Unrest unrest(view());
  QTest::qWait(300);
  EXPECT_LE(unrest.events[QEvent::Timer], 2);  // the cursor of an editor may blink
  EXPECT_LE(unrest.events[QEvent::Paint], 2);
  EXPECT_EQ(unrest.events[QEvent::LayoutRequest], 0);
}

TEST_F(GridKeys, row_selectors_can_be_switched_off) {
  EXPECT_TRUE(view().verticalHeader()->isVisible());
  as_handler([&] { grid().set_row_selectors(false); });
  EXPECT_FALSE(view().verticalHeader()->isVisible());
}

TEST_F(GridKeys, columns_keep_the_width_that_the_analyst_gave_them_and_stay_hidden_over_a_refresh) {
  view().setColumnWidth(1, 173);
  as_handler([&] {
    grid().set_column_visible(0, false);
    form->Data1(0).Refresh();
  });
  EXPECT_EQ(view().columnWidth(1), 173);
  EXPECT_TRUE(view().isColumnHidden(0));
}

class GridGoTo : public GridKeys {
 protected:
  void SetUp() override {
    GridKeys::SetUp();
    fill();
  }

  /// Answers the box: what goes into its lines, by their object names.
  void go(const std::vector<std::pair<const char*, const char*>>& entries, bool with_message = false) {
    analyst.when_box_shows = [entries](const analyst::Box& box) {
      if (box.name != "GoTo") return;
      for (const auto& [line, text] : entries) {
        QTest::keyClicks(QApplication::activeModalWidget()->findChild<QLineEdit*>(QLatin1String(line)),
                         QLatin1String(text));
      }
    };
    analyst.will_press("OK");
    if (with_message) analyst.will_press("OK");
    press(Qt::Key_G, Qt::ControlModifier);
  }
};

TEST_F(GridGoTo, finds_a_row_by_its_number) {
  go({{"GoToRow", "5001"}});
  EXPECT_EQ(grid().current_row(), 5000);
  EXPECT_EQ(foot(), "Row 5001 of 10000");
}

TEST_F(GridGoTo, finds_a_row_by_origin_and_destination) {
  go({{"GoToKey(0)", "70"}, {"GoToKey(1)", "8"}});
  EXPECT_EQ(grid().current_row(), 6907);
}

TEST_F(GridGoTo, finds_a_row_where_pairs_are_missing) {
  app.sql("delete from pairs where Destination % 3 = 0 or Origin = 5");
  as_handler([&] { form->Data1(0).Refresh(); });
  go({{"GoToKey(0)", "70"}, {"GoToKey(1)", "8"}});
  const QModelIndex index = view().currentIndex();
  EXPECT_EQ(index.siblingAtColumn(0).data().toString(), "70");
  EXPECT_EQ(index.siblingAtColumn(1).data().toString(), "8");
}

TEST_F(GridGoTo, finds_a_row_in_another_order) {
  as_handler([&] {
    auto& records = form->Data1(0).recordset();
    records.set_Sort("trips desc");
    form->Data1(0).set_recordset(records.OpenRecordset());
  });
  go({{"GoToKey(0)", "70"}, {"GoToKey(1)", "8"}});
  EXPECT_EQ(grid().current_row(), 9999 - 6907);
}

TEST_F(GridGoTo, tells_when_there_is_no_such_row) {
  go({{"GoToKey(0)", "70"}, {"GoToKey(1)", "101"}}, true);
  EXPECT_EQ(last_box(), "There is no row with Origin 70, Destination 101.");
  app.sql("update pairs set Destination = 2000000000 where Origin = 100 and Destination = 100");
  as_handler([&] { form->Data1(0).Refresh(); });
  go({{"GoToKey(0)", "999999999999999"}, {"GoToKey(1)", "8"}}, true);
  EXPECT_EQ(last_box(), "There is no row with Origin 999999999999999, Destination 8.");
  go({{"GoToRow", "10001"}}, true);
  EXPECT_EQ(last_box(), "There is no row 10001. The last row is 10000.");
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridGoTo, no_such_row_does_not_speak_of_what_is_being_edited) {
  go_to(0, 2);
  type("7.5");
  for (const auto& [line, text, words] :
       {std::tuple("GoToRow", "10001", "There is no row 10001. The last row is 10000."),
        {"GoToRow", "0", "There is no row 0. The last row is 10000."}}) {
    go({{line, text}}, true);
    EXPECT_EQ(last_box(), words);
  }
  go({{"GoToKey(0)", "101"}, {"GoToKey(1)", "1"}}, true);
  EXPECT_EQ(last_box(), "There is no row with Origin 101, Destination 1.");
  EXPECT_EQ(analyst.last_box().icon, 2) << "an exclamation mark";
  EXPECT_EQ(editor().text(), "7.5");
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select trips from pairs limit 1"), ::testing::ElementsAre("7.5"));
}

TEST_F(GridGoTo, one_key_of_two_is_not_enough_and_the_box_says_which_is_missing) {
  analyst.will_do([this](QDialog& box) {
    const auto line = [&box](const char* name) { return box.findChild<QLineEdit*>(QLatin1String(name)); };
    QTest::keyClicks(line("GoToKey(1)"), QStringLiteral("8"));
    analyst.will_press("OK");
    QTest::keyClick(line("GoToKey(1)"), Qt::Key_Return);
    EXPECT_EQ(last_box(), "Enter a number for Origin, too, or a row number.");
    ASSERT_TRUE(box.isVisible());
    EXPECT_TRUE(box.focusWidget() == line("GoToKey(0)"));
    QTest::keyClicks(line("GoToKey(0)"), QStringLiteral("70"));
    QTest::keyClick(line("GoToKey(0)"), Qt::Key_Return);
  });
  press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(grid().current_row(), 6907);
}

TEST_F(GridGoTo, one_key_and_a_row_number_go_to_the_row_number) {
  go({{"GoToKey(1)", "8"}, {"GoToRow", "7"}});
  EXPECT_EQ(grid().current_row(), 6);
}

TEST_F(GridGoTo, nothing_entered_goes_nowhere) {
  go({});
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridGoTo, the_row_stands_in_the_middle) {
  const auto place = [this] { return view().visualRect(view().currentIndex()).center().y(); };
  const int middle = view().viewport()->height() / 2;
  const int row_height = view().rowHeight(0);
  for (const char* row : {"5001", "5003", "4000", "9000"}) {
    go({{"GoToRow", row}});
    EXPECT_NEAR(place(), middle, row_height) << row;
  }
  go({{"GoToKey(0)", "70"}, {"GoToKey(1)", "8"}});
  EXPECT_NEAR(place(), middle, row_height);
  EXPECT_EQ(view().currentIndex().siblingAtColumn(0).data().toString(), "70");
  EXPECT_EQ(view().currentIndex().siblingAtColumn(1).data().toString(), "8");
  go({{"GoToRow", "2"}});
  EXPECT_THAT(drawn(), ::testing::StartsWith("Origin | Destination | trips | cost | name\n"
                                             "1 | 1 | 0 |  | \n"
                                             "[1] | 2 | 1 |  | \n"
                                             "1 | 3 | 2 |  | \n"));
  go({{"GoToRow", "10000"}});
  EXPECT_GT(place(), middle);
  EXPECT_EQ(foot(), "Row 10000 of 10000");
}

TEST_F(GridGoTo, a_typed_text_that_is_refused_keeps_its_row) {
  type("x");
  go({{"GoToRow", "7"}}, true);
  EXPECT_EQ(editor().text(), "x");
  EXPECT_EQ(grid().current_row(), 0);
}

}  // namespace
