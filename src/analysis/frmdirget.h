// Frmdirget: the chooser of the directory that the grid's files go to.
#pragma once

#include "forms/program.h"

namespace analysis::frmdirget {

using forms::Program;

void Form_Load(Program& program);

/// Shows the directories of the chosen drive; one without a medium is given up without a word.
void drvList_Change(Program& program);
void dirList_Change(Program& program);
/// The highlighted directory becomes the chosen one.
void dirList_LostFocus(Program& program);

/// "S&ave": writes the files of the grid that was left.
void cmdExit_Click(Program& program);
/// "Quit": no files.
void Command1_Click(Program& program);

}  // namespace analysis::frmdirget
