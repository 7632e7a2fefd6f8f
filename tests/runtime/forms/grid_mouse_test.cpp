// What the mouse does beyond the cells: the button at the foot, and a drag over the edge of the view.
#include "grid_test.h"

namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

class GridMouse : public testing_aids::GridTest {
 protected:
  int first_row_shown() { return view().verticalScrollBar()->value(); }
  QPoint place_of(int row, int column) {
    return view().visualRect(view().model()->index(row, column)).center();
  }
  QPoint below_the_view(int distance) { return {place_of(1, 1).x(), view().viewport()->height() + distance}; }
  /// Presses into a cell and drags to a place, where the button stays down.
  void drag(int row, int column, const QPoint& to) {
    QTest::mousePress(view().viewport(), Qt::LeftButton, {}, place_of(row, column));
    const QPoint on_screen = view().viewport()->mapToGlobal(to);
    QCursor::setPos(on_screen);
    QMouseEvent move(QEvent::MouseMove, to, on_screen, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view().viewport(), &move);
  }
  void release(const QPoint& at) { QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, at); }
};

TEST_F(GridMouse, the_button_at_the_foot_asks_for_a_row_and_goes_there) {
  fill();
  analyst.when_box_shows = [](const analyst::Box& box) {
    EXPECT_EQ(box.name, "GoTo");
    QTest::keyClicks(QApplication::activeModalWidget()->findChild<QLineEdit*>(QStringLiteral("GoToRow")),
                     QStringLiteral("5001"));
  };
  analyst.will_press("OK");
  analyst.click("GoToButton");
  EXPECT_EQ(foot(), "Row 5001 of 10000");
  EXPECT_EQ(grid().current_row(), 5000);
}

TEST_F(GridMouse, a_drag_below_the_view_selects_on_row_by_row) {
  fill();
  // Also near the edge, where the row would lie that is only half to be seen.
  for (const int distance : {60, 10}) {
    go_to(0, 0);
    const QPoint below = below_the_view(distance);
    drag(1, 1, below);
    ASSERT_TRUE(QTest::qWaitFor([this] { return first_row_shown() >= 4; })) << distance;
    release(below);
    const int rows_on_screen = view().verticalScrollBar()->pageStep();
    const std::string block = copied();
    EXPECT_THAT(block, StartsWith("2\n3\n4\n"));
    // From the second row to the last one that came to be seen.
    EXPECT_THAT(block, EndsWith("\n" + std::to_string(first_row_shown() + rows_on_screen)));
    EXPECT_EQ(grid().current_row(), 1);
  }
}

TEST_F(GridMouse, a_drag_above_the_view_selects_on_to_the_first_row) {
  fill();
  go_to(60, 1);
  ASSERT_GT(first_row_shown(), 5);
  view().verticalScrollBar()->setValue(58);
  const QPoint above(place_of(2, 1).x(), -10);
  drag(2, 1, above);
  ASSERT_TRUE(QTest::qWaitFor([this] { return first_row_shown() <= 54; }));
  release(above);
  EXPECT_THAT(copied(), StartsWith(std::to_string(first_row_shown() + 1) + "\n"));
  EXPECT_THAT(copied(), EndsWith("\n60\n61"));
}

TEST_F(GridMouse, a_drag_that_comes_back_into_the_view_selects_no_further_than_the_mouse) {
  fill();
  drag(1, 1, below_the_view(60));
  ASSERT_TRUE(QTest::qWaitFor([this] { return first_row_shown() == 4; }));
  const QPoint back = place_of(2, 1);
  QMouseEvent move(QEvent::MouseMove, back, view().viewport()->mapToGlobal(back), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(view().viewport(), &move);
  release(back);
  EXPECT_EQ(copied(), "2\n3\n4\n5\n6\n7");
}

}  // namespace
