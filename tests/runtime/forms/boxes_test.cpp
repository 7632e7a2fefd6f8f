#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Boxes : public testing_aids::SmallFormTest {
 protected:
  int answered(const std::string& button, int style) {
    analyst.will_press(button);
    return desktop.MsgBox("Words", style);
  }
  analyst::Box box() { return analyst.last_box(); }
};

TEST_F(Boxes, reply_with_the_platforms_numbers) {
  EXPECT_EQ(answered("OK", rf::ok_only), 1);
  EXPECT_EQ(answered("Yes", rf::yes_no), 6);
  EXPECT_EQ(answered("No", rf::yes_no), 7);
}

TEST_F(Boxes, offer_the_buttons_of_their_style) {
  answered("OK", rf::ok_only);
  EXPECT_THAT(box().buttons, ElementsAre("OK"));
  answered("Yes", rf::yes_no + rf::exclamation);
  EXPECT_THAT(box().buttons, ElementsAre("Yes", "No"));
}

TEST_F(Boxes, have_no_icon_but_the_one_of_their_style) {
  answered("OK", rf::ok_only);
  EXPECT_EQ(box().icon, QMessageBox::NoIcon);
  answered("No", rf::yes_no);
  EXPECT_EQ(box().icon, QMessageBox::NoIcon);
  answered("OK", rf::critical);
  EXPECT_EQ(box().icon, QMessageBox::Critical);
  answered("Yes", rf::yes_no + rf::question);
  EXPECT_EQ(box().icon, QMessageBox::Question);
  answered("OK", rf::exclamation);
  EXPECT_EQ(box().icon, QMessageBox::Warning);
}

TEST_F(Boxes, bear_the_programs_name_unless_they_have_a_title) {
  answered("OK", rf::ok_only);
  EXPECT_EQ(box().name, "MsgBox");
  EXPECT_EQ(box().title, "Quelar");
  analyst.will_press("OK");
  desktop.MsgBox("Words", rf::ok_only, "Own title");
  EXPECT_EQ(box().title, "Own title");
}

TEST_F(Boxes, break_their_lines_at_each_kind_of_line_end) {
  analyst.will_press("OK");
  desktop.MsgBox("a\r\rb\nc\r\nd");
  EXPECT_EQ(box().text, "a\n\nb\nc\nd");
}

