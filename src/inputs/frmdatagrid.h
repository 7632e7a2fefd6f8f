// frmDataGrid: the data entry grid, from its load to the choice of a directory for its files.
#pragma once

#include <string_view>

#include "forms/program.h"

namespace inputs::frmdatagrid {

using forms::Program;

/// Pours the skeleton in "trips.csv" into the staging table and shows that. Fault 3129 for a mode word that
/// nobody knows.
void Form_Load(Program& program);

/// Keeps the strip of range controls at the window's lower edge. Faults are passed over.
void Form_Resize(Program& program);

/// Picks the column for the next fill; a key column, and one that is picked already, is passed over.
void grdDataGrid_HeadClick(Program& program, int column);
/// "Clear Fields Selected".
void Command1_Click(Program& program);
/// What was typed into a range box must end in a digit or a point.
void txt_zonedit_Change(Program& program, int index);
/// "Fill with Value".
void cmd_zonedit_Click(Program& program, int index);

void cmdFilter_Click(Program& program);
void cmdSort_Click(Program& program);
void cmdRefresh_Click(Program& program);

/// What the filter and the sort ask first: a recordset of type 0, a table, can do neither. Tells the analyst
/// so, with `verb` "Filter" or "Sort". Nothing gives the grid such a recordset.
bool table_is_refused(Program& program, int recordset_type, std::string_view verb);

/// Asks whether the current row may go; true when it must stay. The grid deletes no rows, so nothing asks.
bool grdDataGrid_BeforeDelete(Program& program);
void grdDataGrid_MouseUp(Program& program, int button);
void DataLu_Validate(Program& program);

/// "Quit-Return to Main Menu": drops what is being typed; the staging table stays.
void Cmdquit_Click(Program& program);

/// The save button: ends the population pass, or leaves the grid for the choice of a directory.
void cmdClose_Click(Program& program);

/// Forgets which columns are picked, but not how many.
void forget_picked_names(Program& program);
/// Forgets the picked columns, on the screen too.
void forget_picks(Program& program);

}  // namespace inputs::frmdatagrid
