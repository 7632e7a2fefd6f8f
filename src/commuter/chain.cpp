// The chain of the three model programs and the clean-up of their directory.
#include "analysis/verdict.h"
#include "commuter/run.h"
#include "shell/module1.h"

namespace commuter {

namespace {

struct ModelProgram {
  const char* file;
  const char* place;  // in the error text
};

constexpr ModelProgram base_run{"CC.EXE", "first"};
constexpr ModelProgram improvement_run{"CC.EXE", "second"};
constexpr ModelProgram report_run{"OUTPUT1.EXE", "third"};

void change_to_model_directory(Run& run) {
  run.program.desktop.files.ChDir(market.directory);
}

End run_program(Run& run, const ModelProgram& model) {
  if (shell::RunAndWait(run.program, model.file) == 0) return End::go_on;
  const int reply = run.program.desktop.MsgBox(
      std::string("Error executing ") + model.place + " commuter cost program!", runtime::forms::critical);
  run.program.form3.LastReply = std::to_string(reply);
  return End::reset;
}

/// On success `err.txt` stays open under number 1.
End check_verdict(Run& run) {
  const auto error = analysis::read_verdict(run.program.desktop.files, market.verdict_file);
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
  if (run_program(run, base_run) != End::go_on) return End::reset;
  if (check_verdict(run) != End::go_on) return End::reset;
  files.Close(1);
  swap_to_improvement(run);
  change_to_model_directory(run);
  if (run_program(run, improvement_run) != End::go_on) return End::reset;
  if (check_verdict(run) != End::go_on) return End::reset;
  files.Close(1);
  if (run_program(run, report_run) != End::go_on) return End::reset;
  program.form1.Unload();
  if (check_verdict(run) != End::go_on) return End::reset;
  program.desktop.MsgBox("Analysis Completed");
  files.Close(1);
  shell::GoToAppDirectory(program);
  analysis::clean_up(program, market);
  return End::go_on;
}

}  // namespace commuter
