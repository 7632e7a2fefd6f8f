#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>

#include "runtime/forms/form_size.h"
#include "runtime/forms/twips.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using rf::no_index;
using rf::WindowState;
using testing_aids::row;
using testing_aids::SmallForm;

class FormWindows : public testing_aids::SmallFormTest {
 protected:
  QMdiSubWindow& frame_of(SmallForm& form) {
    QWidget* widget = form.surface();
    while (qobject_cast<QMdiSubWindow*>(widget) == nullptr) widget = widget->parentWidget();
    return *qobject_cast<QMdiSubWindow*>(widget);
  }

  /// The control that lies on top at the middle of a place.
  std::string on_top_of(const rf::Control& control) {
    const QPoint middle = control.widget()->geometry().center();
    return control.widget()->parentWidget()->childAt(middle)->objectName().toStdString();
  }

  SmallForm form{desktop,
                 {
                     row("Command1", 0, Kind::CommandButton, "Under", {0, 0, 1500, 375}),
                     row("Command1", 1, Kind::CommandButton, "Wide", {0, 0, 3000, 375}),
                     row("Label1", no_index, Kind::Label, "Label", {0, 600, 1500, 375}),
                     row("Text1", 0, Kind::TextBox, "", {0, 1200, 1500, 375}),
                     row("Command1", 2, Kind::CommandButton, "Far", {9000, 9000, 1500, 375}),
                 }};
};

TEST_F(FormWindows, a_control_that_lies_wholly_under_another_takes_no_focus) {
  form.Show();
  EXPECT_EQ(analyst.find("Command1(0)")->focusPolicy(), Qt::NoFocus);
  EXPECT_NE(analyst.find("Command1(1)")->focusPolicy(), Qt::NoFocus);
}

TEST_F(FormWindows, a_control_that_is_uncovered_takes_the_focus_again) {
  form->Command1(1).set_visible(false);
  EXPECT_NE(form->Command1(0).widget()->focusPolicy(), Qt::NoFocus);
  form->Command1(1).set_visible(true);
  EXPECT_EQ(form->Command1(0).widget()->focusPolicy(), Qt::NoFocus);
  form->Command1(1).set_left(600);
  EXPECT_NE(form->Command1(0).widget()->focusPolicy(), Qt::NoFocus);
}

TEST_F(FormWindows, of_overlapping_controls_the_one_shown_last_lies_on_top) {
  form.Show();
  EXPECT_EQ(on_top_of(form->Command1(0)), "Command1(1)");
  form->Command1(0).set_visible(true);
  EXPECT_EQ(on_top_of(form->Command1(0)), "Command1(0)");
}

TEST_F(FormWindows, a_label_lies_under_boxes_and_buttons_also_when_it_was_shown_last) {
  form.Show();
  form->Label1.set_place(form->Text1(0).place());
  form->Label1.set_visible(false);
  form->Label1.set_visible(true);
  EXPECT_EQ(on_top_of(form->Text1(0)), "Text1(0)");
}

TEST_F(FormWindows, a_form_scrolls_to_its_last_control_when_its_window_is_too_small) {
  form.set_window_state(WindowState::maximized);
  form.Show();
  window.resize(300, 200);
  QTest::qWait(0);
  auto* scroll = frame_of(form).findChild<QScrollArea*>();
  QWidget* far = analyst.find("Command1(2)");
  EXPECT_TRUE(far->visibleRegion().isEmpty());
  scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->maximum());
  scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
  EXPECT_EQ(far->visibleRegion().boundingRect(), far->rect());
}

TEST_F(FormWindows, a_form_whose_controls_fit_does_not_scroll) {
  form->Command1(2).set_visible(false);
  form.Show();
  QTest::qWait(0);
  auto* scroll = frame_of(form).findChild<QScrollArea*>();
  EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0);
}

