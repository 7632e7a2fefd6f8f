// Draws what an editor has on its screen, a line a control.
#pragma once

#include <map>
#include <string>

#include "program_test.h"

namespace testing_aids {

/// Name, left, top, width, height and caption of each control that is to be seen, with the control that a
/// click on its caption reaches where that is another one. Widths that follow the window are told by the name
/// that `widths` gives them. The labels of the occupations are one line while they stand beside their rows.
std::string drawn_layout(forms::Program& program, const std::map<int, std::string>& widths);

}  // namespace testing_aids
