// Code that moves the current cell of a grid: what is painted, and where a key that is typed next lands.
#include <QImage>

#include "grid_test.h"

namespace {

class GridCodeMoves : public testing_aids::GridTest {
 protected:
  /// The grid as it is painted.
  QImage painted() {
    QApplication::setActiveWindow(&window);
    view().setFocus();
    QCoreApplication::processEvents();
    return view().grab().toImage();
  }
};

TEST_F(GridCodeMoves, are_painted_as_those_of_a_person) {
  as_handler([this] { grid().set_row_selectors(true); });
  press(Qt::Key_Down, {}, 2);
  press(Qt::Key_Right, {}, 2);
  const QImage by_keys = painted();
  press(Qt::Key_Home, Qt::ControlModifier);
  ASSERT_NE(painted(), by_keys);
  go_to(2, 2);
  EXPECT_EQ(painted(), by_keys);
}

TEST_F(GridCodeMoves, of_the_row_alone_are_painted) {
  const QImage first = painted();
  press(Qt::Key_Down);
  const QImage second = painted();
  as_handler([this] { grid().set_current_row(0); });
  EXPECT_EQ(painted(), first);
  as_handler([this] { grid().set_current_row(1); });
  EXPECT_EQ(painted(), second);
}

TEST_F(GridCodeMoves, of_the_column_alone_are_painted) {
  const QImage first = painted();
  as_handler([this] { grid().set_current_column(3); });
  EXPECT_NE(painted(), first);
  EXPECT_EQ(drawn().find("[14.51]"), drawn().find('['));
  as_handler([this] { grid().set_current_column(0); });
  EXPECT_EQ(painted(), first);
}

TEST_F(GridCodeMoves, tell_the_row_in_the_foot_and_take_the_next_key) {
  go_to(2, 2);
  EXPECT_EQ(foot(), "Row 3 of 4");
  EXPECT_EQ(drawn().find("[0.5]"), drawn().find('['));
  type("7");
  press(Qt::Key_Up);
  EXPECT_EQ(table()[2], "2|1|7.0|3.0|c");
}

TEST_F(GridCodeMoves, take_the_marked_block_along) {
  press(Qt::Key_Down, Qt::ShiftModifier);
  go_to(3, 1);
  EXPECT_EQ(copied(), "2");
}

}  // namespace
