// Form2: the number entry and the market choice. The menu's handlers arrange the form for one of the two.
#pragma once

#include "forms/program.h"

namespace inputs::form2 {

using forms::Program;

/// Maximizes the form.
void Form_Load(Program& program);
/// Lets the frame fill the form. Nothing on the screen can be dragged, so nothing leads here.
void Frame1_DragDrop(Program& program);

/// Number entry: "Save", after a confirmation. More districts than zones are refused.
void Command5_Click(Program& program);
/// Number entry: "Cancel " puts the stored numbers back.
void Command6_Click(Program& program);

/// Market choice: the ticked industries become the rows of their table and the columns of the grid.
void Command1_Click(Program& program);
/// The same for the occupations.
void Command3_Click(Program& program);
/// Market choice: "Quit-Return to Main Menu".
void Command2_Click(Program& program);
/// A second such button, which no launcher leaves to be seen by itself.
void Command4_Click(Program& program);

}  // namespace inputs::form2
