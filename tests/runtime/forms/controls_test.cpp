#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "assistive_tool.h"
#include "runtime/forms/twips.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using rf::no_index;
using testing_aids::fault_of;
using testing_aids::put_by_assistive_tool;
using testing_aids::row;
using testing_aids::SmallForm;

constexpr rf::Place at(int top) {
  return {0, top, 2400, 375};
}

class Controls : public testing_aids::SmallFormTest {
 protected:
  SmallForm form{desktop,
                 {
                     row("Label1", no_index, Kind::Label, "two\rlines", at(2600)),
                     row("Command1", 1, Kind::CommandButton, "One", at(0)),
                     row("Command1", 4, Kind::CommandButton, "&Four", at(400)),
                     row("Frame1", no_index, Kind::Frame, "Group", {2400, 0, 2100, 1500}),
                     row("Option1", 0, Kind::OptionButton, "A", at(300), "Frame1"),
                     row("Option1", 1, Kind::OptionButton, "B", at(600), "Frame1"),
                     row("Option1", 2, Kind::OptionButton, "C", at(900), "Frame1"),
                     row("Option1", 3, Kind::OptionButton, "Alone", at(800)),
                     row("Check1", no_index, Kind::CheckBox, "Tick", at(1200)),
                     row("Text1", 0, Kind::TextBox, "", at(1600)),
                 }};

  void hear(const std::string& control, Event event) { form.set_events({form.hear(control, event)}); }

  std::string chosen() {
    std::string letters;
    for (int i = 0; i <= 3; ++i) letters += form->Option1(i).value() ? 'x' : '-';
    return letters;
  }
};

TEST_F(Controls, an_element_of_an_array_that_does_not_exist_is_fault_340) {
  EXPECT_EQ(fault_of([this] { form->Command1(2).set_visible(false); }), 340);
  EXPECT_EQ(fault_of([this] { form->Command1(5).set_visible(false); }), 340);
  EXPECT_EQ(fault_of([this] { form->Command1(-1).set_visible(false); }), 340);
  EXPECT_EQ(fault_of([this] { form->Command1(4).set_visible(false); }), 0);
  EXPECT_TRUE(form->Command1.has(1));
  EXPECT_FALSE(form->Command1.has(3));
}

TEST_F(Controls, the_fault_of_a_gap_names_the_element) {
  try {
    form->Command1(2).set_visible(false);
    FAIL();
  } catch (const runtime::Fault& fault) {
    EXPECT_STREQ(fault.what(), "Control array element '2' does not exist");
  }
}

TEST_F(Controls, elements_bear_their_index_in_their_name_and_hand_it_to_the_handler) {
  hear("Command1", Event::Click);
  form.Show();
  analyst.click("Command1(4)");
  EXPECT_EQ(form.heard.times, 1);
  EXPECT_EQ(form.heard.index, 4);
}

TEST_F(Controls, code_may_leave_a_group_of_options_without_a_chosen_one) {
  hear("Option1", Event::Click);
  form->Option1(1).set_value(true);
  form.heard = {};
  for (int i = 0; i <= 2; ++i) form->Option1(i).set_value(false);
  EXPECT_EQ(chosen(), "----");
  EXPECT_EQ(form.heard.times, 0);
}

TEST_F(Controls, an_option_selected_by_code_fires_its_click_once_and_drops_the_others) {
  hear("Option1", Event::Click);
  form->Option1(0).set_value(true);
  form->Option1(2).set_value(true);
  EXPECT_EQ(chosen(), "--x-");
  EXPECT_EQ(form.heard.times, 2);
  EXPECT_EQ(form.heard.index, 2);
  form->Option1(2).set_value(true);
  EXPECT_EQ(form.heard.times, 2);
}

TEST_F(Controls, a_click_on_an_option_fires_once_also_after_code_left_none) {
  hear("Option1", Event::Click);
  form->Option1(0).set_value(true);
  form->Option1(0).set_value(false);
  form.heard = {};
  form.Show();
  analyst.click("Option1(1)");
  EXPECT_EQ(form.heard.times, 1);
  EXPECT_EQ(form.heard.index, 1);
  analyst.click("Option1(2)");
  EXPECT_EQ(form.heard.times, 2);
  EXPECT_EQ(chosen(), "--x-");
}

TEST_F(Controls, options_exclude_each_other_within_their_container_only) {
  form->Option1(3).set_value(true);
  form->Option1(1).set_value(true);
  EXPECT_EQ(chosen(), "-x-x");
}

TEST_F(Controls, a_check_box_fires_for_code_that_changes_it_and_once_for_a_click) {
  hear("Check1", Event::Click);
  form->Check1.set_value(1);
  form->Check1.set_value(1);
  EXPECT_EQ(form.heard.times, 1);
  form.Show();
  analyst.click("Check1");
  EXPECT_EQ(form.heard.times, 2);
  EXPECT_EQ(form->Check1.value(), 0);
}

