// When an edit goes where.
#include <filesystem>
#include <optional>

#include "assistive_tool.h"
#include "grid_test.h"
#include "small_disk.h"

namespace {

namespace rf = runtime::forms;

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::fault_of;

class GridEdit : public testing_aids::GridTest {
 protected:
  std::vector<std::string> trips() { return app.rows("select trips from pairs"); }
  const std::vector<std::string> untouched{"10.0", "null", "0.5", "1.0e+20"};
};

TEST_F(GridEdit, shows_the_rows_with_the_current_cell) {
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "[1] | 1 | 10 | 14.51 | a\n"
            "1 | 2 |  | 2 | b\n"
            "2 | 1 | 0.5 | 3 | c\n"
            "2 | 2 | 1E+20 | 4 | \n");
  EXPECT_EQ(foot(), "Row 1 of 4");
}

TEST_F(GridEdit, typing_starts_an_edit_that_replaces_the_value) {
  go_to(0, 2);
  type("7.5");
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "1 | 1 | [7.5*] | 14.51 | a\n"
            "1 | 2 |  | 2 | b\n"
            "2 | 1 | 0.5 | 3 | c\n"
            "2 | 2 | 1E+20 | 4 | \n");
  EXPECT_TRUE(grid().current_cell_modified());
  EXPECT_TRUE(grid().edit_active());
  EXPECT_EQ(std::get<double>(grid().column_value(2)), 7.5);
}

TEST_F(GridEdit, what_an_assistive_tool_puts_into_the_open_cell_is_stored) {
  go_to(0, 2);
  press(Qt::Key_F2);
  EXPECT_FALSE(grid().current_cell_modified());
  testing_aids::put_by_assistive_tool(editor(), "7.5");
  EXPECT_TRUE(grid().current_cell_modified());
  press(Qt::Key_Down);
  EXPECT_THAT(trips(), ElementsAre("7.5", "null", "0.5", "1.0e+20"));
}

TEST_F(GridEdit, a_cell_that_is_opened_and_left_changes_nothing) {
  go_to(0, 3);
  press(Qt::Key_F2);
  press(Qt::Key_Escape);
  go_to(3, 2);
  press(Qt::Key_F2);
  EXPECT_FALSE(grid().current_cell_modified());
  press(Qt::Key_Up);
  EXPECT_EQ(trips(), untouched);
}

TEST_F(GridEdit, stays_in_the_cell_and_out_of_the_table_when_the_focus_goes_to_a_button) {
  bool still_edited = false;
  form->Command1(0).on(rf::Event::Click, [&](int) { still_edited = grid().current_cell_modified(); });
  go_to(0, 2);
  type("7");
  analyst.click("Command1(0)");
  EXPECT_TRUE(still_edited);
  EXPECT_TRUE(grid().edit_active());
  EXPECT_EQ(trips(), untouched);
}

TEST_F(GridEdit, moves_into_the_rows_buffer_when_the_column_moves_on) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Right);
  EXPECT_FALSE(grid().edit_active());
  EXPECT_FALSE(grid().current_cell_modified());
  EXPECT_EQ(std::get<double>(grid().column_value(2)), 7);
  EXPECT_EQ(trips(), untouched);
}

TEST_F(GridEdit, reaches_the_table_when_a_key_changes_the_row) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Down);
  EXPECT_THAT(trips(), ElementsAre("7.0", "null", "0.5", "1.0e+20"));
}

TEST_F(GridEdit, reaches_the_table_when_a_click_changes_the_row) {
  go_to(0, 2);
  type("7");
  click(2, 0);
  EXPECT_THAT(trips(), ElementsAre("7.0", "null", "0.5", "1.0e+20"));
  EXPECT_EQ(grid().current_row(), 2);
}

TEST_F(GridEdit, reaches_the_table_when_code_changes_the_row) {
  go_to(0, 2);
  type("7");
  as_handler([&] { grid().set_current_row(1); });
  EXPECT_THAT(trips(), ElementsAre("7.0", "null", "0.5", "1.0e+20"));
}

TEST_F(GridEdit, stays_when_code_moves_to_the_row_that_is_current_already) {
  go_to(0, 2);
  type("7");
  as_handler([&] { grid().set_current_row(0); });
  EXPECT_EQ(trips(), untouched);
  EXPECT_TRUE(grid().edit_active());
}

TEST_F(GridEdit, moves_into_the_rows_buffer_when_code_changes_the_column) {
  go_to(0, 2);
  type("7");
  as_handler([&] { grid().set_current_column(3); });
  EXPECT_FALSE(grid().edit_active());
  EXPECT_EQ(trips(), untouched);
  EXPECT_EQ(std::get<double>(grid().column_value(2)), 7);
}

