#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QListView>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <set>

#include "small_form.h"
#include "typed_file_name.h"

namespace {

namespace rf = runtime::forms;
namespace fs = std::filesystem;
using rf::CommonDialog;
using rf::Kind;
using rf::no_index;
using ::testing::ElementsAre;
using testing_aids::fault_of;
using testing_aids::row;
using testing_aids::SmallForm;

constexpr const char* usual_filter = "(*.txt)|*.txt|All files (*.*)|*.*";

class FileDialog : public testing_aids::SmallFormTest {
 protected:
  FileDialog() {
    dialog().filter = usual_filter;
    dialog().dialog_title = "Select a file";
    analyst.when_box_shows = [this](const analyst::Box&) { look(); };
  }

  CommonDialog& dialog() { return form->cdbox1; }
  analyst::Box seen() { return analyst.last_box(); }
  std::string path(const std::string& name) { return app.file(name).string(); }

  void choose(const std::string& typed) {
    analyst.will_choose_file(typed);
    dialog().ShowSave();
  }
  void cancel() {
    analyst.will_cancel_file();
    dialog().ShowOpen();
  }

  /// The names in the list, which a thread of the dialog's own reads.
  static std::set<std::string> listed(QDialog& box) {
    auto* list = box.findChild<QListView*>(QStringLiteral("listView"));
    std::set<std::string> names;
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
      names.insert(list->model()->index(row, 0, list->rootIndex()).data().toString().toStdString());
    }
    return names;
  }
  static void expect_listed(QDialog& box, const std::set<std::string>& names) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed(box) == names; }));
    EXPECT_EQ(listed(box), names);
  }

  SmallForm form{desktop, {row("cdbox1", no_index, Kind::CommonDialog)}};
  std::vector<std::string> filters;
  QStringList patterns;

 private:
  void look() {
    auto* open = window.findChild<QFileDialog*>(QStringLiteral("cdbox1"));
    const auto* combo = open->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    for (int i = 0; i < combo->count(); ++i) filters.push_back(combo->itemText(i).toStdString());
    patterns = open->nameFilters();
  }
};

TEST_F(FileDialog, bears_its_title) {
  choose(path("results/a.txt"));
  EXPECT_EQ(seen().name, "cdbox1");
  EXPECT_EQ(seen().title, "Select a file");
}

TEST_F(FileDialog, offers_its_filters_by_their_descriptions) {
  cancel();
  EXPECT_THAT(filters, ElementsAre("(*.txt)", "All files (*.*)"));
}

TEST_F(FileDialog, finds_names_without_a_dot_by_the_pattern_for_all_files) {
  cancel();
  EXPECT_EQ(patterns, QStringList({"(*.txt) (*.txt)", "All files (*.*) (*)"}));
}

TEST_F(FileDialog, shows_a_stray_parenthesis_of_a_filter) {
  dialog().filter = "(All files (*.*)|*.*";
  cancel();
  EXPECT_THAT(filters, ElementsAre("(All files (*.*)"));
}

TEST_F(FileDialog, shows_a_path_in_front_of_a_filter) {
  dialog().filter = "/study/tons.txt" + std::string(usual_filter);
  cancel();
  EXPECT_THAT(filters, ElementsAre("/study/tons.txt(*.txt)", "All files (*.*)"));
}

TEST_F(FileDialog, opens_in_its_directory_and_proposes_its_file_name) {
  dialog().init_dir = path("results");
  dialog().file_name = "a.txt";
  cancel();
  EXPECT_EQ(seen().directory, path("results"));
  EXPECT_EQ(seen().text, "a.txt");
}

TEST_F(FileDialog, finds_a_relative_directory_from_the_current_one) {
  dialog().init_dir = "SAMPLE";
  cancel();
  EXPECT_EQ(seen().directory, path("sample"));
}

TEST_F(FileDialog, opens_where_its_file_name_lies_when_it_has_no_directory) {
  dialog().file_name = path("results/new.txt");
  cancel();
  EXPECT_EQ(seen().directory, path("results"));
  EXPECT_EQ(seen().text, "new.txt");
}

TEST_F(FileDialog, opens_in_the_current_directory_without_a_directory_or_with_one_that_is_gone) {
  cancel();
  EXPECT_EQ(seen().directory, app.path());
  EXPECT_EQ(seen().text, "");
  dialog().init_dir = path("gone");
  cancel();
  EXPECT_EQ(seen().directory, app.path());
}

TEST_F(FileDialog, gives_an_absolute_path) {
  dialog().init_dir = "results";
  choose("typed.txt");
  EXPECT_EQ(dialog().file_name, path("results/typed.txt"));
}

TEST_F(FileDialog, takes_a_typed_name_that_does_not_exist) {
  choose(path("results/nosuch.txt"));
  EXPECT_EQ(dialog().file_name, path("results/nosuch.txt"));
  analyst.will_choose_file(path("results/nosuch2.txt"));
  dialog().ShowOpen();
  EXPECT_EQ(dialog().file_name, path("results/nosuch2.txt"));
}

TEST_F(FileDialog, gives_a_typed_path_without_dots_that_lead_about) {
  dialog().init_dir = path("sample");
  choose("../results/a.txt");
  EXPECT_EQ(dialog().file_name, path("results/a.txt"));
  choose("./a.txt");
  EXPECT_EQ(dialog().file_name, path("sample/a.txt"));
  choose(path("results/../sample/./b.txt"));
  EXPECT_EQ(dialog().file_name, path("sample/b.txt"));
}

