// The commuter run: what its driver and its chain of model programs share.
#pragma once

#include <string>

#include "analysis/market.h"
#include "analysis/run.h"

namespace commuter {

using analysis::Run;
using forms::Program;

/// The commuter market's row of the table of what differs between the markets.
extern const analysis::Market market;

/// How a stretch of the handler ended.
enum class End {
  go_on,  // no end yet: the next step follows
  retry,  // the form stays with its picks
  reset,  // the picks are forgotten, the forms go, the workflow starts anew
  bail,   // the forms go, the picks stay counted
};

/// The path of a model file; `name` brings its own leading "/".
std::string path_of(const Run& run, const std::string& name);

/// Write the speed and highway share of a case from the first row of the speeds table.
void write_base_variation(Run& run);
void write_improvement_variation(Run& run);

/// Checks what was chosen, writes the model files and asks whether to go on.
End prepare(Run& run);

/// Runs the three model programs and clears their directory. Faults up to the clean-up belong to the trap.
End run_chain(Run& run);

/// The ways out.
void retry_end(Program& program);
void reset_end(Run& run);

}  // namespace commuter