TEST_F(GridEdit, reaches_the_table_at_a_refresh_of_the_data_control) {
  go_to(1, 2);
  type("7");
  as_handler([&] { form->Data1(0).Refresh(); });
  EXPECT_THAT(trips(), ElementsAre("10.0", "7.0", "0.5", "1.0e+20"));
  EXPECT_FALSE(grid().edit_active());
  EXPECT_EQ(grid().current_row(), 0);
}

TEST_F(GridEdit, outlives_a_refresh_of_the_grid) {
  go_to(0, 2);
  type("7");
  app.sql("update pairs set cost = 99");
  as_handler([&] { grid().Refresh(); });
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "1 | 1 | [7*] | 99 | a\n"
            "1 | 2 |  | 99 | b\n"
            "2 | 1 | 0.5 | 99 | c\n"
            "2 | 2 | 1E+20 | 99 | \n");
  EXPECT_EQ(trips(), untouched);
}

TEST_F(GridEdit, reaches_the_table_at_the_unload_open_cell_and_buffer_alike) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  type("8");
  as_handler([&] { form.Unload(); });
  EXPECT_FALSE(form.loaded());
  EXPECT_THAT(app.rows("select trips, cost from pairs limit 1"), ElementsAre("7.0|8.0"));
}

TEST_F(GridEdit, is_dropped_by_an_unload_without_storing) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  type("8");
  as_handler([&] { form.unload_without_storing(); });
  EXPECT_THAT(app.rows("select trips, cost from pairs limit 1"), ElementsAre("10.0|14.51"));
}

TEST_F(GridEdit, stores_the_changed_fields_only) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  app.sql("update pairs set name = 'outside', cost = 99");
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select * from pairs limit 1"), ElementsAre("1|1|7.0|99.0|outside"));
}

TEST_F(GridEdit, escape_restores_the_cell_and_a_second_one_the_row) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  type("8");
  press(Qt::Key_Escape);
  EXPECT_EQ(drawn().substr(43, 24), "1 | 1 | 7 | [14.51] | a\n");
  press(Qt::Key_Escape);
  EXPECT_EQ(drawn().substr(43, 25), "1 | 1 | 10 | [14.51] | a\n");
  press(Qt::Key_Down);
  EXPECT_EQ(trips(), untouched);
}

TEST_F(GridEdit, f2_opens_the_cell_with_its_value_and_leaves_the_arrows_to_the_caret) {
  go_to(0, 3);
  press(Qt::Key_F2);
  EXPECT_EQ(editor().text(), "14.51");
  EXPECT_TRUE(grid().edit_active());
  EXPECT_FALSE(grid().current_cell_modified());
  press(Qt::Key_Left);
  type("9");
  EXPECT_EQ(editor().text(), "14.591");
  EXPECT_EQ(grid().current_column(), 3);
}

TEST_F(GridEdit, an_opened_cell_that_is_left_unchanged_stores_nothing) {
  go_to(0, 3);
  press(Qt::Key_F2);
  app.sql("update pairs set cost = 99 where name = 'a'");
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select cost from pairs limit 1"), ElementsAre("99.0"));
}

TEST_F(GridEdit, a_double_click_opens_the_cell) {
  const QRect place = view().visualRect(view().model()->index(2, 2));
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place.center());
  EXPECT_EQ(grid().current_row(), 2);
  EXPECT_EQ(grid().current_column(), 2);
  EXPECT_TRUE(grid().edit_active());
  click(2, 2);
  EXPECT_TRUE(grid().edit_active());
  EXPECT_EQ(editor().text(), "0.5");
}

TEST_F(GridEdit, delete_empties_the_cell_and_stores_null) {
  go_to(0, 2);
  press(Qt::Key_Delete);
  EXPECT_TRUE(grid().current_cell_modified());
  EXPECT_EQ(editor().text(), "");
  press(Qt::Key_Down);
  EXPECT_THAT(trips(), ElementsAre("null", "null", "0.5", "1.0e+20"));
}

TEST_F(GridEdit, a_fault_of_the_storing_is_reported_and_leaves_the_edit_and_the_row) {
  go_to(0, 2);
  app.sql("create trigger no_change before update on pairs begin select raise(abort, 'no'); end");
  type("7");
  analyst.will_press("OK");
  press(Qt::Key_Down);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(grid().current_row(), 0);
  EXPECT_TRUE(grid().current_cell_modified());
  EXPECT_EQ(editor().text(), "7");
  EXPECT_NE(fault_of([&] { form.Unload(); }), 0);
  EXPECT_TRUE(form.loaded());
  EXPECT_TRUE(grid().current_cell_modified());
}

