// Refused texts, and blocks that are copied and pasted.
#include <QClipboard>

#include "grid_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GridPaste : public testing_aids::GridTest {
 protected:
  void put(const char* text) { QApplication::clipboard()->setText(QString::fromUtf8(text)); }
  void paste() { press(Qt::Key_V, Qt::ControlModifier); }
  std::vector<std::string> numbers() { return app.rows("select trips, cost from pairs"); }
  const std::vector<std::string> untouched{"10.0|14.51", "null|2.0", "0.5|3.0", "1.0e+20|4.0"};
};

TEST_F(GridPaste, a_word_in_a_number_column_is_refused_and_stays_to_be_mended) {
  go_to(0, 2);
  type("many");
  analyst.will_press("OK");
  press(Qt::Key_Down);
  EXPECT_EQ(last_box(),
            "\"many\" can't be stored in the column \"trips\": it is not a number.\n\n"
            "Correct it, or press Escape to have the former value back.");
  EXPECT_EQ(grid().current_row(), 0);
  EXPECT_EQ(editor().text(), "many");
  EXPECT_TRUE(grid().current_cell_modified());
  EXPECT_EQ(numbers(), untouched);
  press(Qt::Key_Escape);
  EXPECT_FALSE(grid().edit_active());
}

TEST_F(GridPaste, a_refused_text_is_mended_and_goes_its_way) {
  go_to(0, 2);
  type("7x");
  analyst.will_press("OK");
  press(Qt::Key_Tab);
  press(Qt::Key_Backspace);
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select trips from pairs limit 1"), ElementsAre("7.0"));
}

TEST_F(GridPaste, a_click_elsewhere_does_not_get_past_a_refused_text) {
  go_to(0, 0);
  type("1.5");
  analyst.will_press("OK");
  click(2, 2);
  EXPECT_EQ(grid().current_row(), 0);
  EXPECT_EQ(grid().current_column(), 0);
  EXPECT_EQ(editor().text(), "1.5");
}

TEST_F(GridPaste, an_unload_with_a_refused_text_is_a_fault_and_keeps_form_and_text) {
  go_to(0, 2);
  type("many");
  EXPECT_EQ(testing_aids::fault_of([&] { form.Unload(); }), 3421);
  EXPECT_TRUE(form.loaded());
  EXPECT_EQ(editor().text(), "many");
  EXPECT_EQ(std::get<std::string>(grid().column_value(2)), "many");
}

TEST_F(GridPaste, a_selected_block_is_copied_with_all_digits) {
  app.sql("update pairs set trips = 0.1 + 0.2 where name = 'a'");
  as_handler([&] { form->Data1(0).Refresh(); });
  go_to(0, 1);
  press(Qt::Key_Right, Qt::ShiftModifier, 2);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "1 | [1] | {0.3} | {14.51} | a\n"
            "1 | {2} | {} | {2} | b\n"
            "2 | 1 | 0.5 | 3 | c\n"
            "2 | 2 | 1E+20 | 4 | \n");
  EXPECT_EQ(copied(), "1\t0.30000000000000004\t14.51\n2\t\t2");
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridPaste, a_block_is_selected_by_dragging_and_by_a_click_with_shift) {
  const auto place = [&](int row, int column) {
    return view().visualRect(view().model()->index(row, column)).center();
  };
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, place(1, 1));
  QTest::mouseMove(view().viewport(), place(2, 2));
  QMouseEvent move(QEvent::MouseMove, place(2, 2), view().viewport()->mapToGlobal(place(2, 2)), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(view().viewport(), &move);
  QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, place(2, 2));
  EXPECT_EQ(copied(), "2\t\n1\t0.5");
  click(0, 0);
  click(1, 1, Qt::ShiftModifier);
  EXPECT_EQ(copied(), "1\t1\n1\t2");
}

TEST_F(GridPaste, hidden_columns_are_left_out_of_copies_and_pastes) {
  as_handler([&] { grid().set_column_visible(2, false); });
  go_to(0, 1);
  press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(copied(), "1\t14.51");
  put("8\t9");
  paste();
  EXPECT_THAT(app.rows("select * from pairs limit 1"), ElementsAre("1|8|10.0|9.0|a"));
}

