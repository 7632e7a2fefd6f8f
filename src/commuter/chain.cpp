// The chain of the three model programs and the clean-up of their directory.
#include "analysis/model_run.h"
#include "commuter/run.h"
#include "shell/module1.h"

namespace commuter {

namespace {

using analysis::ModelRun;

constexpr const char* cost_program = "CC.EXE";
constexpr const char* report_program = "OUTPUT1.EXE";

void change_to_model_directory(Run& run) {
  run.program.desktop.files.ChDir(market.directory);
}

/// `place`: that of the program in the chain, for the error text.
End run_program(Run& run, ModelRun& model, const char* place) {
  if (model.exit_code() == 0) return End::go_on;
  const int reply = run.program.desktop.MsgBox(
      std::string("Error executing ") + place + " commuter cost program!", runtime::forms::critical);
  run.program.form3.LastReply = std::to_string(reply);
  return End::reset;
}

/// On success `err.txt` stays open under number 1.
End check_verdict(Run& run, ModelRun& model) {
  const auto error = model.verdict();
  if (!error) return End::go_on;
  run.program.desktop.MsgBox(market.refused + *error);
  return End::reset;
}

/// The inputs of the improvement case take the place of those of the base case.
void swap_to_improvement(Run& run) {
  shell::GoToAppDirectory(run.program);
  if (run.program.form3->Option4(0).value()) write_improvement_variation(run);
  const auto& files = run.program.desktop.files;
  files.Kill(path_of(run, "/ccpar.txt"));
  files.Name(path_of(run, "/ccpar2.txt"), path_of(run, "/ccpar.txt"));
}

}  // namespace

End run_chain(Run& run) {
  Program& program = run.program;
  auto& files = program.desktop.files;
  change_to_model_directory(run);
  ModelRun base(program, cost_program, market.verdict_file);
  if (run_program(run, base, "first") != End::go_on) return End::reset;
  if (check_verdict(run, base) != End::go_on) return End::reset;
  files.Close(1);
  swap_to_improvement(run);
  change_to_model_directory(run);
  ModelRun improvement(program, cost_program, market.verdict_file);
  if (run_program(run, improvement, "second") != End::go_on) return End::reset;
  if (check_verdict(run, improvement) != End::go_on) return End::reset;
  files.Close(1);
  ModelRun report(program, report_program, market.verdict_file);
  if (run_program(run, report, "third") != End::go_on) return End::reset;
  program.form1.Unload();
  if (check_verdict(run, report) != End::go_on) return End::reset;
  program.desktop.MsgBox("Analysis Completed");
  files.Close(1);
  shell::GoToAppDirectory(program);
  analysis::clean_up(program, market);
  return End::go_on;
}

}  // namespace commuter
