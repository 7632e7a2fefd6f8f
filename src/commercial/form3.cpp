#include "commercial/form3.h"

#include "analysis/run_state.h"
#include "commercial/run.h"
#include "runtime/fault.h"
#include "shell/module1.h"

namespace commercial {

std::string path_of(const Run& run, const std::string& name) {
  return analysis::path_of(run.program, market, name);
}

namespace {

void retry_end(Program& program) {
  program.desktop.files.Close(1);
  program.desktop.files.Close(2);
  if (!program.desktop.err.description.empty()) program.desktop.MsgBox(program.desktop.err.description);
  shell::BeginFileTransaction(program);
  program.form3.Show();
  program.form3.set_window_state(runtime::forms::WindowState::maximized);
}

void reset_end(Run& run) {
  Program& program = run.program;
  analysis::take_down(run);
  runtime::ignoring_faults([&] { run.db.Close(); });
  shell::EnableMenus(program);
  program.mdiform1.spec_CuCo.set_enabled(false);
  program.mdiform1.Show();
  program.mdiform1.spec_timdist.set_enabled(true);
}

}  // namespace

namespace form3 {

void Command2_Click(Program& program) {
  program.form1.hide();
  Run run{program};
  switch (prepare(run)) {
    case End::go_on:
      run_model(run);
      reset_end(run);
      break;
    case End::retry:
      retry_end(program);
      break;
    case End::reset:
      reset_end(run);
      break;
    case End::plain:
      break;
  }
}

}  // namespace form3

}  // namespace commercial
