// Module1: the procedures that every form calls.
#pragma once

#include <string>

#include "forms/program.h"

namespace shell {

using forms::Program;

/// Starts an external program by its bare name in the current directory and waits for it without limit.
/// Returns its exit code, -1 when it can't be started.
int RunAndWait(Program& program, const std::string& command);

/// Makes the application directory the current one. Faults are passed over.
void GoToAppDirectory(Program& program);

/// Switch the menus `Inputs` and `Run` together.
void EnableMenus(Program& program);
void DisableMenus(Program& program);

/// Brackets of a database transaction. They keep no count: nesting is the engine's. Ending one before the
/// first was begun is fault 91.
void BeginFileTransaction(Program& program);
void CommitFileTransaction(Program& program);
void RollbackFileTransaction(Program& program);

/// Whether a file name may be used: an extension of at most 3 characters behind the first dot, no blank
/// before it. Shows a box when it may not. Cuts `name` at its first dot.
bool CheckFileName(Program& program, std::string& name);

/// Lets a text pass that ends in a digit or a point; any other one gets a message, and the box
/// frmDataGrid.txt_zonedit(index) is emptied.
void CheckIntegerKey(Program& program, const std::string& text, int index);

}  // namespace shell
