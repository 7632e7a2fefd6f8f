#include "analysis/pick_steps.h"

#include <array>

#include "runtime/fault.h"
#include "runtime/files/path_names.h"

namespace analysis::picks {

namespace {

struct Label {
  int index;
  const char* words;
};

constexpr std::array industry_labels{
    Label{1, "Agriculture"},
    Label{2, "Mining"},
    Label{4, "Manufacturing"},
    Label{9, "Service"},
};

constexpr std::array occupation_labels{
    Label{0, "Precision_Production"},
    Label{1, "Transportation"},
    Label{2, "Executive,Admin,Managerial"},
    Label{3, "Technician"},
    Label{4, "Operators,Assemblers,Inspectors"},
    Label{5, "Protective Services"},
    Label{6, "Handlers,Cleaners,Laborers"},
    Label{7, "Sales"},
    Label{8, "Professional_Specialty"},
    Label{9, "Admin_Support"},
    Label{10, "Private_Household_Services"},
    Label{11, "Other_Services"},
};

}  // namespace

void set_industry_labels(Program& program) {
  for (const Label& label : industry_labels) program.form3.PickLabel(label.index) = label.words;
}

void set_occupation_labels(Program& program) {
  for (const Label& label : occupation_labels) program.form3.PickLabel(label.index) = label.words;
}

void start_in_directory_of(CommonDialog& dialog, const std::string& path) {
  if (const auto directory = runtime::files::directory_of(path)) dialog.init_dir = *directory;
}

void propose_name_of(CommonDialog& dialog, const std::string& path) {
  if (const auto name = runtime::files::file_name_of(path)) dialog.file_name = *name;
}

void show(CommonDialog& dialog, Mode mode, const std::string& title, const std::string& filter) {
  dialog.dialog_title = title;
  dialog.filter = filter;
  dialog.flags = CommonDialog::no_change_directory;
  if (mode == Mode::open) {
    dialog.ShowOpen();
  } else {
    dialog.ShowSave();
  }
}

bool file_exists(Program& program, const std::string& path, const std::string& message) {
  if (!program.desktop.files.Dir(path).empty()) return true;
  program.desktop.MsgBox(message);
  return false;
}

bool directory_exists(Program& program, const std::string& path) {
  const std::string directory(runtime::files::directory_of(path).value_or(""));
  const auto& files = program.desktop.files;
  if (!files.Dir(directory, runtime::files::Files::directory_attribute).empty()) return true;
  program.desktop.MsgBox("Directory " + directory + " does not exist!");
  return false;
}

void mark_as_picked(TextBox& box) {
  box.set_locked(true);
  box.set_enabled(true);
  box.set_bold(true);
}

void trapped(Program& program, TextBox& own_box, const std::function<void()>& pick) {
  program.desktop.err.clear();
  try {
    pick();
  } catch (const runtime::Fault& fault) {
    program.desktop.err.set(fault);
    if (fault.number == CommonDialog::cancel_fault) {
      own_box.set_enabled(false);
      own_box.set_bold(false);
    } else {
      program.desktop.MsgBox(fault.what());
    }
  }
}

}  // namespace analysis::picks
