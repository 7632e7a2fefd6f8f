// The one model program of the commercial run, its verdict and the clean-up.
#include "analysis/model_run.h"
#include "commercial/run.h"
#include "shell/module1.h"

namespace commercial {

namespace {

/// The verdict file stays open under number 1 until the run's end.
void tell_verdict(Run& run, analysis::ModelRun& model) {
  const auto error = model.verdict();
  run.program.desktop.MsgBox(error ? market.refused + *error : "Analysis Completed");
}

}  // namespace

void run_model(Run& run) {
  Program& program = run.program;
  program.desktop.files.ChDir(market.directory);
  analysis::ModelRun model(program, "output.exe", market.verdict_file);
  if (model.exit_code() != 0) {
    program.desktop.MsgBox("Error executing commercial cost program!", runtime::forms::critical);
    return;
  }
  tell_verdict(run, model);
  shell::GoToAppDirectory(program);
  analysis::clean_up(program, market);
}

}  // namespace commercial
