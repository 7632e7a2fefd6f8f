// The buttons "Run Commercial Analysis" and "Convert Tons to Trucks", and a preparation that no button
// starts.
#pragma once

#include "forms/program.h"

namespace commercial::form3 {

/// Carries a whole commercial analysis from the checks of the choices to its verdict. No trap stands: a fault
/// that no step expects ends in the run-time error report.
void Command2_Click(forms::Program& program);

/// Converts the commodity file in annual tons to truck trips. A fault is reported and ends the program.
void Command13_Click(forms::Program& program);

/// Prepares the directory "truck" in a second layout, asks nothing and starts no program.
void run_commercform3(forms::Program& program);

}  // namespace commercial::form3
