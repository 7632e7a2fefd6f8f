// What the pick buttons have in common.
#pragma once

#include <functional>
#include <string>

#include "forms/program.h"

namespace analysis::picks {

using forms::Program;
using runtime::forms::CommonDialog;
using runtime::forms::TextBox;

inline constexpr const char* text_files_filter = "(*.txt)|*.txt|All files (*.*)|*.*";
inline constexpr const char* no_such_file = "File does not exist!";

/// Set PickLabel for every control index of a family.
void set_industry_labels(Program& program);
void set_occupation_labels(Program& program);

/// Lets the dialog start in the directory of `path`; a path without a separator leaves it where it was.
void start_in_directory_of(CommonDialog& dialog, const std::string& path);
/// Lets the dialog propose the file name of `path`; a path without a separator leaves the name as it was.
void propose_name_of(CommonDialog& dialog, const std::string& path);

enum class Mode { open, save };
/// Shows the dialog with a title and a filter. A cancel is a fault when the dialog's cancel error is set.
void show(CommonDialog& dialog, Mode mode, const std::string& title, const std::string& filter);

/// Whether the chosen file is there; shows `message` when it is not.
bool file_exists(Program& program, const std::string& path, const std::string& message);
/// Whether the directory of the chosen file is there; shows a box when it is not.
bool directory_exists(Program& program, const std::string& path);

/// A box that holds a good pick is locked, enabled and bold.
void mark_as_picked(TextBox& box);

/// Runs a pick under its trap: a cancel gives the pick's own box its look before the pick back, any other
/// fault is told in a box.
void trapped(Program& program, TextBox& own_box, const std::function<void()>& pick);

}  // namespace analysis::picks
