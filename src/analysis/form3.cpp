#include "analysis/form3.h"

#include "analysis/run_state.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace analysis::form3 {

using runtime::ignoring_faults;
using runtime::forms::Place;
using runtime::forms::WindowState;

namespace {

constexpr const char* commuter_mark = "commute";

/// Fields of the records of the run, kept at the first load.
void keep_field_values(Program& program) {
  auto& values = program.form3.SavedFieldValues;
  const auto keep = [&](int entry, int data, int field) {
    ignoring_faults([&] {
      values[static_cast<std::size_t>(entry)] =
          runtime::text::joined(program.form3->Data1(data).field(field));
    });
  };
  for (int i = 5; i <= 7; ++i) keep(i, 1, i - 5);
  for (int i = 0; i <= 4; ++i) keep(i, 0, i);
}

bool is_commuter_page(Program& program) {
  return program.form3->Label2.caption() == commuter_mark;
}

void close_files(Program& program) {
  program.desktop.files.Close(1);
  program.desktop.files.Close(2);
}

}  // namespace

void Form_Load(Program& program) {
  program.form3.set_window_state(WindowState::maximized);
  program.form3.LoadCount = 1;
  shell::GoToAppDirectory(program);
  program.form1.unload_without_storing();
  program.form2.unload_without_storing();
  program.frmDataGrid.unload_without_storing();
  program.frmdirget.unload_without_storing();
  program.form2.hide();
  for (int i = 0; i <= 2; ++i) {
    ignoring_faults([&] { program.form3->Option4(i).set_value(false); });
  }
  ignoring_faults([&] { program.form3->Data1(1).Refresh(); });
  ignoring_faults([&] { program.form3->Data1(0).Refresh(); });
  if (program.form3.LoadCount == 1) keep_field_values(program);
  ignoring_faults([&] { program.form3->Option4(2).set_visible(true); });
  ignoring_faults([&] { program.form3->Option4(0).set_value(true); });
  ++program.form3.LoadCount;
}

void Check1_Click(Program& program) {
  auto& form3 = program.form3;
  if (form3->Check1.value() != 1) {
    form3->Text3.set_visible(false);
    form3->Command7.set_visible(false);
    return;
  }
  form3->Text3.set_visible(true);
  form3->Text3.set_enabled(false);
  form3->Command7.set_visible(true);
  if (is_commuter_page(program)) {
    form3->Command7.set_place({4440, 4200, 2935, 315});
    form3->Text3.set_place({0, 4200, 4335, 315});
  }
}

void Option4_Click(Program& program, int) {
  auto& form3 = program.form3;
  const bool supply_file = form3->Option4(1).value();
  if (supply_file) {
    const bool commuter = is_commuter_page(program);
    form3->Command9.set_place(commuter ? Place{4440, 4480, 2935, 315} : Place{4440, 3000, 1575, 375});
    form3->Text4.set_place(commuter ? Place{0, 4480, 4335, 315} : Place{0, 3000, 4335, 371});
    form3->Text4.set_enabled(false);
  }
  form3->Command9.set_visible(supply_file);
  form3->Text4.set_visible(supply_file);
}

void Command8_Click(Program& program) {
  auto& form3 = program.form3;
  // The labels stand one place off against the boxes: box 5 holds the distance file.
  const std::string summary = "The Base Time File is " + form3->Text1(5).text() + "\r\r" +
                              "The ImprovementTime File is " + form3->Text1(6).text() + "\r\r" +
                              "The Distance File is " + form3->Text1(7).text() + "\r\r" +
                              "Do you wish to continue?";
  if (program.desktop.MsgBox(summary, runtime::forms::yes_no) == runtime::forms::reply_no) return;
  form3.Unload();
  program.form2.Unload();
  shell::EnableMenus(program);
  program.mdiform1.spec_timdist.set_enabled(false);
  program.mdiform1.spec_CuCo.set_enabled(true);
  program.mdiform1.Spec_commercial.set_enabled(true);
  program.mdiform1.spec_comm.set_enabled(true);
  program.mdiform1.Show();
}

void Command3_Click(Program& program) {
  forget_picks(program);
  close_files(program);
  program.form1.Unload();
  program.form3.Unload();
  program.form2.Unload();
  shell::EnableMenus(program);
  program.mdiform1.spec_timdist.set_enabled(true);
  program.mdiform1.spec_CuCo.set_enabled(false);
  program.mdiform1.Show();
}

void Command14_Click(Program& program) {
  forget_picks(program);
  close_files(program);
  program.form3.Unload();
  program.form2.Unload();
  program.form1.Unload();
  shell::EnableMenus(program);
  program.mdiform1.spec_CuCo.set_enabled(false);
  program.mdiform1.Show();
  program.mdiform1.spec_timdist.set_enabled(true);
}

void Command6_Click(Program& program) {
  program.form3.Unload();
  program.form2.Unload();
}

}  // namespace analysis::form3
