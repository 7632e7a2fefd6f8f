// Design places are twips; how many pixels a twip is, is one factor for the whole program.
#pragma once

#include <QRect>
#include <QString>
#include <string>

#include "runtime/forms/design.h"

namespace runtime::forms {

/// Pixels per twip: 1/15 at the font for which the forms were designed (lines of 13 pixels) and
/// proportionally more for a larger font of the desktop.
double pixels_per_twip();

/// A place in pixels. Edges are rounded, not sizes, so that neighbours keep touching.
QRect pixels(const Place& place);

/// A length of the screen in twips.
int twips(int pixel_length);

inline QString qt(const std::string& text) {
  return QString::fromStdString(text);
}

}  // namespace runtime::forms
