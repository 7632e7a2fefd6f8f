#include "shell/start_and_exit.h"

#include "shell/module1.h"

namespace shell::mdiform1 {

void MDIForm_Load(Program& program) {
  program.mdiform1.window().showMaximized();
  GoToAppDirectory(program);
}

void Mnu_exit_Click(Program& program) {
  program.desktop.end_program(0);
}

void close_box(Program& program) {
  auto& loaded = program.desktop.loaded_forms;
  while (!loaded.empty()) loaded.front()->unload_for_good();
  program.desktop.end_program(0);
}

}  // namespace shell::mdiform1
