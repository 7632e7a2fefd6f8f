#include "shell/start_and_exit.h"

#include <QCoreApplication>

#include "shell/module1.h"

namespace shell::mdiform1 {

void MDIForm_Load(Program& program) {
  program.mdiform1.window().showMaximized();
  GoToAppDirectory(program);
}

void Mnu_exit_Click(Program&) {
  QCoreApplication::exit(0);
}

void close_box(Program& program) {
  auto& loaded = program.desktop.loaded_forms;
  while (!loaded.empty()) loaded.front()->Unload();
  QCoreApplication::exit(0);
}

}  // namespace shell::mdiform1
