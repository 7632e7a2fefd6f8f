#include "runtime/forms/lists.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include "runtime/forms/form_size.h"
#include "runtime/forms/form_window.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using rf::no_index;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::fault_of;
using testing_aids::row;

struct ListControls : rf::ControlSet {
  rf::One<rf::DriveListBox> Drive1{*this, "Drive1"};
  rf::One<rf::DirListBox> Dir1{*this, "Dir1"};
  rf::One<rf::ListBox> List1{*this, "List1"};
  rf::One<rf::CommandButton> Command1{*this, "Command1"};
};

class ListForm : private testing_aids::SmallDesign, public rf::Form<ListControls> {
 public:
  explicit ListForm(rf::Desktop& desktop)
      : SmallDesign("Lists",
                    {row("Drive1", no_index, Kind::DriveListBox, "", {0, 0, 1800, 315}),
                     row("Dir1", no_index, Kind::DirListBox, "", {0, 400, 2400, 2000}),
                     row("List1", no_index, Kind::ListBox, "", {2500, 400, 1800, 2000}),
                     row("Command1", no_index, Kind::CommandButton, "&Go", {0, 2500, 1500, 375})},
                    false),
        Form(desktop, SmallDesign::design) {}
};

class Lists : public testing_aids::SmallFormTest {
 protected:
  Lists() {
    std::filesystem::create_directories(app.file("tree/alpha/below"));
    std::filesystem::create_directories(app.file("tree/Beta"));
    app.put_file("tree/file.txt", "");
    desktop.files.ChDir(app.file("tree").string());
    for (const auto& [control, event] :
         {std::pair{"Drive1", Event::Change}, {"Dir1", Event::Change}, {"Dir1", Event::LostFocus}}) {
      events.push_back({control, event, [this, control = std::string(control), event](int) {
                          heard.push_back(control + (event == Event::Change ? " changed" : " lost focus"));
                        }});
    }
    events.push_back({"Command1", Event::Click, [this](int) { heard.push_back("clicked"); }});
    form.set_events(events);
    form.Show();
    QApplication::setActiveWindow(&window);
  }

  QListWidget& directories() { return *static_cast<QListWidget*>(form->Dir1.widget()); }
  QComboBox& drives() { return *static_cast<QComboBox*>(form->Drive1.widget()); }

