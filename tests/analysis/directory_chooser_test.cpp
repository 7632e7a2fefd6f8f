#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QMdiSubWindow>
#include <QTest>

#include "directory_list.h"
#include "program_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DirectoryChooser : public testing_aids::ProgramTest {
 protected:
  DirectoryChooser() {
    QApplication::setActiveWindow(&program.mdiform1.window());
    as_handler([this] { program.frmdirget.Load(); });
  }

  QListWidget& directories() { return *static_cast<QListWidget*>(program.frmdirget->dirList.widget()); }
  QComboBox& drives() { return *static_cast<QComboBox*>(program.frmdirget->drvList.widget()); }
  std::string path() { return program.frmdirget->dirList.path(); }
  std::string in_app(const std::string& name) { return app.file(name).string(); }

  void highlight(const QString& name) { testing_aids::highlight(directories(), name); }
  /// Puts a volume on the list and chooses it.
  void choose_drive(const std::string& root) {
    drives().addItem(QString::fromStdString(root));
    drives().setFocus();
    QTest::keyClick(&drives(), Qt::Key_End);
  }
  /// The directory at the moment of the save.
  std::string saved_into(const std::function<void()>& press) {
    std::string directory = "no save";
    auto events = program.frmdirget.events();
    for (auto& row : events) {
      if (row.control != "cmdExit") continue;
      row.handler = [this, &directory](int) { directory = path(); };
    }
    as_handler([&] {
      program.frmdirget.Unload();
      program.frmdirget.set_events(events);
      program.frmdirget.Load();
    });
    press();
    return directory;
  }
};

TEST_F(DirectoryChooser, appears_at_the_upper_left_as_soon_as_it_is_referred_to) {
  as_handler([this] { program.frmdirget.Unload(); });
  as_handler([this] { program.frmdirget->List1.set_list(0, "distance.txt"); });
  EXPECT_TRUE(program.frmdirget.visible());
  QMdiSubWindow* window = nullptr;
  for (QWidget* widget = program.frmdirget.surface(); window == nullptr; widget = widget->parentWidget()) {
    window = qobject_cast<QMdiSubWindow*>(widget);
  }
  EXPECT_EQ(window->pos(), QPoint(0, 0));
}

TEST_F(DirectoryChooser, starts_at_the_current_directory_on_its_drive) {
  EXPECT_EQ(path(), app.path());
  EXPECT_EQ(program.frmdirget->dirList.highlighted(), app.path());
  EXPECT_TRUE(program.frmdirget->drvList.is_drive_of(app.path()));
}

TEST_F(DirectoryChooser, shows_the_directories_of_another_drive) {
  choose_drive(in_app("results"));
  EXPECT_EQ(path(), in_app("results"));
}

