#include "runtime/forms/long_work.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

#include "runtime/forms/status_line.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using rf::LongWork;
using rf::no_index;
using testing_aids::row;
using testing_aids::SmallForm;

constexpr qint64 patience_ms = 10'000;

class LongWorkTest : public testing_aids::SmallFormTest {
 protected:
  LongWorkTest() {
    form.set_events({form.hear("Command1", Event::Click), form.hear("", Event::Resize)});
    form.Show();
    QCoreApplication::processEvents();
    form.heard = {};
  }

  std::string line() { return rf::status_line(&window); }

  /// Goes on as real work does, until the line says something else than before.
  void work_until_told(LongWork& work, std::int64_t done = 43, std::int64_t total = 100) {
    const std::string before = line();
    QElapsedTimer timer;
    timer.start();
    while (line() == before && timer.elapsed() < patience_ms) work.at(done, total);
  }

  /// Goes on until the windows were painted once more.
  void work_until_painted(LongWork& work) {
    bool painted = false;
    // Posted events are delivered at each painting.
    QMetaObject::invokeMethod(
        &window, [&painted] { painted = true; }, Qt::QueuedConnection);
    QElapsedTimer timer;
    timer.start();
    while (!painted && timer.elapsed() < patience_ms) work.at(1, 2);
    EXPECT_TRUE(painted);
  }

  void post_click(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    const QPointF on_screen = widget.mapToGlobal(middle);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QCoreApplication::postEvent(
          &widget, new QMouseEvent(type, middle, on_screen, Qt::LeftButton, held, Qt::NoModifier));
    }
  }
  void post_key(QWidget& widget, int key, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QCoreApplication::postEvent(&widget, new QKeyEvent(type, key, Qt::NoModifier, text));
    }
  }

  QWidget& button() { return *form->Command1(0).widget(); }
  QWidget& box() { return *form->Text1(0).widget(); }

  SmallForm form{desktop,
                 {row("Command1", 0, Kind::CommandButton, "Go"),
                  row("Text1", 0, Kind::TextBox, "", {0, 600, 1500, 375})}};
};

TEST_F(LongWorkTest, the_line_is_there_and_empty_when_nothing_is_going_on) {
  EXPECT_TRUE(analyst.sees("StatusLine"));
  EXPECT_EQ(line(), "");
}

TEST_F(LongWorkTest, tells_words_and_percent_and_takes_them_back_at_the_end) {
  as_handler([this] {
    LongWork work(desktop, "Filling distance");
    work_until_told(work);
    EXPECT_EQ(line(), "Filling distance: 43 %");
    EXPECT_EQ(analyst.find("StatusLine")->accessibleName().toStdString(), "Filling distance: 43 %");
  });
  EXPECT_EQ(line(), "");
  EXPECT_EQ(analyst.find("StatusLine")->accessibleName().toStdString(), "");
}

TEST_F(LongWorkTest, says_nothing_in_its_first_half_second) {
  as_handler([this] {
    QElapsedTimer timer;
    timer.start();
    LongWork work(desktop, "Filling distance");
    work_until_told(work);
    EXPECT_GE(timer.elapsed(), 500);
  });
}

TEST_F(LongWorkTest, is_painted_at_most_ten_times_a_second) {
  as_handler([this] {
    LongWork work(desktop, "Filling distance");
    work_until_told(work, 1, 100);
    QElapsedTimer timer;
    timer.start();
    for (int percent = 2; percent <= 4; ++percent) work_until_told(work, percent, 100);
    EXPECT_GE(timer.elapsed(), 299);
  });
}

TEST_F(LongWorkTest, hears_the_engine) {
  as_handler([this] {
    const LongWork work(desktop, "Saving");
    QElapsedTimer timer;
    timer.start();
    while (line().empty() && timer.elapsed() < patience_ms)
      desktop.workspace.progress(99'980'001, 99'980'001);
    EXPECT_EQ(line(), "Saving: 100 %");
  });
  EXPECT_FALSE(desktop.workspace.progress);
}

