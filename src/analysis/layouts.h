// The pages of Form3 that the "Run Model" menu opens: each dresses the form for its page.
#pragma once

#include "forms/program.h"

namespace analysis::mdiform1 {

using forms::Program;

/// The time and distance page.
void spec_timdist_Click(Program& program);
/// The commuter page.
void spec_comm_Click(Program& program);

}  // namespace analysis::mdiform1