TEST_F(Boxes, show_markup_as_plain_text) {
  analyst.will_press("OK");
  auto format = Qt::AutoText;
  analyst.when_box_shows = [&](const analyst::Box&) {
    format = window.findChild<QMessageBox*>(QStringLiteral("MsgBox"))->textFormat();
  };
  desktop.MsgBox("file <b>x</b> not found");
  EXPECT_EQ(box().text, "file <b>x</b> not found");
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(Boxes, show_a_thousand_characters_and_the_rest_behind_a_button) {
  std::string words;
  for (int i = 0; i < 4000; ++i) words += std::to_string(i % 10) + "\xE2\x80\xA8word ";
  std::string shown;
  std::string rest;
  int height = 0;
  analyst.when_box_shows = [&](const analyst::Box&) {
    auto* met = window.findChild<QMessageBox*>(QStringLiteral("MsgBox"));
    shown = met->text().toStdString();
    rest = met->detailedText().toStdString();
    height = met->height();
  };
  EXPECT_EQ(([&] {
              analyst.will_press("OK");
              return desktop.MsgBox(words, rf::critical);
            })(),
            rf::reply_ok);
  EXPECT_THAT(box().buttons, ::testing::UnorderedElementsAre("OK", "Show Details..."));
  EXPECT_EQ(shown.size(), 1000U);
  EXPECT_EQ(shown.substr(0, 14), "0 word 1 word ");
  EXPECT_EQ(rest.size(), 4000U * 7 - 1000);
  EXPECT_LT(height, 600) << "the button is off the screen";
}

TEST_F(Boxes, show_a_thousand_characters_without_another_button) {
  analyst.will_press("OK");
  desktop.MsgBox(std::string(1000, 'x'));
  EXPECT_THAT(box().buttons, ElementsAre("OK"));
  EXPECT_EQ(box().text, std::string(1000, 'x'));
}

TEST_F(Boxes, part_no_character_of_two_halves) {
  analyst.will_press("OK");
  desktop.MsgBox(std::string(999, 'x') + "\xF0\x9F\x9A\x9A and more");
  EXPECT_EQ(box().text, std::string(999, 'x'));
}

TEST_F(Boxes, belong_to_the_main_window) {
  analyst.will_press("OK");
  QWidget* parent = nullptr;
  analyst.when_box_shows = [&](const analyst::Box&) {
    parent = window.findChild<QMessageBox*>(QStringLiteral("MsgBox"))->parentWidget();
  };
  desktop.MsgBox("Words");
  EXPECT_EQ(parent, &window);
}

/// What a key does to a box, wherever in it the focus is.
class BoxKeys : public Boxes {
 protected:
  /// Shows a question and does something to it; gives the reply, or "stays" with the reply of a No after it.
  std::string question_after(const std::function<void(QMessageBox&)>& act) {
    bool stays = false;
    analyst.will_do([&](QDialog& box) {
      QApplication::setActiveWindow(&box);
      act(*qobject_cast<QMessageBox*>(&box));
      stays = box.isVisible();
      if (stays) QTest::mouseClick(qobject_cast<QMessageBox*>(&box)->button(QMessageBox::No), Qt::LeftButton);
    });
    const int reply = desktop.MsgBox("Words", rf::yes_no);
    return std::string(stays ? "stays, then " : "") + (reply == rf::reply_yes ? "yes" : "no");
  }
  static void press_in(QWidget& box, Qt::Key key) {
    QWidget* focused = box.focusWidget() == nullptr ? &box : box.focusWidget();
    QTest::keyClick(focused, key);
  }
  void press_in_next_box(Qt::Key key) {
    analyst.will_do([key](QDialog& box) {
      QApplication::setActiveWindow(&box);
      press_in(box, key);
    });
  }
};

TEST_F(BoxKeys, enter_answers_a_question_with_yes) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_EQ(question_after([key](QMessageBox& box) { press_in(box, key); }), "yes");
  }
  EXPECT_EQ(question_after([](QMessageBox& box) {
              EXPECT_TRUE(static_cast<QAbstractButton*>(box.defaultButton()) == box.button(QMessageBox::Yes));
              press_in(box, Qt::Key_Space);
            }),
            "yes");
}

TEST_F(BoxKeys, enter_on_the_other_answer_gives_that_one) {
  EXPECT_EQ(question_after([](QMessageBox& box) {
              box.button(QMessageBox::No)->setFocus();
              press_in(box, Qt::Key_Return);
            }),
            "no");
}

TEST_F(BoxKeys, escape_and_a_close_request_leave_a_question_open) {
  EXPECT_EQ(question_after([](QMessageBox& box) { press_in(box, Qt::Key_Escape); }), "stays, then no");
  EXPECT_EQ(question_after([](QMessageBox& box) { box.close(); }), "stays, then no");
}

TEST_F(BoxKeys, enter_and_escape_and_a_close_request_end_a_message) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    press_in_next_box(key);
    EXPECT_EQ(desktop.MsgBox("Words"), rf::reply_ok);
  }
  analyst.will_do([](QDialog& box) { box.close(); });
  EXPECT_EQ(desktop.MsgBox("Words", rf::exclamation), rf::reply_ok);
  EXPECT_EQ(analyst.boxes().size(), 4U);
}

