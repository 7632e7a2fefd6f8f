#include "analysis/layouts.h"

#include <array>

#include "analysis/run_state.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace analysis::mdiform1 {

using runtime::ignoring_faults;

namespace {

void hide_for_time_and_distance(Program& program) {
  auto& form3 = program.form3;
  form3->Line1.set_visible(false);
  form3->Command3.set_caption("Quit");
  form3->Frame1.set_visible(true);
  for (int i = 0; i <= 2; ++i) form3->Option4(i).set_visible(false);
  form3->Label1.set_visible(false);
  form3->Check1.set_visible(false);
  form3->Frame1.set_caption("Save or Quit");
  form3->Command2.set_visible(false);
  form3->Command5.set_visible(false);
  form3->Text2.set_visible(false);
}

/// Hides the rows of the trip files; the indices without a control fault and are passed over.
void hide_trip_rows(Program& program, int last) {
  for (int i = 1; i <= last; ++i) {
    ignoring_faults([&] { program.form3->Text1(i).set_visible(false); });
    ignoring_faults([&] { program.form3->Command1(i).set_visible(false); });
  }
}

void lay_out_path_row(Program& program, int index, int row) {
  auto& form3 = program.form3;
  auto& box = form3->Text1(index);
  const auto& first = form3->Text1(1);
  box.set_visible(true);
  box.set_place({first.left(), row * 400, first.width(), first.height()});
  box.set_enabled(false);
  form3->Command4(index).set_visible(true);
  form3->Command4(index).set_top(box.top());
}

void lay_out_save_and_quit(Program& program) {
  auto& form3 = program.form3;
  constexpr int rows = 3;
  form3->Frame1.set_top(form3->Text1(8).height() + rows * 430);
  form3->Frame1.set_left(form3->Text1(1).left());
  // The frame's width would follow Command4(1), which the form does not have: it keeps the width it has.
  ignoring_faults([&] { form3->Frame1.set_width(form3->Command4(1).width() + form3->Text1(5).width()); });
  form3->Command8.set_place({1200, form3->Command3.top(), form3->Command3.width(), form3->Command8.height()});
  form3->Command3.set_left(form3->Command8.left() + form3->Command8.width() + 100);
  form3->Command2.set_visible(false);
  form3->Command6.set_place(form3->Command2.place());
}

constexpr std::array occupation_captions{
    "Precision Production",
    "Transportation",
    "Executive,Admin,Managerial",
    "Technician",
    "Operators,Assemblers,Inspectors",
    "Protective Services",
    "Handlers,Cleaners,Laborers",
    "Sales",
    "Professional Specialty",
    "Admin Support",
    "Private Household Services",
    "Other Services",
    "Output File Name",
};

constexpr int row_pitch = 320;
constexpr int occupations = 12;
constexpr double occupation_font_size = 3;

void lay_out_occupation_row(Program& program, int index) {
  auto& button = program.form3->Command10(index);
  auto& box = program.form3->Text5(index);
  button.set_font_size(occupation_font_size);
  box.set_font_size(occupation_font_size);
  button.set_visible(true);
  box.set_visible(true);
  button.set_place({4440, index * row_pitch, 2935, 315});
  box.set_place({0, index * row_pitch, 4335, 315});
  box.set_enabled(false);
}

void lay_out_output_row(Program& program) {
  auto& form3 = program.form3;
  constexpr int top = occupations * row_pitch + 1;
  form3->Command12.set_visible(true);
  form3->Command12.set_place({4440, top, 2935, 315});
  form3->Command12.set_caption("Output File");
  form3->Text6.set_visible(true);
  form3->Text6.set_place({0, top, 4335, 315});
  form3->Text6.set_enabled(false);
}

void lay_out_commuter_run(Program& program) {
  auto& form3 = program.form3;
  form3->Command8.set_visible(false);
  form3->Command2.set_visible(false);
  form3->Command11.set_visible(true);
  form3->Command11.set_place(form3->Command2.place());
}

}  // namespace

void spec_timdist_Click(Program& program) {
  shell::GoToAppDirectory(program);
  shell::DisableMenus(program);
  program.form2.hide();
  if (zone_count(program) == 0) {
    program.desktop.MsgBox(no_zones_message);
    return;
  }
  hide_for_time_and_distance(program);
  hide_trip_rows(program, 10);
  int row = 0;
  for (int index = 5; index <= 7; ++index) {
    ++row;
    ignoring_faults([&] { lay_out_path_row(program, index, row); });
  }
  ignoring_faults([&] { lay_out_save_and_quit(program); });
  ignoring_faults([&] { program.form3.set_caption("Specify Time and Distance Files"); });
  ignoring_faults([&] { program.form3.Show(); });
}

void spec_comm_Click(Program& program) {
  shell::DisableMenus(program);
  shell::GoToAppDirectory(program);
  program.form2.hide();
  const runtime::Value zones = program.form2->Data1.field("numzones");
  if (runtime::text::val(runtime::text::joined(zones)) == 0) {
    program.desktop.MsgBox(no_zones_message);
    return;
  }
  program.form3.Show();
  program.form3.set_caption("Perform Commuter Cost Analysis");
  hide_trip_rows(program, 9);
  for (int index = 0; index < occupations; ++index) {
    ignoring_faults([&] { lay_out_occupation_row(program, index); });
  }
  ignoring_faults([&] { lay_out_output_row(program); });
  ignoring_faults([&] { program.form3->Frame1.set_place({0, 4800, 7270, program.form3->Frame1.height()}); });
  for (int index = 0; index <= occupations; ++index) {
    ignoring_faults([&] {
      program.form3->Command10(index).set_caption(occupation_captions[static_cast<std::size_t>(index)]);
    });
  }
  ignoring_faults([&] { lay_out_commuter_run(program); });
  ignoring_faults([&] { program.form3->Label2.set_caption("commute"); });
}

}  // namespace analysis::mdiform1
