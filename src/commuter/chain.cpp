// The chain of the three model programs and the clean-up of their directory.
#include <array>

#include "commuter/run.h"
#include "commuter/verdict.h"
#include "shell/module1.h"

namespace commuter {

namespace {

using runtime::ignoring_faults;

struct ModelProgram {
  const char* file;
  const char* place;  // in the error text
};

constexpr ModelProgram base_run{"CC.EXE", "first"};
constexpr ModelProgram improvement_run{"CC.EXE", "second"};
constexpr ModelProgram report_run{"OUTPUT1.EXE", "third"};

void change_to_model_directory(Run& run) {
  run.program.desktop.files.ChDir(directory);
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
  const auto error = read_verdict(run.program.desktop.files, "err.txt");
  if (!error) return End::go_on;
  run.program.desktop.MsgBox("error occured in program execution! " + *error);
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

/// The first holds a literal ampersand, so that a file "var.txt" outlives the run; two find nothing that a
/// pattern before them has left.
constexpr std::array clean_up_patterns{
    "/var&*.*",      "/sig*.*",      "/wage*.*",     "/cost*.*",    "/costAL*.*", "/popemp*.*",
    "/base_time*.*", "/imp_time*.*", "/district*.*", "/dist*.*",    "/rel*.*",    "/imp_var*.*",
    "/base_var*.*",  "/ccpar*.*",    "/outpar*.*",   "/costpar*.*",
};

void clean_up(Run& run) {
  for (const char* pattern : clean_up_patterns) {
    ignoring_faults([&] { run.program.desktop.files.Kill(path_of(run, pattern)); });
  }
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
  clean_up(run);
  return End::go_on;
}

}  // namespace commuter
