// The commands of the "Inputs" menu that lead to numbers and zone data. Each arranges Form2 for its job and
// repeats nothing that another one has set: on a form that is still loaded, what the last launch left stays.
#pragma once

#include "forms/program.h"

namespace inputs::mdiform1 {

using forms::Program;

/// "Edit Number of Zones ".
void Zones_Click(Program& program);
/// "Edit Number of Districts".
void Districts_Click(Program& program);
/// "Travel Times and Distances": goes past Form2 straight to the grid.
void Times_Click(Program& program);
/// "Create Population and Employment by Occupation".
void Comm_pop_Click(Program& program);
/// "Create Trip Data by Industry".
void CommerTdata_Click(Program& program);

}  // namespace inputs::mdiform1
