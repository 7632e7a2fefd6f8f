// Filter, sort, requery and quit.
#include <QAbstractItemView>
#include <QApplication>
#include <QTimer>

#include "grid_page.h"
#include "inputs/frmdatagrid.h"
#include "inputs/launchers.h"
#include "pointer_watch.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class GridCommands : public testing_aids::GridPage {
 protected:
  void enter(const std::string& button, const std::string& text) {
    analyst.will_enter(text);
    press_on_grid(button);
  }

  /// The records that the grid walks, the first two fields of each.
  std::vector<std::string> shown() {
    std::vector<std::string> rows;
    const auto& records = program.frmDataGrid->DataLu.recordset();
    for (const auto& row : records.GetRows(0, 100)) {
      rows.push_back(std::to_string(std::get<std::int64_t>(row[0])) + "," +
                     std::to_string(std::get<std::int64_t>(row[1])));
    }
    return rows;
  }

  /// `text`: what is entered before, when the command asks for it.
  void expect_told(const std::string& button, const std::string& text, const std::string& told) {
    analyst.forget_boxes();
    if (!text.empty()) analyst.will_enter(text);
    analyst.will_press("OK");
    press_on_grid(button);
    EXPECT_THAT(last_box(), StartsWith(told));
    EXPECT_EQ(analyst.last_box().name, "MsgBox");
    EXPECT_EQ(analyst.last_box().icon, 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  }
};