TEST_F(BoxKeys, enter_and_escape_end_a_report_and_the_program_goes_on) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
    press_in_next_box(key);
    as_handler([] { throw runtime::Fault(6); });
  }
  bool went_on = false;
  as_handler([&] { went_on = true; });
  EXPECT_TRUE(went_on);
  EXPECT_THAT(analyst.texts(),
              ElementsAre("Run-time error '6':\n\nOverflow", "Run-time error '6':\n\nOverflow"));
}

TEST_F(BoxKeys, enter_takes_a_typed_line_and_escape_drops_it) {
  const auto answer = [this](Qt::Key key) {
    analyst.will_do([key](QDialog& box) {
      QApplication::setActiveWindow(&box);
      QTest::keyClicks(box.focusWidget(), QStringLiteral("Origin"));
      press_in(box, key);
    });
    return desktop.InputBox("Words");
  };
  EXPECT_EQ(answer(Qt::Key_Return), "Origin");
  EXPECT_EQ(answer(Qt::Key_Enter), "Origin");
  EXPECT_EQ(answer(Qt::Key_Escape), "");
}

using RuntimeErrorReport = Boxes;

TEST_F(RuntimeErrorReport, tells_number_and_words_and_the_program_goes_on) {
  analyst.will_press("OK");
  as_handler([] { throw runtime::Fault(76, "somewhere"); });
  EXPECT_EQ(box().name, "RuntimeError");
  EXPECT_EQ(box().text, "Run-time error '76':\n\nPath not found: somewhere");
  EXPECT_EQ(box().icon, QMessageBox::Critical);
  EXPECT_THAT(box().buttons, ElementsAre("OK"));
  EXPECT_EQ(box().title, "Quelar");
  bool went_on = false;
  as_handler([&] { went_on = true; });
  EXPECT_TRUE(went_on);
}

TEST_F(RuntimeErrorReport, keeps_what_the_handler_had_written) {
  analyst.will_press("OK");
  analyst.when_box_shows = [&](const analyst::Box&) {
    EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("9"));
  };
  as_handler([&] {
    auto database = desktop.workspace.OpenDatabase("zelmor.mdb");
    desktop.workspace.BeginTrans();
    database.Execute("update zones set numzones = 9");
    throw runtime::Fault(6);
  });
  EXPECT_EQ(box().text, "Run-time error '6':\n\nOverflow");
}

TEST_F(RuntimeErrorReport, tells_of_the_handler_and_of_its_writes_when_both_fault) {
  desktop.workspace.lock_wait = std::chrono::milliseconds(1);
  auto database = desktop.workspace.OpenDatabase("zelmor.mdb");
  runtime::engine::Workspace other;
  analyst.will_press("OK");
  analyst.will_press("OK");
  // As long as the other program reads nothing can be made durable.
  other.OpenDatabase(app.file("zelmor.mdb").string()).OpenRecordset("zones").for_each([&](const auto&) {
    as_handler([&] {
      database.Execute("update zones set numzones = 9");
      throw runtime::Fault(6);
    });
  });
  EXPECT_THAT(analyst.texts(), ElementsAre("Run-time error '6':\n\nOverflow",
                                           ::testing::StartsWith("Run-time error '3260':")));
  as_handler([] {});
  EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("9"));
}

// What the status line shows whenever it is painted.
class PaintedLine : public QObject {
 public:
  explicit PaintedLine(QWidget& line) : line_(line) { line.installEventFilter(this); }
  std::vector<std::string> words;

 private:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) words.push_back(line_.accessibleName().toStdString());
    return false;
  }
  QWidget& line_;
};