TEST_F(LongWorkTest, tells_the_words_alone_when_nobody_knows_the_end) {
  as_handler([this] {
    LongWork work(desktop, "Counting");
    work_until_told(work, 7, 0);
    EXPECT_EQ(line(), "Counting");
  });
}

TEST_F(LongWorkTest, inside_other_long_work_tells_its_own_part_and_gives_the_line_back) {
  as_handler([this] {
    LongWork outer(desktop, "Saving all");
    work_until_told(outer, 10, 100);
    {
      LongWork inner(desktop, "Saving trips");
      work_until_told(inner, 20, 100);
      EXPECT_EQ(line(), "Saving trips: 20 %");
    }
    EXPECT_EQ(line(), "Saving all: 10 %");
    work_until_told(outer, 60, 100);
    EXPECT_EQ(line(), "Saving all: 60 %");
    desktop.workspace.progress(61, 100);
  });
  EXPECT_EQ(line(), "");
  EXPECT_FALSE(desktop.workspace.progress);
}

TEST_F(LongWorkTest, drops_clicks_and_keys_that_come_while_it_works) {
  as_handler([this] {
    LongWork work(desktop, "Filling");
    post_click(button());
    post_key(box(), Qt::Key_A, QStringLiteral("a"));
    work_until_painted(work);
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(form.heard.times, 0);
  EXPECT_EQ(form->Text1(0).text(), "");
}

TEST_F(LongWorkTest, drops_what_came_in_its_last_moment) {
  as_handler([this] {
    const LongWork work(desktop, "Filling");
    post_click(button());
    post_key(box(), Qt::Key_A, QStringLiteral("a"));
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(form.heard.times, 0);
  EXPECT_EQ(form->Text1(0).text(), "");
  analyst.click("Command1(0)");
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(LongWorkTest, drops_a_close_request) {
  int close_requests = 0;
  QObject::connect(&window, &rf::MainWindow::close_requested, [&] { ++close_requests; });
  as_handler([this] {
    const LongWork work(desktop, "Filling");
    window.close();
  });
  EXPECT_EQ(close_requests, 0);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(LongWorkTest, lets_no_other_handler_run_inside) {
  bool ran = false;
  as_handler([&] {
    const LongWork work(desktop, "Filling");
    as_handler([&] { ran = true; });
  });
  EXPECT_FALSE(ran);
}

TEST_F(LongWorkTest, a_form_hears_of_its_new_size_when_the_work_is_done) {
  form.set_window_state(rf::WindowState::maximized);
  QCoreApplication::processEvents();
  form.heard = {};
  int times_inside = 0;
  as_handler([&] {
    LongWork work(desktop, "Filling");
    window.resize(700, 500);
    work_until_painted(work);
    times_inside = form.heard.times;
  });
  EXPECT_EQ(times_inside, 0);
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(LongWorkTest, leaves_the_pointer_alone) {
  as_handler([this] {
    desktop.set_pointer(rf::Desktop::Pointer::hourglass);
    {
      const LongWork work(desktop, "Filling");
      EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    desktop.set_pointer(rf::Desktop::Pointer::normal);
  });
}

TEST_F(LongWorkTest, a_fault_ends_it_like_any_end) {
  analyst.will_press("OK");
  as_handler([this] {
    LongWork work(desktop, "Filling");
    work_until_told(work);
    throw runtime::Fault(61);
  });
  EXPECT_EQ(last_box(), "Run-time error '61':\n\nDisk full");
  EXPECT_EQ(line(), "");
  EXPECT_FALSE(desktop.workspace.progress);
}

TEST_F(LongWorkTest, works_without_a_window) {
  rf::Desktop bare(app.path());
  LongWork work(bare, "Filling");
  work_until_painted(work);
  EXPECT_EQ(rf::status_line(bare.main_window), "");
}

}  // namespace
