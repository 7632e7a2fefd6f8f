// While a model runs or a box waits for its answer nothing else begins, by whatever way a person, or a tool
// on his behalf, tries: a button or a menu item that is pressed by a call is no input event.
#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using testing_aids::row;
using testing_aids::SmallForm;

constexpr std::array menu_of_two{
    rf::MenuDesign{1, "Top", "Top", true}, rf::MenuDesign{2, "Below", "Below", true},
    rf::MenuDesign{2, "Sub", "Sub", true}, rf::MenuDesign{3, "Deep", "Deep", true}};

class Resting : public testing_aids::SmallFormTest {
 protected:
  Resting() {
    app.put_stand_in("model.exe");
    app.put_file("stand_in.txt", "sleep 150\n");
    desktop.main_window = &window;
    desktop.mdi_area = area;
    form.set_events({form.hear("Command1", Event::Click), form.hear("Text1", Event::Change)});
    form.Show();
    menued.on_item("Below", [this] { ++chosen; });
    menued.on_item("Deep", [this] { ++chosen; });
    menued.on_item("Sub", [this] { ++chosen; });
    menued.show();
  }

  void press_all() {
    qobject_cast<QAbstractButton*>(form->Command1(0).widget())->click();
    item("Below").trigger();
    item("Deep").trigger();
    emit menued.findChild<QMenu*>(QStringLiteral("Sub"))->aboutToShow();
  }
  QAction& item(const char* name) { return *menued.findChild<QAction*>(QString::fromLatin1(name)); }

  SmallForm form{
      desktop,
      {row("Command1", 0, Kind::CommandButton, "Go"), row("Text1", 0, Kind::TextBox),
       row("Check1", rf::no_index, Kind::CheckBox, "Tick"),
       row("MaskEdBox1", rf::no_index, Kind::MaskEdBox, "####"), row("Option1", 0, Kind::OptionButton, "One"),
       row("Option1", 1, Kind::OptionButton, "Two")}};
  QMdiArea* area = desktop.mdi_area;
  rf::MainWindow menued{desktop, "Menu", {}, menu_of_two};
  int chosen = 0;
};

TEST_F(Resting, a_press_by_a_call_is_heard_when_nothing_is_under_way) {
  press_all();
  EXPECT_EQ(form.heard.times, 1);
  EXPECT_EQ(chosen, 3);
}

TEST_F(Resting, no_handler_begins_while_a_program_runs) {
  bool pressed = false;
  QTimer::singleShot(30, [&] {
    press_all();
    pressed = true;
  });
  as_handler([this] { desktop.run_program("model.exe"); });
  EXPECT_TRUE(pressed);
  EXPECT_EQ(form.heard.times, 0);
  EXPECT_EQ(chosen, 0);
}

TEST_F(Resting, no_handler_begins_while_a_box_waits_for_its_answer) {
  analyst.when_box_shows = [this](const analyst::Box&) { press_all(); };
  analyst.will_press("OK");
  as_handler([this] { desktop.MsgBox("Words"); });
  EXPECT_EQ(form.heard.times, 0);
  EXPECT_EQ(chosen, 0);
  press_all();
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(Resting, what_is_put_into_a_control_while_a_box_waits_is_put_back) {
  as_handler([this] { form->Option1(0).set_value(true); });
  const auto change_all = [this] {
    for (const char* name : {"Check1", "Option1(1)"})
      qobject_cast<QAbstractButton*>(analyst.find(name))->click();
    for (const char* name : {"Text1(0)", "MaskEdBox1"})
      qobject_cast<QLineEdit*>(analyst.find(name))->setText(QStringLiteral("7"));
  };
  analyst.when_box_shows = [&](const analyst::Box&) { change_all(); };
  analyst.will_press("OK");
  as_handler([this] { desktop.MsgBox("Words"); });
  EXPECT_EQ(form->Check1.value(), 0);
  EXPECT_TRUE(form->Option1(0).value());
  EXPECT_EQ(form->Text1(0).text(), "");
  EXPECT_EQ(form->MaskEdBox1.text(), "____");
  EXPECT_FALSE(form->Text1(0).changed || form->MaskEdBox1.changed);
  change_all();
  EXPECT_EQ(form->Check1.value(), 1);
  EXPECT_TRUE(form->Option1(1).value());
  EXPECT_EQ(form->Text1(0).text(), "7");
  EXPECT_EQ(form->MaskEdBox1.text(), "7___");
}

TEST_F(Resting, an_item_below_a_disabled_menu_can_not_be_chosen) {
  menued.set_item_enabled("Top", false);
  press_all();
  EXPECT_EQ(chosen, 0);
  menued.set_item_enabled("Top", true);
  menued.set_item_enabled("Sub", false);
  press_all();
  EXPECT_EQ(chosen, 1);
}

TEST_F(Resting, a_form_lays_itself_out_for_the_size_that_it_got_while_a_program_ran) {
  int resized = 0;
  form.Unload();
  form.set_events({{"", Event::Resize, [&](int) { ++resized; }}});
  form.Show();
  QCoreApplication::processEvents();
  resized = 0;
  QTimer::singleShot(30, [this] { window.resize(500, 400); });
  as_handler([&] {
    desktop.run_program("model.exe");
    EXPECT_EQ(resized, 1);
  });
}

TEST_F(Resting, a_remark_stands_until_a_person_begins_something_else) {
  as_handler([this] { desktop.remark("The verdict is an old one."); });
  EXPECT_EQ(analyst.text_of("StatusLine"), "The verdict is an old one.");
  as_handler([this] { desktop.remark("And it is empty."); });
  EXPECT_EQ(analyst.text_of("StatusLine"), "The verdict is an old one. And it is empty.");
  window.resize(700, 500);
  QCoreApplication::processEvents();
  EXPECT_EQ(analyst.text_of("StatusLine"), "The verdict is an old one. And it is empty.");
  press_all();
  EXPECT_EQ(analyst.text_of("StatusLine"), "");
}

}  // namespace
