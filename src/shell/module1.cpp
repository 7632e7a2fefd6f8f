#include "shell/module1.h"

#include <algorithm>

namespace shell {

using runtime::Fault;
using runtime::ignoring_faults;

int RunAndWait(Program& program, const std::string& command) {
  return program.desktop.run_program(command);
}

void GoToAppDirectory(Program& program) {
  ignoring_faults([&] { program.desktop.files.ChDir(program.desktop.app_path); });
}

void EnableMenus(Program& program) {
  program.mdiform1.Inputs.set_enabled(true);
  program.mdiform1.Run.set_enabled(true);
}

void DisableMenus(Program& program) {
  program.mdiform1.Inputs.set_enabled(false);
  program.mdiform1.Run.set_enabled(false);
}

namespace {

runtime::engine::Workspace& shared_workspace(Program& program) {
  if (program.SharedWorkspace == nullptr) throw Fault(91);
  return *program.SharedWorkspace;
}

constexpr std::ptrdiff_t longest_extension = 3;

/// Characters of a UTF-8 text.
std::ptrdiff_t length_of(const std::string& text) {
  return std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; });
}

}  // namespace

void BeginFileTransaction(Program& program) {
  program.SharedWorkspace = &program.desktop.workspace;
  program.SharedWorkspace->BeginTrans();
}

void CommitFileTransaction(Program& program) {
  shared_workspace(program).CommitTrans();
}

void RollbackFileTransaction(Program& program) {
  shared_workspace(program).Rollback();
}

bool CheckFileName(Program& program, std::string& name) {
  const auto dot = name.find('.');
  if (dot != std::string::npos) {
    const std::string extension = name.substr(dot + 1);
    name.resize(dot);
    if (length_of(extension) > longest_extension) {
      program.desktop.MsgBox("The following file extension is too long.\n" + name +
                                 "\nExtensions must have 3 characters or less.",
                             runtime::forms::ok_only, "Error: Check Filename Extension");
      return false;
    }
  }
  if (name.find(' ') != std::string::npos) {
    program.desktop.MsgBox(
        "The following file name and path contains a blank.\n" + name + "\nFilenames must contain no blanks.",
        runtime::forms::ok_only, "Error: Check Blanks in Filename");
    return false;
  }
  return true;
}

void CheckIntegerKey(Program& program, const std::string& text, int index) {
  constexpr char backspace = 8;
  constexpr int fill_value = 4;
  const char last = text.empty() ? '\0' : text.back();
  if (last == backspace || last == '.') return;
  if (last >= '0' && last <= '9') return;
  if (index == fill_value && last == '.') return;  // the fill value takes a point, as by now every box does
  program.desktop.MsgBox("Must enter an integer number", runtime::forms::critical);
  program.frmDataGrid->txt_zonedit(index).set_text("");
}

}  // namespace shell
