// The eight buttons of Form3 that name the files of a run. Each opens the file dialog where the last choice
// was made, tests the chosen path, and puts it into a bound box and into the run state.
#pragma once

#include "forms/program.h"

namespace analysis::form3 {

using forms::Program;

/// A trip file of an industry; the index is the industry's number.
void Command1_Click(Program& program, int index);
/// The population and employment file of an occupation; the index is the occupation's code.
void Command10_Click(Program& program, int index);
/// The distance file (5), the base time file (6) or the improvement time file (7).
void Command4_Click(Program& program, int index);
/// The output file of the commercial page.
void Command5_Click(Program& program);
/// The output file of the commuter page.
void Command12_Click(Program& program);
/// The district file.
void Command7_Click(Program& program);
/// The reliability file.
void Command9_Click(Program& program);
/// The commodity file.
void Command15_Click(Program& program);

}  // namespace analysis::form3
