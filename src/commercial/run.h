// The commercial run: what its driver's steps share.
#pragma once

#include <string>

#include "analysis/market.h"
#include "analysis/run.h"

namespace commercial {

using analysis::Run;
using forms::Program;

/// The commercial market's row of the table of what differs between the markets.
extern const analysis::Market market;

/// How a stretch of the driver ended.
enum class End {
  go_on,  // no end yet: the next step follows
  plain,  // nothing is closed, cleared or undone
  retry,  // the form stays with its picks
  reset,  // the picks are forgotten, the forms go, the workflow starts anew
};

/// The path of a model file; `name` brings its own leading "/".
std::string path_of(const Run& run, const std::string& name);

/// Checks what was chosen, writes the model files and asks whether to go on.
End prepare(Run& run);

/// Runs the model program, tells its verdict and clears its directory.
void run_model(Run& run);

}  // namespace commercial
