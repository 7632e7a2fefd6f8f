#include "analysis/picks.h"

#include "analysis/pick_steps.h"
#include "shell/module1.h"

namespace analysis::form3 {

using picks::Mode;

namespace {

/// Adds a pick to the list that the run walks. A pick behind the last entry is a fault, and stays counted.
void add_pick(Program& program, int index, const std::string& path) {
  auto& form3 = program.form3;
  form3.LastPickIndex = static_cast<std::int16_t>(index);
  ++form3.PickCount;
  form3.PickCode(form3.PickCount) = std::to_string(index);
  form3.PickPath(form3.PickCount) = path;
}

/// The verdict on a name that is stored in any case: only its boxes reach the analyst.
void tell_about_name(Program& program, std::string path) {
  shell::CheckFileName(program, path);
}

/// The output file of a page: a path in a directory that exists. The run's button opens.
bool accept_output_file(Program& program, picks::TextBox& box, const std::string& path) {
  if (!picks::directory_exists(program, path)) return false;
  box.set_text(path);
  picks::mark_as_picked(box);
  program.form3->Command2.set_enabled(true);
  program.form3.OutputFile = path;
  return true;
}

/// An input that the run reads from its field of the database.
bool accept_input_file(Program& program, picks::TextBox& box, picks::CommonDialog& dialog,
                       runtime::forms::CommandButton& button) {
  if (!picks::file_exists(program, dialog.file_name, picks::no_such_file)) return false;
  box.set_text(dialog.file_name);
  shell::CommitFileTransaction(program);
  picks::mark_as_picked(box);
  button.set_enabled(false);
  return true;
}

}  // namespace

void Command1_Click(Program& program, int index) {
  shell::GoToAppDirectory(program);
  shell::BeginFileTransaction(program);
  auto& form3 = program.form3;
  auto& dialog = form3->cdbox1;
  auto& box = form3->Text1(index);
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    picks::set_industry_labels(program);
    box.set_visible(true);
    shell::GoToAppDirectory(program);
    const int start = form3.LastPickIndex > 0 ? form3.LastPickIndex : index;
    picks::start_in_directory_of(dialog, form3->Text1(start).text());
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select " + form3.PickLabel(index) + " Trip File",
                picks::text_files_filter);
    if (dialog.flags == picks::CommonDialog::extension_different) {
      program.desktop.MsgBox("File does not exist or file does not have .txt extension!");
      box.set_visible(false);
    } else {
      box.set_text(dialog.file_name);
      shell::CommitFileTransaction(program);
      picks::mark_as_picked(box);
      form3->Command1(index).set_enabled(false);
      add_pick(program, index, dialog.file_name);
    }
    tell_about_name(program, dialog.file_name);
  });
}

void Command10_Click(Program& program, int index) {
  shell::BeginFileTransaction(program);
  auto& form3 = program.form3;
  auto& dialog = form3->cdbox1;
  auto& box = form3->Text5(index);
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    picks::set_occupation_labels(program);
    shell::GoToAppDirectory(program);
    const std::string last = form3->Text5(form3.LastPickIndex).text();
    picks::start_in_directory_of(dialog, last.empty() ? box.text() : last);
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select " + form3.PickLabel(index) + " Trip File",
                picks::text_files_filter);
    if (!accept_input_file(program, box, dialog, form3->Command10(index))) return;
    add_pick(program, index, dialog.file_name);
  });
}

void Command4_Click(Program& program, int index) {
  constexpr int first = 5;
  static constexpr const char* stems[] = {"distance", "base_time", "imp_time"};
  shell::GoToAppDirectory(program);
  auto& form3 = program.form3;
  auto& dialog = form3->cdbox1;
  auto& box = form3->Text1(index);
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    box.set_visible(true);
    picks::start_in_directory_of(dialog, box.text());
    dialog.file_name = box.text();
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::open, std::string("Select ") + stems[index - first] + " File",
                picks::text_files_filter);
    std::string name = dialog.file_name;
    if (!shell::CheckFileName(program, name)) {
      dialog.file_name.clear();
      return;
    }
    if (!picks::file_exists(program, dialog.file_name, "File does not exist !")) return;
    box.set_text(dialog.file_name);
    picks::mark_as_picked(box);
    form3->Command4(index).set_enabled(false);
    form3.PickCode(index) = std::to_string(index);
    form3.PickPath(index) = dialog.file_name;
  });
}

void Command5_Click(Program& program) {
  shell::GoToAppDirectory(program);
  program.desktop.workspace.BeginTrans();
  auto& dialog = program.form3->cdbox1;
  auto& box = program.form3->Text2;
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    box.set_visible(true);
    picks::start_in_directory_of(dialog, box.text());
    dialog.file_name = box.text();
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select output file name", picks::text_files_filter);
    if (accept_output_file(program, box, dialog.file_name)) tell_about_name(program, dialog.file_name);
  });
}

void Command12_Click(Program& program) {
  shell::GoToAppDirectory(program);
  auto& dialog = program.form3->cdbox1;
  auto& box = program.form3->Text6;
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    box.set_visible(true);
    dialog.init_dir = box.text();
    picks::start_in_directory_of(dialog, box.text());
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select output file name", picks::text_files_filter);
    accept_output_file(program, box, dialog.file_name);
  });
}

void Command7_Click(Program& program) {
  shell::GoToAppDirectory(program);
  shell::BeginFileTransaction(program);
  auto& dialog = program.form3->cdbox1;
  auto& box = program.form3->Text3;
  // The cancel error is not asked for here: it only stands from an earlier pick.
  picks::trapped(program, box, [&] {
    picks::start_in_directory_of(dialog, box.text());
    picks::propose_name_of(dialog, box.text());
    program.desktop.workspace.BeginTrans();
    picks::show(dialog, Mode::open, "Select district file name", picks::text_files_filter);
    if (!accept_input_file(program, box, dialog, program.form3->Command7)) return;
    program.form3.DistrictFile = dialog.file_name;
  });
}

void Command9_Click(Program& program) {
  shell::GoToAppDirectory(program);
  shell::BeginFileTransaction(program);
  auto& dialog = program.form3->cdbox1;
  auto& box = program.form3->Text4;
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    box.set_visible(true);
    dialog.init_dir = box.text();
    picks::start_in_directory_of(dialog, box.text());
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select output file name", "(All files (*.*)|*.*");
    accept_input_file(program, box, dialog, program.form3->Command9);
  });
}

void Command15_Click(Program& program) {
  shell::GoToAppDirectory(program);
  shell::BeginFileTransaction(program);
  auto& dialog = program.form3->cdbox1;
  auto& box = program.form3->Text7;
  dialog.cancel_error = true;
  picks::trapped(program, box, [&] {
    box.set_visible(true);
    picks::start_in_directory_of(dialog, box.text());
    picks::propose_name_of(dialog, box.text());
    picks::show(dialog, Mode::save, "Select commodity file name", box.text() + picks::text_files_filter);
    accept_input_file(program, box, dialog, program.form3->Command15);
  });
}

}  // namespace analysis::form3