TEST_F(FormWindows, a_form_has_no_close_box_and_no_system_menu) {
  form.Show();
  EXPECT_FALSE(frame_of(form).windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_EQ(frame_of(form).systemMenu(), nullptr);
}

TEST_F(FormWindows, a_title_bar_draws_the_boxes_of_its_size_and_none_to_close_it) {
  form.Show();
  const QMdiSubWindow& frame = frame_of(form);
  const auto draws = [&frame](QStyle::SubControl box) {
    QStyleOptionTitleBar bar;
    bar.initFrom(&frame);
    bar.rect = QRect(0, 0, 300, 24);
    bar.titleBarFlags = frame.windowFlags();
    return !frame.style()->subControlRect(QStyle::CC_TitleBar, &bar, box, &frame).isEmpty();
  };
  for (const auto state : {WindowState::normal, WindowState::minimized, WindowState::maximized}) {
    form.set_window_state(state);
    EXPECT_TRUE(draws(QStyle::SC_TitleBarMaxButton));
    EXPECT_FALSE(draws(QStyle::SC_TitleBarCloseButton));
    EXPECT_FALSE(draws(QStyle::SC_TitleBarSysMenu));
  }
}

TEST_F(FormWindows, no_key_and_no_close_request_closes_a_form) {
  form.Show();
  for (const auto key : {Qt::Key_W, Qt::Key_F4, Qt::Key_Q}) {
    QTest::keyClick(analyst.find("Text1(0)"), key, Qt::ControlModifier);
    QTest::keyClick(&frame_of(form), key, Qt::ControlModifier);
  }
  QTest::keyClick(analyst.find("Text1(0)"), Qt::Key_Escape);
  frame_of(form).close();
  EXPECT_TRUE(form.loaded());
  EXPECT_TRUE(analyst.sees("Small"));
}

TEST_F(FormWindows, a_maximised_form_puts_no_window_buttons_beside_the_menu) {
  form.set_window_state(WindowState::maximized);
  form.Show();
  QTest::qWait(0);
  for (const auto corner : {Qt::TopLeftCorner, Qt::TopRightCorner}) {
    const QWidget* buttons = window.menuBar()->cornerWidget(corner);
    EXPECT_TRUE(buttons == nullptr || !buttons->isVisible());
  }
}

TEST_F(FormWindows, a_form_that_the_analyst_maximised_is_restored_by_the_one_button_beside_the_menu) {
  form.Show();
  for (int turn = 0; turn < 2; ++turn) {
    const QSize size = frame_of(form).size();
    frame_of(form).showMaximized();
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.menuBar()->cornerWidget(Qt::TopLeftCorner) == nullptr ||
                !window.menuBar()->cornerWidget(Qt::TopLeftCorner)->isVisible());
    QWidget* button = window.menuBar()->cornerWidget(Qt::TopRightCorner);
    ASSERT_TRUE(button != nullptr && button->isVisible());
    for (int x = 0; x < button->width(); ++x) {
      if (form.loaded() && frame_of(form).isMaximized()) {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(x, button->height() / 2));
      }
    }
    EXPECT_FALSE(frame_of(form).isMaximized());
    EXPECT_FALSE(frame_of(form).isMinimized());
    EXPECT_EQ(frame_of(form).size(), size);
    EXPECT_TRUE(analyst.sees("Small"));
  }
}

TEST_F(FormWindows, of_several_the_one_used_last_is_active_again_after_an_unload) {
  SmallForm first(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "First");
  SmallForm second(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "Second");
  for (auto* shown : {&first, &second, &form}) {
    shown->set_window_state(WindowState::maximized);
    shown->Show();
  }
  form.Unload();
  EXPECT_TRUE(desktop.mdi_area->activeSubWindow() == &frame_of(second));
  EXPECT_GT(desktop.mdi_area->subWindowList(QMdiArea::StackingOrder).indexOf(&frame_of(second)),
            desktop.mdi_area->subWindowList(QMdiArea::StackingOrder).indexOf(&frame_of(first)));
}

TEST_F(FormWindows, the_form_below_is_active_again_after_an_unload) {
  SmallForm other(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "Other");
  other.Show();
  form.Show();
  EXPECT_TRUE(desktop.mdi_area->activeSubWindow() == &frame_of(form));
  form.Unload();
  EXPECT_TRUE(desktop.mdi_area->activeSubWindow() == &frame_of(other));
}

TEST_F(FormWindows, showing_a_form_normal_keeps_another_one_maximised) {
  SmallForm other(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "Other");
  other.set_window_state(WindowState::maximized);
  other.Show();
  form.Show();
  EXPECT_FALSE(frame_of(form).isMaximized());
  EXPECT_TRUE(frame_of(other).isMaximized());
}

TEST_F(FormWindows, a_load_brings_a_form_to_the_front_and_back_from_its_icon) {
  SmallForm other(desktop, {row("Command1", 0, Kind::CommandButton, "Go")}, "Other");
  form.Show();
  other.Show();
  form.Load();
  EXPECT_TRUE(desktop.mdi_area->activeSubWindow() == &frame_of(form));
  EXPECT_TRUE(desktop.mdi_area->subWindowList(QMdiArea::StackingOrder).back() == &frame_of(form));
  other.Show();
  frame_of(form).showMinimized();
  form.Load();
  EXPECT_FALSE(frame_of(form).isMinimized());
  EXPECT_TRUE(desktop.mdi_area->activeSubWindow() == &frame_of(form));
}

TEST_F(FormWindows, an_icon_tells_the_size_of_the_window_that_it_stands_for) {
  form.Show();
  frame_of(form).resize(420, 330);
  const int width = form.width();
  const int height = rf::height_of(form);
  EXPECT_EQ(width, rf::twips(420));
  frame_of(form).showMinimized();
  QCoreApplication::processEvents();
  ASSERT_LT(frame_of(form).height(), 330);
  EXPECT_EQ(form.width(), width);
  EXPECT_EQ(rf::width_of(form), width);
  EXPECT_EQ(rf::height_of(form), height);
  frame_of(form).showMaximized();
  const int wide = form.width();
  EXPECT_GT(wide, width);
  frame_of(form).showMinimized();
  EXPECT_EQ(form.width(), width);
}

TEST_F(FormWindows, the_menu_bar_stays_in_the_window_on_every_desktop) {
  EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_DontUseNativeMenuBar));
  EXPECT_TRUE(window.menuBar()->isVisible());
}

TEST_F(FormWindows, a_resized_form_hears_of_it) {
  form.set_events({{"", Event::Resize, [this](int) { ++form.heard.times; }}});
  form.Show();
  form.heard = {};
  frame_of(form).resize(300, 200);
  EXPECT_GE(form.heard.times, 1);
}

}  // namespace