TEST_F(FileDialog, enter_takes_the_typed_name_and_escape_cancels) {
  dialog().init_dir = path("results");
  dialog().cancel_error = true;
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
    analyst.will_do([key](QDialog& box) {
      QApplication::setActiveWindow(&box);
      auto& name = testing_aids::file_name_box(box);
      name.setFocus();
      QTest::keyClicks(&name, QStringLiteral("b.txt"));
      QTest::keyClick(&name, key);
    });
    EXPECT_EQ(fault_of([this] { dialog().ShowSave(); }), key == Qt::Key_Return ? 0 : 32755);
    EXPECT_EQ(dialog().file_name, path("results/b.txt"));
  }
}

TEST_F(FileDialog, a_typed_wildcard_narrows_the_list_and_the_dialog_stays) {
  dialog().init_dir = path("results");
  for (const char* name : {"a.txt", "b.txt", "a.dat", "\u00e4 b.dat", "c"}) {
    app.put_file(std::string("results/") + name, "x");
  }
  std::filesystem::create_directory(app.file("results/below"));
  dialog().filter = "All files (*.*)|*.*";
  analyst.will_do([](QDialog& box) {
    expect_listed(box, {"a.dat", "a.txt", "b.txt", "below", "c", "\u00e4 b.dat"});
    testing_aids::type_file_name(box, "*.txt");
    expect_listed(box, {"a.txt", "b.txt", "below"});
    testing_aids::type_file_name(box, "a.???");
    expect_listed(box, {"a.dat", "a.txt", "below"});
    testing_aids::type_file_name(box, "\u00e4 *.DAT");
    expect_listed(box, {"below", "\u00e4 b.dat"});
    testing_aids::type_file_name(box, "b.txt");
  });
  dialog().ShowSave();
  EXPECT_EQ(dialog().file_name, path("results/b.txt"));
  EXPECT_EQ(analyst.boxes().size(), 1U);
}

TEST_F(FileDialog, a_typed_wildcard_behind_a_directory_lists_what_is_there) {
  app.put_file("results/a.txt", "x");
  app.put_file("results/a.dat", "x");
  analyst.will_do([](QDialog& box) {
    testing_aids::type_file_name(box, "sample/../results/*.txt");
    expect_listed(box, {"a.txt"});
    EXPECT_EQ(testing_aids::file_name_box(box).text(), "*.txt");
    testing_aids::type_file_name(box, "a.txt");
  });
  dialog().ShowSave();
  EXPECT_EQ(dialog().file_name, path("results/a.txt"));
}

TEST_F(FileDialog, a_typed_wildcard_behind_a_directory_that_is_not_there_is_told) {
  dialog().init_dir = path("results");
  analyst.will_do([this](QDialog& box) {
    analyst.will_press("OK");
    testing_aids::type_file_name(box, "nosuch/*.txt");
    EXPECT_EQ(last_box(), "There is no directory " + path("results/nosuch") + ".");
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  dialog().ShowSave();
  EXPECT_EQ(dialog().file_name, "");
}

TEST_F(FileDialog, asks_nothing_before_an_existing_file_is_named_for_saving) {
  app.put_file("results/there.txt", "x");
  choose(path("results/there.txt"));
  EXPECT_EQ(analyst.boxes().size(), 1U);
  EXPECT_EQ(dialog().file_name, path("results/there.txt"));
}

TEST_F(FileDialog, reports_in_its_flags_whether_the_extension_is_the_expected_one) {
  dialog().flags = CommonDialog::no_change_directory;
  choose(path("results/a.txt"));
  EXPECT_EQ(dialog().flags, 8);
  choose(path("results/a.TXT"));
  EXPECT_EQ(dialog().flags, 8);
  choose(path("results/a.dat"));
  EXPECT_EQ(dialog().flags, 1024);
  choose(path("results/a"));
  EXPECT_EQ(dialog().flags, 1024);
}

TEST_F(FileDialog, a_cancel_with_the_cancel_error_is_fault_32755) {
  dialog().cancel_error = true;
  dialog().file_name = "before.txt";
  dialog().flags = 8;
  EXPECT_EQ(fault_of([this] { cancel(); }), 32755);
  EXPECT_EQ(dialog().file_name, "before.txt");
  EXPECT_EQ(dialog().flags, 8);
}

TEST_F(FileDialog, a_cancel_without_the_cancel_error_leaves_the_file_name_as_it_was) {
  dialog().file_name = "before.txt";
  EXPECT_EQ(fault_of([this] { cancel(); }), 0);
  EXPECT_EQ(dialog().file_name, "before.txt");
}

TEST_F(FileDialog, keeps_the_current_directory) {
  choose(path("results/a.txt"));
  EXPECT_EQ(desktop.files.current_directory(), app.path());
}

TEST_F(FileDialog, its_properties_last_while_the_form_is_loaded_and_no_longer) {
  dialog().init_dir = path("results");
  choose("a.txt");
  cancel();
  EXPECT_EQ(seen().directory, path("results"));
  form.Unload();
  EXPECT_EQ(dialog().init_dir, "");
  EXPECT_EQ(dialog().file_name, "");
  EXPECT_FALSE(dialog().cancel_error);
}

TEST_F(FileDialog, writes_nothing_outside_the_application_directory) {
  const fs::path home = app.file("results/home");
  fs::create_directory(home);
  const std::string before = qEnvironmentVariable("HOME").toStdString();
  qputenv("HOME", QByteArray::fromStdString(home.string()));
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((home / ".config").string()));
  choose(path("results/a.txt"));
  qunsetenv("XDG_CONFIG_HOME");
  qputenv("HOME", QByteArray::fromStdString(before));
  EXPECT_TRUE(fs::is_empty(home));
}

}  // namespace
