// The handlers of Form1, the parameter editor. They set no trap: a fault ends in the run-time error report.
#pragma once

#include "forms/program.h"

namespace parameters {

/// Asks "Return to Main Menu?" and unloads the form on Yes, which stores what its grids hold. No leaves the
/// form as it is. No control of the form may be touched afterwards without loading it anew.
void offer_main_menu(forms::Program& program);

/// Drops what is typed in the open cells where it can't be stored: what the analyst gives up need not be
/// mended first.
void drop_refused_texts(forms::Program& program);

namespace form1 {

void Form_Load(forms::Program& program);

/// Drops a change that is being typed in one of the two leading columns of DBGrid1, whichever editor is on
/// screen.
void KeyColumnGuard(forms::Program& program);
void DBGrid1_Click(forms::Program& program);

// What the grids posted to the tables while the analyst moved about lies outside the transaction that these
// four open: none of them takes it back.
void Command1_Click(forms::Program& program);  ///< "Cancel".
void Command3_Click(forms::Program& program);  ///< "Save", which tests nothing.
/// "Save" of the commuter pair. In the mode share editor it refuses shares that do not total 1 within 0.02;
/// an empty share is fault 94, a word 13, a sum beyond single precision 6.
void Command4_Click(forms::Program& program);
void Command5_Click(forms::Program& program);  ///< "Cancel" of the commuter pair.

// "Restore Defaults", without a question. Each field is stored by itself, so that a fault on the way leaves
// the earlier ones written; rows beyond the defaults stay. Faults: 3021 with too few rows.
void Command2_Click(forms::Program& program);  ///< The costs of the industries.
void Command6_Click(forms::Program& program);  ///< The wages or the mode shares.

}  // namespace form1

}  // namespace parameters
