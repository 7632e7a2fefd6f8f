// The window buttons that a maximised form puts beside the menu.
#pragma once

class QMainWindow;

namespace runtime::forms {

/// What stands there of the active form: nothing, or the one button that makes it a window again.
enum class MenuBarButtons { none, restore };

/// A form that fills the main window has no title bar; Qt puts its icon and its buttons, a close box among
/// them, into the corners of the menu bar.
void show_in_menu_bar(const QMainWindow& main_window, MenuBarButtons buttons);

}  // namespace runtime::forms