  /// The entries from the list's own directory on, a star before the highlighted one.
  std::vector<std::string> from_own_directory() {
    std::vector<std::string> entries;
    const std::filesystem::path path = form->Dir1.path();
    const auto own = static_cast<int>(std::distance(path.begin(), path.end())) - 1;
    for (int i = own; i < directories().count(); ++i) {
      const std::string mark = i == directories().currentRow() ? "*" : "";
      entries.push_back(mark + directories().item(i)->text().trimmed().toStdString());
    }
    return entries;
  }
  QPoint place_of(const QString& name) {
    for (int i = 0; i < directories().count(); ++i) {
      QListWidgetItem* item = directories().item(i);
      if (item->text().trimmed() != name) continue;
      directories().scrollToItem(item);
      return directories().visualItemRect(item).center();
    }
    ADD_FAILURE() << "no entry " << name.toStdString();
    return {};
  }
  void click(const QString& name) {
    QTest::mouseClick(directories().viewport(), Qt::LeftButton, {}, place_of(name));
  }
  void double_click(const QString& name) {
    const QPoint place = place_of(name);
    QTest::mouseClick(directories().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(directories().viewport(), Qt::LeftButton, {}, place);
  }
  std::string in_app(const std::string& name) { return app.file(name).string(); }

  std::vector<std::string> heard;
  std::vector<rf::EventRow> events;
  ListForm form{desktop};
};

using ListBoxes = Lists;

TEST_F(ListBoxes, hold_entries_by_their_position) {
  EXPECT_EQ(form->List1.list(0), "");
  form->List1.set_list(0, "a.txt");
  form->List1.set_list(1, "b.txt");
  form->List1.set_list(0, "c.txt");
  EXPECT_EQ(form->List1.count(), 2);
  EXPECT_EQ(form->List1.list(0), "c.txt");
  EXPECT_EQ(form->List1.list(1), "b.txt");
  EXPECT_EQ(form->List1.list(2), "");
  EXPECT_EQ(form->List1.list(-1), "");
}

TEST_F(ListBoxes, leave_no_gap) {
  EXPECT_EQ(fault_of([this] { form->List1.set_list(1, "b.txt"); }), 9);
  EXPECT_EQ(fault_of([this] { form->List1.set_list(-1, "b.txt"); }), 9);
  EXPECT_EQ(form->List1.count(), 0);
}

using DriveLists = Lists;

TEST_F(DriveLists, start_at_the_volume_of_the_current_directory) {
  EXPECT_TRUE(form->Drive1.is_drive_of(app.path()));
  EXPECT_NE(form->Drive1.drive(), "");
}

TEST_F(DriveLists, tell_of_another_volume_that_a_person_chooses) {
  drives().addItem(QString::fromStdString(in_app("tree")));
  drives().setFocus();
  QTest::keyClick(&drives(), Qt::Key_End);
  EXPECT_EQ(form->Drive1.drive(), in_app("tree"));
  EXPECT_THAT(heard, ElementsAre("Drive1 changed"));
  QTest::keyClick(&drives(), Qt::Key_End);
  EXPECT_THAT(heard, ElementsAre("Drive1 changed"));
}

TEST_F(DriveLists, find_the_innermost_volume_of_a_path) {
  drives().addItem(QString::fromStdString(in_app("tree/alpha")));
  form->Drive1.set_drive(in_app("tree/alpha/below"));
  EXPECT_EQ(form->Drive1.drive(), in_app("tree/alpha"));
  EXPECT_THAT(heard, ElementsAre("Drive1 changed"));
  EXPECT_TRUE(form->Drive1.is_drive_of(in_app("tree/alpha")));
  EXPECT_FALSE(form->Drive1.is_drive_of(in_app("tree/alphabet")));
  EXPECT_FALSE(form->Drive1.is_drive_of(in_app("tree")));
  form->Drive1.set_drive(in_app("tree/alpha"));
  EXPECT_THAT(heard, ElementsAre("Drive1 changed"));
}

TEST_F(DriveLists, refuse_a_path_on_no_volume) {
  drives().clear();
  EXPECT_EQ(fault_of([this] { form->Drive1.set_drive(app.path()); }), 76);
}

using DirectoryLists = Lists;

TEST_F(DirectoryLists, start_at_the_current_directory_and_hold_what_is_below_without_files) {
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
  EXPECT_THAT(from_own_directory(), ElementsAre("*tree", "alpha", "Beta"));
  EXPECT_EQ(directories().item(0)->text().toStdString(),
            std::filesystem::path(app.path()).root_path().string());
}

TEST_F(DirectoryLists, are_highlighted_by_a_click_and_opened_by_two) {
  click("alpha");
  EXPECT_EQ(form->Dir1.highlighted(), in_app("tree/alpha"));
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
  EXPECT_THAT(heard, IsEmpty());
  double_click("alpha");
  EXPECT_EQ(form->Dir1.path(), in_app("tree/alpha"));
  EXPECT_THAT(from_own_directory(), ElementsAre("*alpha", "below"));
  EXPECT_THAT(heard, ElementsAre("Dir1 changed"));
}

TEST_F(DirectoryLists, go_up_by_two_clicks_on_an_ancestor) {
  form->Dir1.set_path(in_app("tree/alpha/below"));
  heard.clear();
  double_click("tree");
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
  EXPECT_THAT(heard, ElementsAre("Dir1 changed"));
}

TEST_F(DirectoryLists, are_walked_with_the_keys_and_opened_by_enter) {
  directories().setFocus();
  QTest::keyClick(&directories(), Qt::Key_Down);
  EXPECT_EQ(form->Dir1.highlighted(), in_app("tree/alpha"));
  QTest::keyClick(&directories(), Qt::Key_Return);
  EXPECT_EQ(form->Dir1.path(), in_app("tree/alpha"));
}

TEST_F(DirectoryLists, tell_of_another_path_that_code_sets_and_not_of_the_same) {
  form->Dir1.set_path(in_app("tree/alpha"));
  form->Dir1.set_path(in_app("tree/alpha/"));
  EXPECT_THAT(heard, ElementsAre("Dir1 changed"));
}

TEST_F(DirectoryLists, refuse_what_is_no_directory_and_stay) {
  EXPECT_EQ(fault_of([this] { form->Dir1.set_path(in_app("nosuch")); }), 76);
  EXPECT_EQ(fault_of([this] { form->Dir1.set_path(in_app("tree/file.txt")); }), 76);
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(DirectoryLists, report_a_directory_that_is_gone_when_it_is_opened) {
  std::filesystem::remove(app.file("tree/Beta"));
  analyst.will_press("OK");
  double_click("Beta");
  EXPECT_EQ(last_box(), "Run-time error '76':\n\nPath not found: " + in_app("tree/Beta"));
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
}

TEST_F(DirectoryLists, are_read_anew_by_f5_and_keep_the_highlight) {
  click("Beta");
  std::filesystem::create_directory(app.file("tree/aaa"));
  directories().setFocus();
  QTest::keyClick(&directories(), Qt::Key_F5);
  EXPECT_THAT(from_own_directory(), ElementsAre("tree", "aaa", "alpha", "*Beta"));
  EXPECT_EQ(form->Dir1.path(), in_app("tree"));
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(DirectoryLists, are_read_anew_when_their_form_is_brought_to_the_front) {
  click("alpha");
  testing_aids::SmallForm other(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "Other");
  other.Show();
  std::filesystem::create_directory(app.file("tree/new"));
  form.Load();
  EXPECT_THAT(from_own_directory(), ElementsAre("tree", "*alpha", "Beta", "new"));
  EXPECT_THAT(heard, ::testing::Not(::testing::Contains("Dir1 changed")));
}

TEST_F(DirectoryLists, are_read_anew_when_they_come_to_be_seen) {
  click("alpha");
  rf::window_of(form).showMinimized();
  std::filesystem::create_directory(app.file("tree/new"));
  std::filesystem::remove(app.file("tree/Beta"));
  rf::window_of(form).showNormal();
  EXPECT_THAT(from_own_directory(), ElementsAre("tree", "*alpha", "new"));
  heard.clear();
  form.hide();
  std::filesystem::remove_all(app.file("tree/alpha"));
  form.Show();
  EXPECT_THAT(from_own_directory(), ElementsAre("*tree", "new"));
  EXPECT_EQ(form->Dir1.highlighted(), in_app("tree"));
}

TEST_F(DirectoryLists, tell_that_the_focus_went_before_the_button_hears_its_click) {
  directories().setFocus();
  analyst.click("Command1");
  EXPECT_THAT(heard, ElementsAre("Dir1 lost focus", "clicked"));
}

TEST_F(DirectoryLists, tell_that_the_focus_went_when_the_button_is_pressed_by_its_shortcut) {
  directories().setFocus();
  // What a shortcut does to its button: a click without the mouse, which alone would bring the focus.
  qobject_cast<QAbstractButton*>(form->Command1.widget())->click();
  EXPECT_THAT(heard, ElementsAre("Dir1 lost focus", "clicked"));
}

TEST_F(DirectoryLists, keep_the_focus_while_a_box_is_up) {
  directories().setFocus();
  analyst.will_press("OK");
  as_handler([this] { desktop.MsgBox("Words"); });
  EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
