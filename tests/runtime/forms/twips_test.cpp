#include "runtime/forms/twips.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>

#include "small_form.h"

namespace {

using runtime::forms::pixels;
using runtime::forms::pixels_per_twip;
using runtime::forms::twips;

/// The desktop's font for the length of a test.
class Twips : public ::testing::Test {
 protected:
  ~Twips() override { QApplication::setFont(before_); }

  static int use_font(int pixel_size) {
    QFont font = QApplication::font();
    font.setPixelSize(pixel_size);
    QApplication::setFont(font);
    return QFontMetrics(font).height();
  }
  static int use_small_font() {
    const int height = use_font(8);
    EXPECT_LE(height, 13);
    return height;
  }

 private:
  QFont before_ = QApplication::font();
};

TEST_F(Twips, fifteen_are_a_pixel_at_the_font_of_the_design_or_a_smaller_one) {
  use_small_font();
  EXPECT_EQ(pixels_per_twip(), 1.0 / 15.0);
  EXPECT_EQ(twips(10), 150);
}

TEST_F(Twips, places_are_rounded_at_their_edges) {
  use_small_font();
  EXPECT_EQ(pixels({4440, 315, 2935, 315}), QRect(296, 21, 196, 21));
  EXPECT_EQ(pixels({0, 7, 7, 8}), QRect(0, 0, 0, 1));
  EXPECT_EQ(pixels({8, 8, 15, 15}), QRect(1, 1, 1, 1));
}

TEST_F(Twips, neighbours_keep_touching) {
  use_font(17);
  for (int left = 0; left < 400; ++left) {
    const QRect first = pixels({left, 0, 320, 100});
    const QRect second = pixels({left + 320, 0, 320, 100});
    ASSERT_EQ(first.x() + first.width(), second.x()) << left;
  }
}

TEST_F(Twips, a_larger_font_makes_them_proportionally_longer) {
  const int height = use_font(26);
  ASSERT_GT(height, 13);
  EXPECT_DOUBLE_EQ(pixels_per_twip(), height / 13.0 / 15.0);
  EXPECT_EQ(pixels({0, 0, 1500, 15 * 13}).height(), height);
}

TEST_F(Twips, a_form_is_made_larger_for_a_larger_font) {
  use_small_font();
  testing_aids::Installation app;
  runtime::forms::Desktop desktop(app.path());
  testing_aids::SmallForm form(desktop, {testing_aids::row("Command1", 0, runtime::forms::Kind::CommandButton,
                                                           "Go", {0, 0, 1500, 300})});
  EXPECT_EQ(form->Command1(0).widget()->geometry(), QRect(0, 0, 100, 20));
  form.Unload();
  const int height = use_font(26);
  EXPECT_EQ(form->Command1(0).widget()->width(), pixels({0, 0, 1500, 0}).width());
  EXPECT_GT(form->Command1(0).widget()->width(), 100 * (height - 1) / 13);
  EXPECT_EQ(form->Command1(0).width(), 1500);
  form.unload_without_storing();
  testing_aids::delete_unloaded_forms();
}

}  // namespace
