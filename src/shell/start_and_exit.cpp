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
  // All are stored before the first one goes: a grid that stays needs the forms that its launcher left.
  for (auto* form : loaded) {
    if (form->design().stores_at_unload) form->store();
  }
  program.desktop.make_durable();
  while (!loaded.empty()) loaded.front()->unload_without_storing();
  program.desktop.end_program(0);
}

}  // namespace shell::mdiform1
