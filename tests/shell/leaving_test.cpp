// The end of the program when what it has written can't be made durable.
#include <QLineEdit>

#include "event_loop.h"
#include "other_program.h"
#include "program_test.h"
#include "small_disk.h"

namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;
using testing_aids::goes_on;
using testing_aids::in_event_loop;

/// Another program that reads the project database, and so keeps it from being changed.
class Reader : public testing_aids::OtherProgram {
 public:
  explicit Reader(const std::filesystem::path& file) : OtherProgram(file, reads) {}
};

class Leaving : public testing_aids::ProgramTest {
 protected:
  Leaving() { program.desktop.workspace.lock_wait = std::chrono::milliseconds(10); }

  int press_close_box() {
    return in_event_loop([this] { program.mdiform1.window().close(); });
  }

  std::vector<std::string> distance() { return app.rows("SELECT distance FROM timdist"); }
  void type_a_distance(const std::string& text) {
    auto& grid = program.frmDataGrid->grdDataGrid;
    as_handler([&] {
      grid.set_current_column(2);
      grid.set_edit_active(true);
    });
    analyst.type("CellEditor", text);
  }
  void hold(const std::string& path) {
    program.form3.Show();
    program.form3->Text1(5).set_text(path);
  }
};

TEST_F(Leaving, by_the_close_box_while_another_program_reads_tells_so_and_stays) {
  hold("stored.txt");
  {
    const Reader reader(app.file("zelmor.mdb"));
    analyst.will_press("OK");
    EXPECT_EQ(press_close_box(), goes_on);
    EXPECT_THAT(analyst.texts(), ElementsAre(StartsWith("Run-time error '3260':")));
    EXPECT_TRUE(program.form3.loaded());
    EXPECT_EQ(program.form3->Text1(5).text(), "stored.txt");
  }
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(distance(), ElementsAre("stored.txt"));
}

#ifndef _WIN32
TEST_F(Leaving, by_the_close_box_on_a_full_disk_stays_with_what_the_form_holds) {
  const std::string long_path(20000, 'x');
  hold(long_path);
  {
    const testing_aids::SmallDisk disk(std::filesystem::file_size(app.file("zelmor.mdb")) + 1000);
    analyst.will_press("OK");
    EXPECT_EQ(press_close_box(), goes_on);
    EXPECT_THAT(analyst.texts(), ElementsAre(StartsWith("Run-time error '")));
    EXPECT_TRUE(program.form3.loaded());
    EXPECT_EQ(program.form3->Text1(5).text(), long_path);
  }
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(distance(), ElementsAre(long_path));
}

TEST_F(Leaving, by_the_close_box_while_another_program_reads_keeps_the_grid_with_its_edit_and_its_entry) {
  app.sql("UPDATE zones SET numzones = 2");
  analyst.choose("Times");
  type_a_distance("7.25");
  {
    const Reader reader(app.file("zelmor.mdb"));
    analyst.will_press("OK");
    EXPECT_EQ(press_close_box(), goes_on);
    EXPECT_THAT(analyst.texts(), ElementsAre(StartsWith("Run-time error '3260':")));
    EXPECT_TRUE(program.frmDataGrid.loaded());
    EXPECT_EQ(std::get<double>(program.frmDataGrid->grdDataGrid.column_value(2)), 7.25);
  }
  // What the launcher has left for the save is still there.
  EXPECT_EQ(program.form2->Text1(2).text(), "timdist");
  EXPECT_EQ(program.frmdirget->List1.list(0), "distance.txt");
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(app.rows("SELECT distance FROM sosec"), ElementsAre("7.25", "null", "null", "null"));
}

TEST_F(Leaving, by_the_close_box_with_a_word_in_the_open_cell_keeps_the_entry_that_the_grid_serves) {
  app.sql("UPDATE zones SET numzones = 2");
  analyst.choose("Times");
  type_a_distance("much");
  analyst.will_press("OK");
  EXPECT_EQ(press_close_box(), goes_on);
  EXPECT_THAT(analyst.texts(), ElementsAre(StartsWith("Run-time error '3421':")));
  EXPECT_EQ(program.form2->Text1(2).text(), "timdist");
  EXPECT_TRUE(program.frmDataGrid->grdDataGrid.edit_active());
}

TEST_F(Leaving, by_the_close_box_waits_for_what_an_earlier_handler_could_not_make_durable) {
  {
    const Reader reader(app.file("zelmor.mdb"));
    analyst.will_press("OK");
    as_handler([this] {
      program.desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update timdist set distance = 'kept'");
    });
    analyst.will_press("OK");
    EXPECT_EQ(press_close_box(), goes_on);
  }
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(distance(), ElementsAre("kept"));
}

TEST_F(Leaving, a_row_that_could_not_be_made_durable_is_edited_again) {
  app.sql("UPDATE zones SET numzones = 2");
  analyst.choose("Times");
  auto& grid = program.frmDataGrid->grdDataGrid;
  type_a_distance("7.25");
  {
    const testing_aids::SmallDisk disk(0);
    analyst.will_press("OK");
    as_handler([&] { grid.set_current_row(2); });
    EXPECT_THAT(analyst.texts(), ElementsAre(StartsWith("Run-time error '")));
  }
  EXPECT_EQ(grid.current_row(), 0);
  EXPECT_EQ(std::get<double>(grid.column_value(2)), 7.25);
  as_handler([&] { grid.set_current_row(2); });
  EXPECT_THAT(app.rows("SELECT distance FROM sosec"), ElementsAre("7.25", "null", "null", "null"));
}
#endif

TEST_F(Leaving, by_exit_tries_once_more_what_could_not_be_made_durable_and_tells_of_it) {
  const Reader reader(app.file("zelmor.mdb"));
  analyst.will_press("OK");
  as_handler([this] {
    program.desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update timdist set distance = 'kept'");
  });
  analyst.will_press("OK");
  EXPECT_EQ(in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
  EXPECT_THAT(analyst.texts(),
              ElementsAre(StartsWith("Run-time error '3260':"), StartsWith("Run-time error '3260':")));
}

TEST_F(Leaving, by_exit_stores_what_waits_when_the_other_program_is_done) {
  {
    const Reader reader(app.file("zelmor.mdb"));
    analyst.will_press("OK");
    as_handler([this] {
      program.desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update timdist set distance = 'kept'");
    });
  }
  EXPECT_EQ(in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
  EXPECT_THAT(distance(), ElementsAre("kept"));
}

TEST_F(Leaving, with_the_report_of_the_conversion_shows_the_report_of_the_storing_too) {
  const Reader reader(app.file("zelmor.mdb"));
  analyst.will_press("OK");
  analyst.will_press("OK");
  const auto end = [this] {
    as_handler([this] {
      program.desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update timdist set distance = 'kept'");
      program.desktop.end_with_report(runtime::Fault(53, "commodity.txt"));
    });
  };
  EXPECT_EQ(in_event_loop(end), 1);
  EXPECT_THAT(analyst.texts(),
              ElementsAre(StartsWith("Run-time error '53':"), StartsWith("Run-time error '3260':")));
}

}  // namespace
