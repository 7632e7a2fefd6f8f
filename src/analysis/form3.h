// Form3: its load, its options, and the buttons that leave its pages.
#pragma once

#include "forms/program.h"

namespace analysis::form3 {

using forms::Program;

void Form_Load(Program& program);

/// The check box of the district file shows and hides its row.
void Check1_Click(Program& program);
/// The options of the reliability analysis show and hide the row of the reliability file.
void Option4_Click(Program& program, int index);

/// Save of the time and distance page.
void Command8_Click(Program& program);
/// Quit of every page but the truck page.
void Command3_Click(Program& program);
/// Quit of the truck page.
void Command14_Click(Program& program);
/// A second Save that no page shows.
void Command6_Click(Program& program);

}  // namespace analysis::form3