TEST_F(GridEdit, a_row_that_was_taken_back_is_edited_again) {
  go_to(0, 2);
  type("7");
  std::optional<testing_aids::SmallDisk> disk;
  analyst.will_press("OK");
  as_handler([&] {
    grid().set_current_row(1);
    grid().Refresh();
    EXPECT_THAT(drawn(), ::testing::HasSubstr("1 | 1 | 7 | 14.51 | a\n"));
    const std::string long_name(100'000, 'x');
    desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update pairs set name = '" + long_name + "'");
    disk.emplace(std::filesystem::file_size(app.file("zelmor.mdb")));
  });
  disk.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(drawn(), ::testing::HasSubstr("1 | 1 | [7] | 14.51 | a\n"));
  EXPECT_EQ(trips(), untouched);
  press(Qt::Key_Escape);
  EXPECT_THAT(drawn(), ::testing::HasSubstr("1 | 1 | [10] | 14.51 | a\n"));
}

TEST_F(GridEdit, clearing_the_modified_flag_drops_what_was_typed_into_the_cell_and_only_that) {
  go_to(0, 2);
  type("7");
  press(Qt::Key_Tab);
  type("8");
  as_handler([&] {
    grid().set_current_cell_modified(false);
    grid().set_edit_active(false);
  });
  EXPECT_FALSE(grid().edit_active());
  press(Qt::Key_Down);
  EXPECT_THAT(app.rows("select trips, cost from pairs limit 1"), ElementsAre("7.0|14.51"));
}

TEST_F(GridEdit, goes_into_the_old_records_when_the_data_control_is_handed_others) {
  go_to(0, 2);
  type("7");
  as_handler([&] {
    auto database = desktop.workspace.OpenDatabase("zelmor.mdb");
    form->Data1(0).set_recordset(database.OpenRecordset("select * from pairs where Origin = 2"));
  });
  EXPECT_THAT(trips(), ElementsAre("7.0", "null", "0.5", "1.0e+20"));
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "2 | 1 | [0.5] | 3 | c\n"
            "2 | 2 | 1E+20 | 4 | \n");
}

TEST_F(GridEdit, shows_what_code_did_to_the_records_and_follows_them) {
  as_handler([&] {
    auto& records = form->Data1(0).recordset();
    records.MoveLast();
    records.Edit();
    records.set("trips", 5.0);
    records.Update();
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(drawn(),
            "Origin | Destination | trips | cost | name\n"
            "1 | 1 | 10 | 14.51 | a\n"
            "1 | 2 |  | 2 | b\n"
            "2 | 1 | 0.5 | 3 | c\n"
            "[2] | 2 | 5 | 4 | \n");
}

TEST_F(GridEdit, the_scroll_bar_moves_no_current_row) {
  app.sql(
      "with recursive n(i) as (select 3 union all select i + 1 from n where i < 200)"
      " insert into pairs select i, 1, i, i, null from n");
  as_handler([&] { form->Data1(0).Refresh(); });
  go_to(0, 2);
  type("7");
  view().verticalScrollBar()->setValue(100);
  EXPECT_EQ(grid().current_row(), 0);
  EXPECT_TRUE(grid().edit_active());
  EXPECT_FALSE(editor().isVisible());
  EXPECT_EQ(trips().front(), "10.0");
  type("5");
  EXPECT_TRUE(editor().isVisible());
  EXPECT_EQ(editor().text(), "75");
}

TEST_F(GridEdit, on_an_empty_table_there_is_nothing_to_edit) {
  app.sql("delete from pairs");
  as_handler([&] { form->Data1(0).Refresh(); });
  type("7");
  press(Qt::Key_Down);
  press(Qt::Key_Tab);
  as_handler([&] { grid().set_current_row(1); });
  EXPECT_EQ(drawn(), "Origin | Destination | trips | cost | name\n");
  EXPECT_EQ(foot(), "No rows");
  EXPECT_FALSE(grid().edit_active());
  as_handler([&] { form.Unload(); });
  EXPECT_TRUE(table().empty());
}

TEST_F(GridEdit, a_row_number_that_does_not_exist_is_a_fault) {
  EXPECT_EQ(fault_of([&] { grid().set_current_row(4); }), 6148);
  EXPECT_EQ(fault_of([&] { grid().set_current_row(-1); }), 6148);
}

}  // namespace