TEST_F(GridPaste, a_block_goes_into_the_cells_from_the_current_one_on_and_is_stored) {
  go_to(1, 2);
  put("5\t6.25\r\n\t8\r\n");
  paste();
  EXPECT_THAT(numbers(), ElementsAre("10.0|14.51", "5.0|6.25", "null|8.0", "1.0e+20|4.0"));
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "1 | 1 | 10 | 14.51 | a\n"
            "1 | 2 | [5] | {6.25} | b\n"
            "2 | 1 | {} | {8} | c\n"
            "2 | 2 | 1E+20 | 4 | \n");
}

TEST_F(GridPaste, a_paste_stores_the_rows_buffer_first) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  put("8");
  paste();
  EXPECT_THAT(app.rows("select trips, cost from pairs limit 1"), ElementsAre("7.0|8.0"));
}

TEST_F(GridPaste, a_refused_paste_leaves_the_rows_buffer_to_be_taken_back) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  put("some");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(numbers(), untouched);
  press(Qt::Key_Escape);
  press(Qt::Key_Down);
  EXPECT_EQ(numbers(), untouched);
}

TEST_F(GridPaste, a_block_with_too_many_rows_is_refused_whole) {
  go_to(3, 2);
  put("5\n6\n");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(last_box(),
            "Nothing was pasted. The block has 2 rows, but from the current row on there is 1 row.");
  EXPECT_EQ(numbers(), untouched);
}

TEST_F(GridPaste, a_block_with_too_many_columns_is_refused_whole) {
  go_to(0, 3);
  put("5\t6\t7");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(
      last_box(),
      "Nothing was pasted. The block has 3 columns, but from the current column on there are 2 columns.");
  EXPECT_EQ(numbers(), untouched);
}

TEST_F(GridPaste, a_block_with_a_word_in_a_number_column_is_refused_whole) {
  go_to(0, 2);
  put("5\t6\n7\tsome\n");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(
      last_box(),
      "Nothing was pasted. Row 2: \"some\" can't be stored in the column \"cost\": it is not a number.");
  EXPECT_EQ(numbers(), untouched);
}

TEST_F(GridPaste, a_block_of_unequal_rows_and_an_empty_one_are_refused) {
  go_to(0, 2);
  put("5\t6\n7\n");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(last_box(), "Nothing was pasted. The rows of the block are not equally long.");
  QApplication::clipboard()->clear();
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(last_box(), "There is nothing to paste.");
  EXPECT_EQ(numbers(), untouched);
}

TEST_F(GridPaste, a_fault_in_the_middle_takes_back_all_of_the_block) {
  app.sql(
      "create trigger no_change before update on pairs when new.trips = 6"
      " begin select raise(abort, 'no'); end");
  go_to(0, 2);
  put("5\n6\n");
  analyst.will_press("OK");
  paste();
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(numbers(), untouched);
  EXPECT_EQ(drawn().substr(43, 22), "1 | 1 | [10] | 14.51 |");
}

TEST_F(GridPaste, delete_on_a_block_empties_and_stores_it) {
  go_to(0, 2);
  press(Qt::Key_Right, Qt::ShiftModifier);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Delete);
  EXPECT_THAT(numbers(), ElementsAre("null|null", "null|null", "0.5|3.0", "1.0e+20|4.0"));
}

TEST_F(GridPaste, a_block_of_millions_of_cells_is_not_copied) {
  app.sql(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 250000)"
      " insert into pairs select i, 1, i, i, null from n");
  as_handler([&] { form->Data1(0).Refresh(); });
  QApplication::clipboard()->setText(QStringLiteral("former"));
  press(Qt::Key_A, Qt::ControlModifier);
  analyst.will_press("OK");
  EXPECT_EQ(copied(), "former");
  EXPECT_EQ(last_box(),
            "The block has 250004 rows and 5 columns. At most 1000000 cells can be taken at once.");
}

}  // namespace
