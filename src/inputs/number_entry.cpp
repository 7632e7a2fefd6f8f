// Form2 as the entry of the numbers of zones and districts.
#include <QWidget>

#include "inputs/form2.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace inputs::form2 {

using runtime::forms::MaskEdBox;
using runtime::forms::reply_no;
using runtime::forms::reply_yes;
using runtime::forms::yes_no;

namespace {

double value_of(const MaskEdBox& box) {
  return runtime::text::val(box.text());
}

/// As the present record had it when it was read; an empty field counts as 0.
double stored(Program& program, const char* field) {
  return runtime::text::val(runtime::text::joined(program.form2->Data1.field(field)));
}

/// Tells the number of zones that is stored, also when another one was just typed.
void refuse_more_districts_than_zones(Program& program) {
  program.desktop.MsgBox("Number of Districts (" +
                         runtime::text::joined(value_of(program.form2->MaskEdBox2)) +
                         ") greater than Number of Zones! (" +
                         runtime::text::joined(program.form2->Data1.field("numzones")) + ")");
}

bool zones_are_confirmed(Program& program) {
  const auto& zones = program.form2->MaskEdBox1;
  const int answer =
      program.desktop.MsgBox("you have entered " + zones.text() + " zones   Is this correct?", yes_no);
  if (stored(program, "numdstrct") > value_of(zones)) {
    refuse_more_districts_than_zones(program);
    return false;
  }
  return answer != reply_no;
}

bool districts_are_confirmed(Program& program) {
  const auto& districts = program.form2->MaskEdBox2;
  if (stored(program, "numzones") < value_of(districts)) {
    refuse_more_districts_than_zones(program);
    return false;
  }
  const int answer = program.desktop.MsgBox(
      "you have entered " + districts.text() + " districts.  Is this correct?", yes_no);
  return answer != reply_no;
}

bool number_is_confirmed(Program& program) {
  if (program.mdiform1.NumberEntryKind == "zone") return zones_are_confirmed(program);
  if (program.mdiform1.NumberEntryKind == "district") return districts_are_confirmed(program);
  return true;
}

}  // namespace

void Command5_Click(Program& program) {
  shell::BeginFileTransaction(program);
  if (number_is_confirmed(program)) {
    program.form2->MaskEdBox1.Refresh();
    shell::CommitFileTransaction(program);
    program.form2.store();
    program.form2.Unload();
    return;
  }
  shell::RollbackFileTransaction(program);
  program.form2.surface()->update();
}

void Command6_Click(Program& program) {
  shell::BeginFileTransaction(program);
  shell::RollbackFileTransaction(program);
  program.form2->Data1.Refresh();
  program.form2->MaskEdBox1.Refresh();
  if (program.desktop.MsgBox("Return to Main Menu?", yes_no) == reply_yes) program.form2.Unload();
}

}  // namespace inputs::form2
