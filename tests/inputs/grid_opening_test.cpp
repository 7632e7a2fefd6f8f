// A grid that can't be opened: nothing that was meant for it stays behind, and nothing typed is lost.
#include <sqlite3.h>

#include "grid_page.h"
#include "small_disk.h"

namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class GridOpening : public testing_aids::GridPage {
 protected:
  GridOpening() { program.desktop.workspace.lock_wait = std::chrono::milliseconds(10); }

  /// Without its template the skeleton can't be written; without its columns the load can't be made.
  void spoil_the_template(const std::string& name) {
    template_bytes_ = app.bytes(name);
    app.put_file(name, "[other.csv]\r\n");
  }
  void mend_the_template(const std::string& name) { app.put_file(name, template_bytes_); }

  /// What the analyst typed in the population pass, by zone.
  void type_population() {
    open_population(2, {7, 11});
    type_into_cell(0, 1, "40");
    type_into_cell(1, 2, "7");
  }

  int waits = 0;

 private:
  std::string template_bytes_;
};

TEST_F(GridOpening, of_times_that_fails_leaves_no_chooser_and_lists_no_column) {
  spoil_the_template("schema.inp");
  analyst.will_press("OK");
  open_times(2);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(loaded_forms(), "Form2");
  EXPECT_EQ(program.form2->Text1(0).text(), "");
  mend_the_template("schema.inp");
  open_times(2);
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridOpening, of_trips_that_fails_can_be_tried_again_by_the_same_button) {
  spoil_the_template("schema.inp");
  analyst.will_press("OK");
  open_trips(1, {1, 3});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(loaded_forms(), "Form2*");
  mend_the_template("schema.inp");
  press(program.form2, "Command1");
  EXPECT_EQ(columns_of("sosec"), "Origin Destination Mining Service");
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(GridOpening, of_population_that_fails_can_be_tried_again_by_the_same_button) {
  spoil_the_template("schema3.inp");
  analyst.will_press("OK");
  open_population(1, {7});
  EXPECT_EQ(loaded_forms(), "Form2*");
  mend_the_template("schema3.inp");
  press(program.form2, "Command3");
  EXPECT_EQ(columns_of("sosec"), "Zone Sales");
}

TEST_F(GridOpening, that_fails_leaves_a_chooser_that_was_there_before) {
  open_trips(1, {1});
  press_on_grid("cmdClose");
  spoil_the_template("schema.inp");
  analyst.will_press("OK");
  analyst.choose("Times");
  EXPECT_EQ(loaded_forms(), "Form2*- Frmdirget*");
}

TEST_F(GridOpening, whose_table_does_not_become_durable_leaves_neither_grid_nor_chooser) {
  sqlite3* reader = nullptr;
  sqlite3_open(app.file("zelmor.mdb").string().c_str(), &reader);
  set_zones(2);
  program.desktop.workspace.waiting = [&](bool is_waiting) {
    if (is_waiting) ++waits;
  };
  // Reads from the time on at which the skeleton is made, so that only the end of the load meets it.
  as_handler([this] { program.form2.hide(); });
  sqlite3_exec(reader, "BEGIN; SELECT count(*) FROM zones", nullptr, nullptr, nullptr);
  analyst.will_press("OK");
  analyst.choose("Times");
  sqlite3_close(reader);
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3260':"));
  EXPECT_GT(waits, 0);
  EXPECT_EQ(loaded_forms(), "Form2");
  EXPECT_EQ(program.form2->Text1(0).text(), "");
}

#ifndef _WIN32
TEST_F(GridOpening, whose_skeleton_finds_no_room_leaves_no_chooser_and_lists_no_column) {
  set_zones(30);
  {
    const testing_aids::SmallDisk disk(200);
    analyst.will_press("OK");
    analyst.choose("Times");
  }
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(loaded_forms(), "Form2");
  EXPECT_EQ(program.form2->Text1(0).text(), "");
  open_times(2);
  EXPECT_TRUE(program.frmDataGrid.visible());
}
#endif

TEST_F(GridOpening, of_employment_that_does_not_become_durable_comes_back_to_the_population_pass) {
  type_population();
  sqlite3* reader = nullptr;
  sqlite3_open(app.file("zelmor.mdb").string().c_str(), &reader);
  // Reads as soon as the population is durable: the grid of the other pass is what it bars.
  program.frmDataGrid.set_events([&] {
    auto events = program.frmDataGrid.events();
    for (auto& row : events) {
      if (row.event != runtime::forms::Event::Load) continue;
      row.handler = [reader, load = row.handler](int index) {
        sqlite3_exec(reader, "BEGIN; SELECT count(*) FROM zones", nullptr, nullptr, nullptr);
        load(index);
      };
    }
    return events;
  }());
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  sqlite3_close(reader);
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3260':"));
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "&Save Population by Occupation and Continue");
  EXPECT_THAT(sosec(), ElementsAre("1|40|null", "2|null|7"));
  EXPECT_THAT(table("population ORDER BY Zone"), ElementsAre("1|40|null", "2|null|7"));
}

TEST_F(GridOpening, of_employment_that_fails_leaves_the_population_pass_as_it_was) {
  type_population();
  click_heading(1);
  app.put_file("schema.ini", "[other.csv]\r\n");
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_EQ(program.frmDataGrid.caption(), "Enter the number of persons living in each zone by occupation");
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "&Save Population by Occupation and Continue");
  EXPECT_EQ(shown_picks(), "Sales\n");
  EXPECT_EQ(program.frmDataGrid.SelectedFields[1], "Sales");
  EXPECT_THAT(sosec(), ElementsAre("1|40|null", "2|null|7"));
  EXPECT_THAT(table("population ORDER BY Zone"), ElementsAre("1|40|null", "2|null|7"));
}

TEST_F(GridOpening, of_employment_can_be_tried_again_after_it_failed) {
  type_population();
  const std::string description = app.bytes("schema.ini");
  app.put_file("schema.ini", "[other.csv]\r\n");
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  type_into_cell(1, 1, "50");
  app.put_file("schema.ini", description);
  press_on_grid("cmdClose");
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
  EXPECT_THAT(table("population ORDER BY Zone"), ElementsAre("1|40|null", "2|50|7"));
  EXPECT_THAT(sosec(), ElementsAre("1|null|null", "2|null|null"));
}

TEST_F(GridOpening, of_employment_waits_for_the_population_to_be_durable) {
  type_population();
  press_key(program.frmDataGrid->grdDataGrid, Qt::Key_Up);
  sqlite3* reader = nullptr;
  sqlite3_open(app.file("zelmor.mdb").string().c_str(), &reader);
  sqlite3_exec(reader, "BEGIN; SELECT count(*) FROM zones", nullptr, nullptr, nullptr);
  analyst.will_press("OK");
  press_on_grid("cmdClose");
  sqlite3_close(reader);
  EXPECT_THAT(last_box(), StartsWith("Run-time error '3260':"));
  EXPECT_FALSE(program.frmDataGrid.EmploymentPass);
  EXPECT_TRUE(program.frmDataGrid.visible());
  press_on_grid("cmdClose");
  EXPECT_TRUE(program.frmDataGrid.EmploymentPass);
  EXPECT_THAT(table("population ORDER BY Zone"), ElementsAre("1|40|null", "2|null|7"));
}

}  // namespace
