// The line at the foot of the main window that tells what long work is under way.
#pragma once

#include <string>

class QWidget;

namespace runtime::forms {

/// The object name by which tests and assistive tools find it.
inline constexpr const char* status_line_name = "StatusLine";

/// What the line of `main_window` says; "" when nothing is going on, and without a window.
std::string status_line(const QWidget* main_window);
/// Says something else from here on, to assistive tools, too. Does nothing without a window.
void set_status_line(QWidget* main_window, const std::string& words);
/// Paints it at once, for work that lets nothing else be painted.
void paint_status_line(QWidget* main_window);

}  // namespace runtime::forms
