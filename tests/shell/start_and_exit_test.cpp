#include <QApplication>
#include <QImage>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "event_loop.h"
#include "program_test.h"
#include "shell/module1.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::goes_on;
using testing_aids::in_event_loop;

class StartAndExit : public testing_aids::ProgramTest {
 protected:
  int press_close_box() {
    return in_event_loop([this] { program.mdiform1.window().close(); });
  }
  /// From now on the paths of the time and distance files can't be stored.
  void refuse_paths() {
    app.sql("create trigger refuse before update on timdist begin select raise(abort, 'refused'); end");
  }
  void type_zones(const std::string& digits) {
    auto* box = qobject_cast<QWidget*>(analyst.find("MaskEdBox1"));
    ASSERT_NE(box, nullptr);
    program.form2.Show();
    analyst.type("MaskEdBox1", digits);
  }
  std::vector<std::string> zones() { return app.rows("select numzones from zones"); }
  std::vector<std::string> distance() { return app.rows("select distance from timdist"); }
};

using Start = StartAndExit;

TEST_F(Start, maximises_the_main_window_and_goes_to_the_application_directory) {
  EXPECT_TRUE(program.mdiform1.window().isVisible());
  EXPECT_TRUE(program.mdiform1.window().isMaximized());
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
  EXPECT_EQ(program.mdiform1.window().windowTitle().toStdString(), "QUELAR 4-17 COST OF DELAY STUDY");
}

TEST_F(Start, opens_no_database_loads_no_form_and_makes_no_file) {
  EXPECT_FALSE(program.desktop.workspace.holds(app.file("zelmor.mdb")));
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
  EXPECT_THAT(app.names_in("."), ElementsAre("commuter", "results", "sample", "schema.inp", "schema2.inp",
                                             "schema3.inp", "schema4.inp", "truck", "zelmor.mdb"));
}

TEST_F(Start, has_a_picture_of_571_by_385_pixels_for_its_background) {
  const QImage picture(QStringLiteral(":/quelar/main_window.png"));
  EXPECT_EQ(picture.size(), QSize(571, 385));
  EXPECT_EQ(picture.bitPlaneCount(), 24);
}

TEST_F(Start, without_a_project_database_shows_nothing_until_a_form_needs_it) {
  std::filesystem::remove(app.file("zelmor.mdb"));
  quelar::start(program);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  analyst.will_press("OK");
  analyst.choose("spec_timdist");
  EXPECT_THAT(analyst.texts(), ElementsAre("Run-time error '3024':\n\nThe project database was not found: " +
                                           app.file("zelmor.mdb").string()));
  EXPECT_FALSE(std::filesystem::exists(app.file("zelmor.mdb")));
}

using Exit = StartAndExit;

TEST_F(Exit, ends_the_program_at_once) {
  EXPECT_EQ(in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
}

TEST_F(Exit, unloads_no_form_and_stores_nothing) {
  program.form2.Show();
  type_zones("99");
  EXPECT_EQ(in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
  EXPECT_TRUE(program.form2.loaded());
  EXPECT_THAT(zones(), ElementsAre("24"));
}

TEST_F(Exit, the_end_of_the_process_drops_what_the_forms_hold) {
  {
    forms::Program ending(app.path());
    ending.form3.Show();
    ending.form3->Text1(5).set_text("never stored");
  }
  EXPECT_THAT(app.rows("select count(*) from timdist where distance = 'never stored'"), ElementsAre("0"));
}

TEST_F(Exit, from_a_menu_while_the_analysis_form_is_open_leaves_its_picks_unsaved) {
  open_commuter_page();
  pick("Command10(7)", "sample/trips_Mining.txt");
  const auto before = app.rows("select Salesfiles from Anfiles");
  EXPECT_EQ(in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
  EXPECT_EQ(app.rows("select Salesfiles from Anfiles"), before);
  EXPECT_EQ(program.form3->Text5(7).text(), app.file("sample/trips_Mining.txt").string());
}

TEST_F(Exit, cannot_be_chosen_during_a_run) {
  app.put_stand_in("model.exe");
  app.put_file("stand_in.txt", "sleep 150\n");
  const auto press_exit = [this] {
    QMenuBar& bar = *program.mdiform1.window().menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(bar.actions().back()).center());
  };
  const auto run_and_press = [&] {
    QTimer::singleShot(30, press_exit);
    as_handler([this] { EXPECT_EQ(shell::RunAndWait(program, "model.exe"), 0); });
  };
  EXPECT_EQ(in_event_loop(run_and_press), goes_on);
  EXPECT_EQ(in_event_loop(press_exit), 0);
}

using CloseBox = StartAndExit;

TEST_F(CloseBox, ends_the_program) {
  EXPECT_EQ(press_close_box(), 0);
}

TEST_F(CloseBox, unloads_every_form_and_stores_what_they_hold) {
  program.form1.hide();
  program.form3.Show();
  program.form3->Text1(5).set_text("stored.txt");
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
  EXPECT_THAT(distance(), ElementsAre("stored.txt"));
}

TEST_F(CloseBox, drops_a_number_of_zones_that_was_not_saved) {
  program.form2.Show();
  type_zones("99");
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(zones(), ElementsAre("24"));
}

TEST_F(CloseBox, a_fault_of_the_storing_keeps_the_program_and_the_form) {
  refuse_paths();
  program.form3.Show();
  program.form3->Text1(5).set_text("stored.txt");
  analyst.will_press("OK");
  EXPECT_EQ(press_close_box(), goes_on);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_TRUE(program.form3.loaded());
  EXPECT_EQ(program.form3->Text1(5).text(), "stored.txt");
  app.sql("drop trigger refuse");
  EXPECT_EQ(press_close_box(), 0);
  EXPECT_THAT(distance(), ElementsAre("stored.txt"));
}

TEST_F(CloseBox, that_is_refused_by_one_form_leaves_every_form_where_it_was) {
  refuse_paths();
  program.form3.set_events({});
  program.form1.hide();
  program.form3.Show();
  program.form2.hide();
  program.form3->Text1(5).set_text("stored.txt");
  analyst.will_press("OK");
  EXPECT_EQ(press_close_box(), goes_on);
  EXPECT_THAT(program.desktop.loaded_forms, ElementsAre(&program.form1, &program.form3, &program.form2));
}

}  // namespace
