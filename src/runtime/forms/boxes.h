// The modal boxes. Their object names are relied on by tests and assistive tools. One shows at most 1,000
// characters; what a longer text has behind them comes up with "Show Details...".
#pragma once

#include <string>

class QWidget;

namespace runtime {
class Fault;
}

namespace runtime::forms {

/// "MsgBox": shows `prompt` as plain text with the buttons and the icon of `style`; returns the reply's
/// number.
int show_message(QWidget* parent, const std::string& prompt, int style, const std::string& title);

/// "InputBox": asks for a line of text; returns "" when it is cancelled.
std::string ask_for_text(QWidget* parent, const std::string& prompt, const std::string& title);

/// "RuntimeError": the report of a fault that no trap took.
void show_runtime_error(QWidget* parent, const Fault& fault, const std::string& title);

}  // namespace runtime::forms
