// The one model program of the commercial run, its verdict and the clean-up.
#include "analysis/verdict.h"
#include "commercial/run.h"
#include "shell/module1.h"

namespace commercial {

namespace {

/// The verdict file stays open under number 1 until the run's end.
void tell_verdict(Run& run) {
  auto& desktop = run.program.desktop;
  const auto error = analysis::read_verdict(desktop.files, market.verdict_file);
  desktop.MsgBox(error ? market.refused + *error : "Analysis Completed");
}

}  // namespace

void run_model(Run& run) {
  Program& program = run.program;
  program.desktop.files.ChDir(market.directory);
  if (shell::RunAndWait(program, "output.exe") != 0) {
    program.desktop.MsgBox("Error executing commercial cost program!", runtime::forms::critical);
    return;
  }
  tell_verdict(run);
  shell::GoToAppDirectory(program);
  analysis::clean_up(program, market);
}

}  // namespace commercial
