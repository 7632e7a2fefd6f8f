#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using testing_aids::row;
using testing_aids::SmallForm;

/// Counts how often a widget was painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  int times = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++times;
    return false;
  }
};

class Waiting : public testing_aids::SmallFormTest {
 protected:
  Waiting() {
    app.put_stand_in("model.exe");
    app.put_file("stand_in.txt", "sleep 150\nexit 5\n");
    form.set_events({form.hear("Command1", Event::Click)});
    form.Show();
    QObject::connect(&window, &rf::MainWindow::close_requested, [this] { ++close_requests; });
  }

  /// Runs the stand-in in a handler and does something while it is waited for.
  void while_it_runs(const std::function<void()>& action) {
    bool done = false;
    QTimer::singleShot(30, [&] {
      action();
      done = true;
    });
    as_handler([this] { exit_code = desktop.run_program("model.exe"); });
    EXPECT_TRUE(done);
    QCoreApplication::processEvents();
  }

  QWidget* button() { return analyst.find("Command1(0)"); }

  SmallForm form{desktop, {row("Command1", 0, Kind::CommandButton, "Go")}};
  int close_requests = 0;
  int exit_code = 0;
};

TEST_F(Waiting, gives_the_exit_code) {
  while_it_runs([] {});
  EXPECT_EQ(exit_code, 5);
}

TEST_F(Waiting, drops_clicks_and_keys) {
  while_it_runs([this] {
    QTest::mouseClick(button(), Qt::LeftButton);
    QTest::keyClick(button(), Qt::Key_Space);
  });
  EXPECT_EQ(form.heard.times, 0);
  analyst.click("Command1(0)");
  EXPECT_EQ(form.heard.times, 1);
}

TEST_F(Waiting, drops_clicks_that_the_system_had_not_delivered_yet) {
  while_it_runs([this] {
    const QPointF middle = button()->rect().center();
    const QPointF on_screen = button()->mapToGlobal(middle);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QCoreApplication::postEvent(
          button(), new QMouseEvent(type, middle, on_screen, Qt::LeftButton, held, Qt::NoModifier));
    }
  });
  EXPECT_EQ(form.heard.times, 0);
}

TEST_F(Waiting, drops_a_close_request) {
  while_it_runs([this] { window.close(); });
  EXPECT_EQ(close_requests, 0);
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_EQ(close_requests, 1);
}

TEST_F(Waiting, still_repaints_the_windows) {
  QCoreApplication::processEvents();
  Paints paints(*button());
  while_it_runs([this] { button()->update(); });
  EXPECT_GE(paints.times, 1);
}

TEST_F(Waiting, a_close_request_while_a_handler_shows_its_box_is_dropped_too) {
  analyst.will_press("OK");
  analyst.when_box_shows = [this](const analyst::Box&) { window.close(); };
  as_handler([this] { desktop.MsgBox("Words"); });
  EXPECT_EQ(close_requests, 0);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Waiting, what_cannot_be_started_gives_minus_one) {
  as_handler([this] { exit_code = desktop.run_program("nosuch.exe"); });
  EXPECT_EQ(exit_code, -1);
}

}  // namespace
