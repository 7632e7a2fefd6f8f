#include "runtime/forms/twips.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace runtime::forms {

namespace {
constexpr double design_line_height = 13.0;  // pixels of one line in the font of the design
constexpr double design_twips_per_pixel = 15.0;

int rounded(double value) {
  return static_cast<int>(std::lround(value));
}
}  // namespace

double pixels_per_twip() {
  const double line_height = QFontMetrics(QApplication::font()).height();
  return std::max(line_height, design_line_height) / design_line_height / design_twips_per_pixel;
}

QRect pixels(const Place& place) {
  const double scale = pixels_per_twip();
  const int left = rounded(place.left * scale);
  const int top = rounded(place.top * scale);
  const int right = rounded((place.left + place.width) * scale);
  const int bottom = rounded((place.top + place.height) * scale);
  return {left, top, right - left, bottom - top};
}

int twips(int pixel_length) {
  return rounded(pixel_length / pixels_per_twip());
}

}  // namespace runtime::forms
