#include "commuter/form3.h"

#include "analysis/run_state.h"
#include "commuter/run.h"
#include "runtime/fault.h"
#include "shell/module1.h"

namespace commuter {

using runtime::forms::WindowState;

std::string path_of(const Run& run, const std::string& name) {
  return analysis::path_of(run.program, market, name);
}

void retry_end(Program& program) {
  // Number 3 is not known here: what stands open under it stays open. A full disk was a fault already.
  runtime::ignoring_faults([&] { program.desktop.files.Close(1); });
  runtime::ignoring_faults([&] { program.desktop.files.Close(2); });
  shell::BeginFileTransaction(program);
  program.form3.Show();
  program.form3.set_window_state(WindowState::maximized);
}

void reset_end(Run& run) {
  Program& program = run.program;
  analysis::take_down(run);
  run.db.Close();
  shell::EnableMenus(program);
  analysis::reopen_time_and_distance(program);
  program.mdiform1.Show();
}

namespace {

/// The forms go, and the run state with its count of picks stays.
void bail_end(Program& program) {
  program.form2.Unload();
  program.form3.Unload();
  shell::EnableMenus(program);
}

End prepare_and_run(Run& run) {
  const End end = prepare(run);
  return end == End::go_on ? run_chain(run) : end;
}

}  // namespace

namespace form3 {

void Command11_Click(Program& program) {
  program.desktop.err.clear();
  program.form3.set_window_state(WindowState::maximized);
  shell::GoToAppDirectory(program);
  program.form1.hide();
  Run run{program};
  bool completed = false;
  try {
    const End end = prepare_and_run(run);
    completed = end == End::go_on;
    if (end == End::retry) retry_end(program);
    if (end == End::bail) bail_end(program);
    if (end == End::reset) reset_end(run);
  } catch (const runtime::Fault& fault) {
    // Whatever went wrong, the analyst keeps the page with its picks; nothing is told.
    program.desktop.err.set(fault);
    retry_end(program);
  }
  // Behind the clean-up no trap stands any more.
  if (completed) reset_end(run);
}

}  // namespace form3

}  // namespace commuter
