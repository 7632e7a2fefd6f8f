#include "analysis/run.h"

#include "analysis/run_state.h"

namespace analysis {

bool file_found(const Run& run, const std::string& path) {
  return !run.program.desktop.files.Dir(path).empty();
}

void take_down(Run& run) {
  Program& program = run.program;
  forget_picks(program);
  program.form3.Unload();
  program.form2.Unload();
  program.form1.Unload();
  program.desktop.files.Close(1);
  program.desktop.files.Close(2);
  if (!run.PendingMessage.empty()) program.desktop.MsgBox(run.PendingMessage);
}

}  // namespace analysis
