// The button "Run Commuter Analysis".
#pragma once

#include "forms/program.h"

namespace commuter::form3 {

/// Carries a whole commuter analysis from the checks of the choices to "Analysis Completed".
void Command11_Click(forms::Program& program);

}  // namespace commuter::form3
