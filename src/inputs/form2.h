// Form2: the number entry and the market choice.
#pragma once

#include "forms/program.h"

namespace inputs::form2 {

/// Maximizes the form; the menu's handlers arrange the rest.
void Form_Load(forms::Program& program);

}  // namespace inputs::form2
