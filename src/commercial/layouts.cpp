#include "commercial/layouts.h"

#include "analysis/run_state.h"
#include "runtime/fault.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace commercial::mdiform1 {

using forms::Program;
using runtime::ignoring_faults;
using runtime::forms::WindowState;

void Spec_commercial_Click(Program& program) {
  shell::DisableMenus(program);
  shell::GoToAppDirectory(program);
  program.form2.hide();
  const runtime::Value zones = program.form2->Data1.field("numzones");
  if (runtime::text::val(runtime::text::joined(zones)) == 0) {
    program.desktop.MsgBox(analysis::no_zones_message);
    return;
  }
  auto& form3 = program.form3;
  form3.Show();
  form3->Frame1.set_top(form3->Command5.top() + 800);
  form3->Frame1.set_width(form3->Text1(1).width() + form3->Command5.width());
  form3->Command8.set_visible(false);
  form3->Text2.set_visible(true);
  form3->Text2.set_enabled(false);
  for (const int industry : {1, 2, 4, 9}) {
    form3->Text1(industry).set_visible(true);
    form3->Text1(industry).set_enabled(false);
  }
  form3.set_caption("Run Commercial Cost Analysis");
  form3.set_window_state(WindowState::maximized);
}

namespace {

void hide_trip_row(Program& program, int index) {
  ignoring_faults([&] { program.form3->Text1(index).set_visible(false); });
  ignoring_faults([&] { program.form3->Command1(index).set_visible(false); });
}

void lay_out_distance_row(Program& program) {
  auto& form3 = program.form3;
  form3->Command4(5).set_visible(true);
  form3->Text1(5).set_visible(true);
  form3->Command5.set_visible(false);
  form3->Command4(5).set_top(form3->Command1(9).top());
}

void lay_out_commodity_row(Program& program) {
  auto& form3 = program.form3;
  const auto& button = form3->Command4(5);
  form3->Command15.set_visible(true);
  form3->Command15.set_top(button.top() - (button.height() + 100));
  const auto& last = form3->Text1(9);
  form3->Text1(5).set_place(last.place());
  form3->Text1(5).set_enabled(false);
  form3->Text7.set_visible(true);
  form3->Text7.set_top(last.top() - (last.height() + 100));
}

void lay_out_notes(Program& program) {
  auto& form3 = program.form3;
  form3->Label3.set_place({360, 120, 3175, 255});
  form3->Label3.set_visible(true);
  form3->Label4.set_visible(true);
}

}  // namespace

void mnu_tonstotrucks_Click(Program& program) {
  shell::DisableMenus(program);
  shell::GoToAppDirectory(program);
  program.form3->Frame1.set_visible(false);
  for (int index = 1; index <= 9; ++index) hide_trip_row(program, index);
  ignoring_faults([&] { lay_out_distance_row(program); });
  ignoring_faults([&] { lay_out_commodity_row(program); });
  ignoring_faults([&] {
    program.form3.set_caption("Convert Tons to Trucks");
    program.form3->Command13.set_visible(true);
    program.form3->Command14.set_visible(true);
  });
  ignoring_faults([&] { lay_out_notes(program); });
  hide_trip_row(program, 9);
  ignoring_faults([&] { program.form3.Show(); });
}

}  // namespace commercial::mdiform1