TEST_F(GridCommands, filter_shows_the_records_that_meet_a_condition) {
  open_times(3);
  enter("cmdFilter", "Origin = 2 And Destination <> 1");
  EXPECT_EQ(last_box(), "Enter Filter Expression:");
  EXPECT_THAT(shown(), ElementsAre("2,2", "2,3"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(GridCommands, filter_narrows_what_is_narrowed_already) {
  open_times(3);
  enter("cmdFilter", "Origin >= 2");
  enter("cmdFilter", "Destination = 1");
  EXPECT_THAT(shown(), ElementsAre("2,1", "3,1"));
}

TEST_F(GridCommands, filter_shows_all_five_boxes_before_it_asks) {
  open_population(2, {7});
  analyst.when_box_shows = [this](const analyst::Box&) {
    for (int i = 0; i <= 4; ++i) EXPECT_TRUE(program.frmDataGrid->txt_zonedit(i).visible()) << i;
  };
  analyst.will_press("Cancel");
  press_on_grid("cmdFilter");
  EXPECT_FALSE(program.frmDataGrid->Label2(3).visible());
}

TEST_F(GridCommands, filter_and_sort_without_an_answer_change_nothing) {
  open_times(2);
  enter("cmdFilter", "");
  enter("cmdSort", "");
  analyst.will_press("Cancel");
  press_on_grid("cmdFilter");
  analyst.will_press("Cancel");
  press_on_grid("cmdSort");
  EXPECT_THAT(shown(), ElementsAre("1,1", "1,2", "2,1", "2,2"));
}

TEST_F(GridCommands, sort_orders_the_records) {
  open_times(2);
  enter("cmdSort", "Destination Desc, Origin");
  EXPECT_EQ(last_box(), "Enter Sort Column:");
  EXPECT_THAT(shown(), ElementsAre("1,2", "2,2", "1,1", "2,1"));
}

TEST_F(GridCommands, sort_keeps_the_filter) {
  open_times(3);
  enter("cmdFilter", "Origin = 2");
  enter("cmdSort", "Destination Desc");
  EXPECT_THAT(shown(), ElementsAre("2,3", "2,2", "2,1"));
}

TEST_F(GridCommands, sort_does_not_ask_when_a_column_is_set) {
  open_times(2);
  program.frmDataGrid.SortColumn = "Destination";
  press_on_grid("cmdSort");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  EXPECT_THAT(shown(), ElementsAre("1,1", "2,1", "1,2", "2,2"));
}

TEST_F(GridCommands, filter_and_sort_tell_of_a_bad_answer_and_leave_the_grid_as_it_was) {
  open_times(2);
  expect_told("cmdFilter", "nosuch = 1", "Error:3061 ");
  expect_told("cmdFilter", "Origin = ", "Error:3075 ");
  expect_told("cmdSort", "nosuch", "Error:3061 ");
  EXPECT_THAT(shown(), ElementsAre("1,1", "1,2", "2,1", "2,2"));
  enter("cmdSort", "Destination");
  EXPECT_THAT(shown(), ElementsAre("1,1", "2,1", "1,2", "2,2"));
}

TEST_F(GridCommands, filter_and_sort_show_the_hourglass_while_they_work_and_not_while_they_ask) {
  open_times(2);
  analyst.when_box_shows = [](const analyst::Box&) { EXPECT_EQ(testing_aids::hourglass(), "normal"); };
  for (const auto& [button, text] : {std::pair{"cmdFilter", "Origin = 1"}, {"cmdSort", "Destination"}}) {
    const testing_aids::PointerWatch watch;
    enter(button, text);
    EXPECT_THAT(watch.seen(), Contains("hourglass")) << button;
    EXPECT_EQ(testing_aids::hourglass(), "normal") << button;
  }
}

TEST_F(GridCommands, filter_reads_no_other_table) {
  open_times(1);
  analyst.will_enter("Origin in (select numzones from zones)");
  analyst.will_press("OK");
  press_on_grid("cmdFilter");
  EXPECT_THAT(last_box(), StartsWith("Error:"));
  EXPECT_THAT(shown(), ElementsAre("1,1"));
}

TEST_F(GridCommands, a_table_can_be_neither_filtered_nor_sorted) {
  int beeps_at_box = 0;
  analyst.when_box_shows = [&](const analyst::Box&) { beeps_at_box = program.desktop.beeps(); };
  for (const std::string verb : {"Filter", "Sort"}) {
    const int beeps = program.desktop.beeps();
    analyst.will_press("OK");
    as_handler([&] { EXPECT_TRUE(inputs::frmdatagrid::table_is_refused(program, 0, verb)); });
    EXPECT_EQ(last_box(), "You Cannot " + verb + " a Table Recordset!");
    EXPECT_EQ(analyst.last_box().icon, 2);
    EXPECT_EQ(beeps_at_box, beeps + 1);
  }
  analyst.forget_boxes();
  as_handler([&] { EXPECT_FALSE(inputs::frmdatagrid::table_is_refused(program, 1, "Filter")); });
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(GridCommands, refresh_shows_what_others_have_stored) {
  open_times(2);
  enter("cmdFilter", "distance > 5");
  EXPECT_THAT(shown(), IsEmpty());
  app.sql("UPDATE sosec SET distance = 9 WHERE Origin = 2 AND Destination = 1");
  press_on_grid("cmdRefresh");
  EXPECT_THAT(shown(), ElementsAre("2,1"));
  EXPECT_EQ(std::get<double>(program.frmDataGrid->grdDataGrid.column_value(2)), 9);
}

TEST_F(GridCommands, refresh_tells_of_a_table_that_is_gone) {
  open_times(2);
  app.sql("DROP TABLE sosec");
  analyst.will_press("OK");
  press_on_grid("cmdRefresh");
  EXPECT_THAT(last_box(), StartsWith("Error:3078 "));
  EXPECT_EQ(analyst.last_box().icon, 0);
}

TEST_F(GridCommands, an_edit_under_way_outlives_a_filter_a_sort_and_a_refresh) {
  open_times(2);
  type_into_cell(1, 2, "4");
  enter("cmdFilter", "Origin = 1");
  type_into_cell(1, 3, "5");
  enter("cmdSort", "Destination");
  type_into_cell(1, 4, "6");
  press_on_grid("cmdRefresh");
  as_handler([this] { program.frmDataGrid->DataLu.Refresh(); });
  EXPECT_THAT(sosec("WHERE Destination = 2 AND Origin = 1"), ElementsAre("1|2|4|5|6"));
}

TEST_F(GridCommands, tell_of_a_text_that_its_column_cannot_take_and_leave_it_in_its_cell) {
  open_times(2);
  enter("cmdFilter", "Origin = 2");
  type_into_cell(1, 2, "much");
  expect_told("cmdFilter", "Destination = 1", "Error:3421 ");
  expect_told("cmdSort", "Destination Desc", "Error:3421 ");
  expect_told("cmdRefresh", "", "Error:3421 ");
  EXPECT_THAT(shown(), ElementsAre("2,1", "2,2"));
  auto& grid = program.frmDataGrid->grdDataGrid;
  EXPECT_TRUE(grid.edit_active());
  EXPECT_EQ(std::get<std::string>(grid.column_value(2)), "much");
  EXPECT_EQ(grid.current_row(), 1);
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), IsEmpty());
}

TEST_F(GridCommands, go_on_when_a_text_that_its_column_cannot_take_is_given_up) {
  open_times(2);
  type_into_cell(1, 2, "much");
  expect_told("cmdFilter", "Destination = 1", "Error:3421 ");
  press_key(program.frmDataGrid->grdDataGrid, Qt::Key_Escape);
  enter("cmdSort", "Origin Desc, Destination");
  EXPECT_THAT(shown(), ElementsAre("2,1", "2,2", "1,1", "1,2"));
}

TEST_F(GridCommands, the_deletion_of_a_row_is_asked_for_and_only_a_yes_lets_it_pass) {
  analyst.will_press("No");
  as_handler([this] { EXPECT_TRUE(inputs::frmdatagrid::grdDataGrid_BeforeDelete(program)); });
  EXPECT_EQ(last_box(), "Delete Current Row?");
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, 4);
  analyst.will_press("Yes");
  as_handler([this] { EXPECT_FALSE(inputs::frmdatagrid::grdDataGrid_BeforeDelete(program)); });
}

TEST_F(GridCommands, the_last_mouse_button_on_the_grid_is_kept) {
  open_times(1);
  inputs::frmdatagrid::DataLu_Validate(program);
  auto* view = qobject_cast<QAbstractItemView*>(program.frmDataGrid->grdDataGrid.widget());
  ASSERT_NE(view, nullptr);
  for (const auto& [button, number] :
       {std::pair{Qt::RightButton, 2}, {Qt::LeftButton, 1}, {Qt::MiddleButton, 4}}) {
    QTest::mouseClick(view->viewport(), button, {}, view->visualRect(view->model()->index(0, 2)).center());
    EXPECT_EQ(program.frmDataGrid.LastMouseButton, number);
  }
}

TEST_F(GridCommands, quit_forgets_the_picks_and_unloads_every_work_form) {
  open_population(2, {7});
  click_heading(1);
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  press_on_grid("Cmdquit");
  EXPECT_EQ(loaded_forms(), "");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
  EXPECT_EQ(program.frmDataGrid.SelectedFieldCount, 0);
  EXPECT_EQ(program.frmDataGrid.SelectedFields[1], "");
  EXPECT_EQ(program.frmDataGrid.SelectedFieldsText, "");
}

TEST_F(GridCommands, quit_unloads_the_grid_first_and_the_parameters_last) {
  set_zones(1);
  as_handler([this] { program.form3.hide(); });  // its load unloads the others
  analyst.choose("Times");
  as_handler([this] { program.form1.hide(); });
  std::vector<std::string> unloaded;
  for (const auto* form : program.desktop.loaded_forms) {
    QObject::connect(form->surface(), &QObject::destroyed,
                     [&unloaded, name = form->name()] { unloaded.push_back(name); });
  }
  press_on_grid("Cmdquit");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_THAT(unloaded, ElementsAre("frmDataGrid", "Frmdirget", "Form3", "Form2", "Form1"));
}

TEST_F(GridCommands, quit_drops_what_is_being_typed_and_leaves_the_table) {
  open_times(2);
  fill(2, {"1", "2", "1", "2", "3"});
  type_into_cell(1, 2, "99");
  press_on_grid("Cmdquit");
  EXPECT_THAT(sosec(),
              ElementsAre("1|1|3|null|null", "1|2|3|null|null", "2|1|3|null|null", "2|2|3|null|null"));
}

TEST_F(GridCommands, quit_stores_what_is_being_typed_into_the_parameters) {
  open_times(1);
  analyst.choose("commute_param_sw");
  type_into_cell_of(program.form1->DBGrid4, 7, 2, "99.5");
  press_on_grid("Cmdquit");
  EXPECT_THAT(app.rows("SELECT wage FROM commuter WHERE \"index\" = 7"), ElementsAre("99.5"));
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridCommands, quit_keeps_the_parameters_open_when_a_text_cannot_be_stored) {
  open_times(1);
  analyst.choose("commute_param_sw");
  type_into_cell_of(program.form1->DBGrid4, 7, 2, "much");
  analyst.will_press("OK");
  press_on_grid("Cmdquit");
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3421':"));
  EXPECT_EQ(loaded_forms(), "Form1*");
}

TEST_F(GridCommands, quit_stores_the_path_that_was_picked) {
  set_zones(1);
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/imp_time.txt");
  as_handler([this] { inputs::mdiform1::Times_Click(program); });
  press_on_grid("Cmdquit");
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"),
              ElementsAre(app.file("sample/imp_time.txt").string()));
  EXPECT_EQ(loaded_forms(), "");
}

TEST_F(GridCommands, quit_in_the_employment_pass_lets_the_next_entry_begin_with_employment) {
  open_employment(2, {7});
  press_on_grid("Cmdquit");
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
  open_population(2, {7});
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "Save Employment Data and Return to Main Menu");
  EXPECT_EQ(program.frmDataGrid->Label1.caption(), "EMPLOYMENT");
}

TEST_F(GridCommands, the_close_box_of_the_main_window_stores_what_is_being_typed) {
  open_times(2);
  type_into_cell(1, 2, "99");
  program.mdiform1.window().close();
  EXPECT_THAT(sosec("WHERE distance NOTNULL"), ElementsAre("1|2|99|null|null"));
  EXPECT_EQ(loaded_forms(), "");
  // The end of the program that was asked for would end every box of the tests behind this one.
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
}

}  // namespace