TEST_F(DirectoryChooser, leaves_both_lists_as_they_were_when_the_drive_has_no_medium) {
  const std::string drive = program.frmdirget->drvList.drive();
  as_handler([this] { program.frmdirget->dirList.set_path(in_app("results")); });
  choose_drive("/nosuch");
  EXPECT_EQ(path(), in_app("results"));
  EXPECT_EQ(program.frmdirget->drvList.drive(), drive);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(DirectoryChooser, goes_back_to_the_drive_of_the_directory_and_not_to_the_one_before) {
  choose_drive(in_app("results"));
  as_handler([this] { program.frmdirget->dirList.set_path(in_app("sample")); });
  choose_drive("/nosuch");
  EXPECT_EQ(path(), in_app("sample"));
  EXPECT_TRUE(program.frmdirget->drvList.is_drive_of(in_app("sample")));
}

TEST_F(DirectoryChooser, stays_in_its_directory_when_the_drive_that_it_is_on_is_chosen) {
  as_handler([this] { program.frmdirget->dirList.set_path(in_app("results")); });
  choose_drive(app.path());
  EXPECT_EQ(path(), in_app("results"));
}

TEST_F(DirectoryChooser, saves_into_the_directory_that_is_highlighted_but_not_opened) {
  EXPECT_EQ(saved_into([this] {
              highlight("results");
              analyst.click("cmdExit");
            }),
            in_app("results"));
}

TEST_F(DirectoryChooser, saves_into_the_highlighted_directory_by_the_shortcut_too) {
  EXPECT_EQ(saved_into([this] {
              highlight("results");
              // What a shortcut does to its button: a click without the mouse.
              qobject_cast<QAbstractButton*>(analyst.find("cmdExit"))->click();
            }),
            in_app("results"));
}

TEST_F(DirectoryChooser, saves_nowhere_by_the_shortcut_when_the_highlighted_directory_is_gone) {
  EXPECT_EQ(saved_into([this] {
              highlight("results");
              std::filesystem::remove(app.file("results"));
              analyst.will_press("OK");
              qobject_cast<QAbstractButton*>(analyst.find("cmdExit"))->click();
            }),
            "no save");
  EXPECT_EQ(last_box(), "Run-time error '76':\n\nPath not found: " + in_app("results"));
}

TEST_F(DirectoryChooser, saves_into_the_opened_directory) {
  EXPECT_EQ(saved_into([this] {
              highlight("results");
              QTest::keyClick(&directories(), Qt::Key_Return);
              analyst.click("cmdExit");
            }),
            in_app("results"));
}

TEST_F(DirectoryChooser, reports_a_highlighted_directory_that_is_gone) {
  highlight("results");
  std::filesystem::remove(app.file("results"));
  analyst.will_press("OK");
  program.frmdirget->List1.widget()->setFocus();
  EXPECT_EQ(last_box(), "Run-time error '76':\n\nPath not found: " + in_app("results"));
  EXPECT_EQ(path(), app.path());
}

TEST_F(DirectoryChooser, left_by_save_without_a_mode_word_writes_nothing_and_enables_the_menus) {
  const auto before = app.names_in("results");
  as_handler([this] { program.mdiform1.Inputs.set_enabled(false); });
  highlight("results");
  analyst.click("cmdExit");
  EXPECT_FALSE(program.frmdirget.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
  EXPECT_EQ(app.names_in("results"), before);
}

TEST_F(DirectoryChooser, stays_open_with_the_menus_off_when_the_save_fails) {
  as_handler([this] {
    program.mdiform1.Inputs.set_enabled(false);
    program.form2->Text1(2).set_text("timdist");
    program.desktop.workspace.OpenDatabase("zelmor.mdb").Execute("CREATE TABLE sosec (Origin integer)");
  });
  std::filesystem::create_directory(app.file("results/distance.txt"));
  highlight("results");
  analyst.will_press("OK");
  analyst.click("cmdExit");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_TRUE(analyst.sees("cmdExit"));
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
}

TEST_F(DirectoryChooser, left_by_quit_writes_nothing_and_enables_the_menus) {
  as_handler([this] {
    program.mdiform1.Inputs.set_enabled(false);
    program.form2->Text1(2).set_text("timdist");
  });
  highlight("results");
  analyst.click("Command1");
  EXPECT_FALSE(program.frmdirget.loaded());
  EXPECT_TRUE(program.form2.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
  EXPECT_THAT(app.names_in("results"), IsEmpty());
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(DirectoryChooser, forgets_the_planned_files_when_it_is_unloaded_and_not_before) {
  as_handler([this] { program.frmdirget->List1.set_list(0, "distance.txt"); });
  as_handler([this] { program.frmdirget.Load(); });
  EXPECT_EQ(program.frmdirget->List1.list(0), "distance.txt");
  as_handler([this] { program.frmdirget.Unload(); });
  EXPECT_EQ(program.frmdirget->List1.count(), 0);
}

TEST_F(DirectoryChooser, shows_a_directory_that_was_made_while_it_stood_behind_another_form) {
  analyst.choose("Zones");
  std::filesystem::create_directory(app.file("made_meanwhile"));
  as_handler([this] { program.frmdirget.Load(); });
  highlight("made_meanwhile");
  EXPECT_EQ(program.frmdirget->dirList.highlighted(), in_app("made_meanwhile"));
}

TEST_F(DirectoryChooser, is_light_grey_with_its_save_button) {
  const QColor light_grey(0xC0, 0xC0, 0xC0);
  EXPECT_EQ(program.frmdirget.surface()->palette().color(QPalette::Window), light_grey);
  EXPECT_EQ(program.frmdirget.surface()->grab().toImage().pixelColor(500, 200), light_grey);
  EXPECT_EQ(program.frmdirget->cmdExit.widget()->palette().color(QPalette::Button), light_grey);
}

}  // namespace
