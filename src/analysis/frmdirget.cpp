#include "analysis/frmdirget.h"

#include <QWidget>

#include "inputs/grid_save.h"
#include "runtime/forms/form_size.h"
#include "shell/module1.h"

namespace analysis::frmdirget {

namespace {

/// Children take the colour on, unless they have one of their own for that role.
void paint_light_grey(QWidget& widget, QPalette::ColorRole role) {
  QPalette colours = widget.palette();
  colours.setColor(role, QColor(0xC0, 0xC0, 0xC0));
  widget.setPalette(colours);
}

}  // namespace

void Form_Load(Program& program) {
  paint_light_grey(*program.frmdirget.surface(), QPalette::Window);
  paint_light_grey(*program.frmdirget->cmdExit.widget(), QPalette::Button);
  runtime::forms::move_to(program.frmdirget, 0, 0);
}

void drvList_Change(Program& program) {
  auto& drives = program.frmdirget->drvList;
  auto& directories = program.frmdirget->dirList;
  // A drive stands for the directory at which one is on it, as it does behind the trap below.
  if (drives.is_drive_of(directories.path())) return;
  try {
    directories.set_path(drives.drive());
  } catch (const runtime::Fault&) {
    drives.set_drive(directories.path());
  }
}

void dirList_Change(Program&) {}

void dirList_LostFocus(Program& program) {
  auto& directories = program.frmdirget->dirList;
  directories.set_path(directories.highlighted());
}

void cmdExit_Click(Program& program) {
  inputs::frmdatagrid::savfle(program);
  program.frmdirget.Unload();
  shell::EnableMenus(program);
}

void Command1_Click(Program& program) {
  program.frmdirget.Unload();
  shell::EnableMenus(program);
}

}  // namespace analysis::frmdirget
