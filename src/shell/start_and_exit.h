// How the program starts and how it ends.
#pragma once

#include "forms/program.h"

namespace shell::mdiform1 {

using forms::Program;

/// Maximizes the main window and goes to the application directory. No database is opened.
void MDIForm_Load(Program& program);

/// Ends the program at once: no form is unloaded, nothing that they hold is stored. What earlier handlers
/// wrote and could not make durable is tried once more, and a failure told.
void Mnu_exit_Click(Program& program);

/// The close box of the main window: the forms unload in the order in which they were loaded, so what they
/// hold is stored, and the program ends. A fault of the storing, up to its being durable, keeps the program
/// and every form with what it holds.
void close_box(Program& program);

}  // namespace shell::mdiform1