TEST_F(RuntimeErrorReport, of_a_lock_comes_after_one_wait_with_a_word_in_the_status_line) {
  desktop.workspace.lock_wait = std::chrono::milliseconds(40);
  auto database = desktop.workspace.OpenDatabase("zelmor.mdb");
  runtime::engine::Workspace other;
  auto holder = other.OpenDatabase(app.file("zelmor.mdb").string());
  holder.Execute("update zones set numzones = 7");
  QCoreApplication::processEvents();
  PaintedLine line(*analyst.find("StatusLine"));
  analyst.will_press("OK");
  analyst.when_box_shows = [&](const analyst::Box&) { EXPECT_EQ(analyst.text_of("StatusLine"), ""); };
  as_handler([&] { database.Execute("update zones set numzones = 9"); });
  EXPECT_THAT(line.words, ::testing::Contains("Waiting for another program that uses the project database"));
  EXPECT_THAT(analyst.texts(), ElementsAre(::testing::StartsWith("Run-time error '3260':")));
  other.handler_ended();
}

TEST_F(RuntimeErrorReport, abandons_the_handler_at_the_fault) {
  analyst.will_press("OK");
  bool reached = false;
  as_handler([&] {
    desktop.files.ChDir("nosuch");
    reached = true;
  });
  EXPECT_FALSE(reached);
  EXPECT_EQ(box().text, "Run-time error '76':\n\nPath not found: nosuch");
}

TEST_F(RuntimeErrorReport, of_whatever_else_is_thrown_stops_at_the_edge) {
  analyst.will_press("OK");
  as_handler([] { throw std::logic_error("odd"); });
  EXPECT_EQ(box().text, "Run-time error '51':\n\nInternal error: odd");
  analyst.will_press("OK");
  as_handler([] { throw std::bad_alloc(); });
  EXPECT_EQ(box().text, "Run-time error '7':\n\nOut of memory");
}

TEST_F(RuntimeErrorReport, the_error_object_is_empty_after_each_handler) {
  as_handler([&] { desktop.err.set(runtime::Fault(6)); });
  EXPECT_EQ(desktop.err.number, 0);
  EXPECT_EQ(desktop.err.description, "");
}

TEST_F(RuntimeErrorReport, leaves_the_normal_pointer_behind) {
  analyst.will_press("OK");
  as_handler([this] {
    desktop.set_pointer(rf::Desktop::Pointer::hourglass);
    throw runtime::Fault(6);
  });
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(RuntimeErrorReport, is_not_shown_for_a_handler_without_a_fault) {
  as_handler([] {});
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

using InputBoxes = Boxes;

TEST_F(InputBoxes, give_the_line_that_was_typed) {
  analyst.will_enter("Origin > 3");
  EXPECT_EQ(desktop.InputBox("Enter a filter\rfor the rows"), "Origin > 3");
  EXPECT_EQ(box().name, "InputBox");
  EXPECT_EQ(box().text, "Enter a filter\nfor the rows");
  EXPECT_EQ(box().title, "Quelar");
}

TEST_F(InputBoxes, propose_nothing) {
  analyst.will_press("OK");
  EXPECT_EQ(desktop.InputBox("Words"), "");
}

TEST_F(InputBoxes, give_nothing_when_they_are_cancelled) {
  analyst.when_box_shows = [this](const analyst::Box&) {
    QTest::keyClicks(window.findChild<QInputDialog*>()->findChild<QLineEdit*>(), QStringLiteral("typed"));
  };
  analyst.will_press("Cancel");
  EXPECT_EQ(desktop.InputBox("Words"), "");
}

TEST_F(InputBoxes, bear_a_title_of_their_own) {
  analyst.will_press("OK");
  desktop.InputBox("Words", "Filter");
  EXPECT_EQ(box().title, "Filter");
}

using Pointers = Boxes;

TEST_F(Pointers, stand_over_every_window_until_the_normal_one_is_back) {
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  desktop.set_pointer(rf::Desktop::Pointer::hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  desktop.set_pointer(rf::Desktop::Pointer::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Pointers, do_not_pile_up) {
  desktop.set_pointer(rf::Desktop::Pointer::hourglass);
  desktop.set_pointer(rf::Desktop::Pointer::hourglass);
  desktop.set_pointer(rf::Desktop::Pointer::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  desktop.set_pointer(rf::Desktop::Pointer::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
