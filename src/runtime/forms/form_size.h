// How large the window of a loaded form is, and where it stands.
#pragma once

namespace runtime::forms {

class FormBase;
class FormWindow;

FormWindow& window_of(const FormBase& form);

/// The width and height of a form's window, its frame included, in twips; of an icon those of the window that
/// it stands for.
int width_of(const FormBase& form);
int height_of(const FormBase& form);

/// Moves a form's window to a place in the main window, in twips.
void move_to(const FormBase& form, int left, int top);

/// Whether a form is an icon, by the program's will or by the analyst's.
bool is_minimized(const FormBase& form);

}  // namespace runtime::forms
