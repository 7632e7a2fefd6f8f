// What the data entry grid leaves behind: the text files that the models read. These procedures run when the
// grid's form is unloaded already and use its variables alone, never its controls.
#pragma once

#include "forms/program.h"

namespace inputs::frmdatagrid {

using forms::Program;

/// Writes the files of the present mode into the directory that the chooser shows. An unknown mode word
/// writes nothing. Faults are the caller's: what was written by then stays.
void savfle(Program& program);

/// One "trips_" file for each chosen industry, the origins renumbered before.
void savcommercial(Program& program);
/// One "commute _" file for each chosen occupation.
void savcommuter(Program& program);
/// "distance.txt", "base_time.txt" and "imp_time.txt".
void savtimdist(Program& program);
/// "commutrip.txt". Nothing on the screen leads here.
void savcommutrip(Program& program);

}  // namespace inputs::frmdatagrid