TEST_F(Controls, a_text_changed_by_code_fires_change_once_and_the_same_text_does_not) {
  hear("Text1", Event::Change);
  form->Text1(0).set_text("abc");
  EXPECT_EQ(form.heard.times, 1);
  form->Text1(0).set_text("abc");
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(Controls, the_fault_of_a_change_that_code_set_off_passes_to_that_code) {
  form.set_events({{"Text1", Event::Change, [](int) { throw runtime::Fault(13); }}});
  EXPECT_EQ(fault_of([this] { form->Text1(0).set_text("abc"); }), 13);
  EXPECT_TRUE(analyst.boxes().empty());
}

TEST_F(Controls, the_fault_of_a_change_that_a_person_made_is_reported) {
  form.set_events({{"Text1", Event::Change, [](int) { throw runtime::Fault(13); }}});
  form.Show();
  analyst.will_press("OK");
  analyst.type("Text1(0)", "a");
  EXPECT_EQ(last_box(), "Run-time error '13':\n\nType mismatch");
  EXPECT_EQ(form->Text1(0).text(), "a");
}

TEST_F(Controls, every_key_in_a_text_box_is_a_change) {
  hear("Text1", Event::Change);
  form.Show();
  analyst.type("Text1(0)", "abc");
  EXPECT_EQ(form.heard.times, 3);
}

TEST_F(Controls, what_an_assistive_tool_puts_into_a_text_box_is_a_change) {
  hear("Text1", Event::Change);
  form.Show();
  put_by_assistive_tool(*analyst.find("Text1(0)"), "abc");
  EXPECT_EQ(form->Text1(0).text(), "abc");
  EXPECT_TRUE(form->Text1(0).changed);
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(Controls, a_locked_and_a_disabled_box_take_nothing_from_an_assistive_tool) {
  hear("Text1", Event::Change);
  form.Show();
  form->Text1(0).show_value("results/stored.txt");
  for (const bool locked : {true, false}) {
    form->Text1(0).set_locked(locked);
    form->Text1(0).set_enabled(locked);
    put_by_assistive_tool(*analyst.find("Text1(0)"), "abc");
    EXPECT_EQ(form->Text1(0).text(), "results/stored.txt");
    EXPECT_FALSE(form->Text1(0).changed);
  }
  EXPECT_EQ(form.heard.times, 0);
}

TEST_F(Controls, what_code_shows_in_a_box_is_no_change) {
  hear("Text1", Event::Change);
  form->Text1(0).show_value("stored");
  form->Text1(0).set_caption("as designed");
  EXPECT_FALSE(form->Text1(0).changed);
  EXPECT_EQ(form.heard.times, 0);
}

TEST_F(Controls, a_locked_box_takes_no_key_and_a_disabled_button_no_click) {
  hear("Command1", Event::Click);
  form.Show();
  form->Text1(0).set_locked(true);
  analyst.type("Text1(0)", "abc");
  EXPECT_EQ(form->Text1(0).text(), "");
  form->Command1(1).set_enabled(false);
  QTest::mouseClick(analyst.find("Command1(1)"), Qt::LeftButton);
  EXPECT_EQ(form.heard.times, 0);
}

TEST_F(Controls, the_tool_tip_of_a_text_box_holds_the_text_that_code_set_last) {
  form->Text1(0).show_value("results/stored.txt");
  EXPECT_EQ(form->Text1(0).widget()->toolTip().toStdString(), "results/stored.txt");
  form->Text1(0).set_text("results/picked.txt");
  EXPECT_EQ(form->Text1(0).widget()->toolTip().toStdString(), "results/picked.txt");
}

TEST_F(Controls, a_small_font_size_is_kept_and_drawn_legibly) {
  form->Text1(0).set_font_size(3);
  EXPECT_EQ(form->Text1(0).font_size(), 3);
  EXPECT_EQ(form->Text1(0).widget()->font().pointSizeF(), 8);
  form->Text1(0).set_font_size(24);
  EXPECT_EQ(form->Text1(0).widget()->font().pointSizeF(), 24);
}

TEST_F(Controls, a_button_pressed_by_its_shortcut_takes_the_focus_first) {
  form.set_events({{"Command1", Event::Click,
                    [this](int) { form.heard.times = form->Command1(4).widget()->hasFocus() ? 1 : -1; }}});
  form.Show();
  QApplication::setActiveWindow(&window);
  analyst.find("Text1(0)")->setFocus();
  // What a shortcut does to its button: a click without the mouse, which alone would bring the focus.
  qobject_cast<QAbstractButton*>(analyst.find("Command1(4)"))->click();
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(Controls, enter_and_space_press_the_button_that_has_the_focus) {
  hear("Command1", Event::Click);
  form.Show();
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    QTest::keyClick(form->Command1(1).widget(), key);
  }
  EXPECT_EQ(form.heard.times, 3);
}

TEST_F(Controls, a_caption_longer_than_its_label_is_not_cut) {
  form->Label1.set_caption(
      "Output files are named <inputfile>\"_trip.txt\", and this goes on for quite a while");
  const auto* label = qobject_cast<QLabel*>(form->Label1.widget());
  EXPECT_GE(label->width(), label->sizeHint().width());
  EXPECT_EQ(form->Label1.width(), 2400);
  form->Label1.set_caption("short");
  EXPECT_EQ(label->width(), rf::pixels(at(0)).width());
}

TEST_F(Controls, a_carriage_return_breaks_the_line_of_a_label) {
  form.Show();
  EXPECT_EQ(analyst.text_of("Label1"), "two\nlines");
  EXPECT_EQ(form->Label1.caption(), "two\rlines");
}

}  // namespace
