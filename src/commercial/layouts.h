// The commercial page and the truck page of Form3.
#pragma once

#include "forms/program.h"

namespace commercial::mdiform1 {

/// The commercial page.
void Spec_commercial_Click(forms::Program& program);
/// The page of the conversion of tons to trucks.
void mnu_tonstotrucks_Click(forms::Program& program);

}  // namespace commercial::mdiform1
