// How the program starts and how it ends.
#pragma once

#include "forms/program.h"

namespace shell::mdiform1 {

using forms::Program;

/// Maximizes the main window and goes to the application directory. No database is opened.
void MDIForm_Load(Program& program);

/// Ends the program at once: no form is unloaded, nothing is stored.
void Mnu_exit_Click(Program& program);

/// The close box of the main window: the forms unload in the order in which they were loaded, so what they
/// hold is stored, and the program ends.
void close_box(Program& program);

}  // namespace shell::mdiform1
