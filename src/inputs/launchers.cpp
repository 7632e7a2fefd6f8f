#include "inputs/launchers.h"

#include <array>

#include "inputs/grid_mode.h"
#include "inputs/grid_opening.h"
#include "inputs/skeleton.h"
#include "shell/module1.h"

namespace inputs::mdiform1 {

namespace {

struct Boxes {
  int first;
  int last;
};
constexpr Boxes industry_boxes{0, 3};
constexpr Boxes occupation_boxes{4, 16};

void hide(Program& program, const Boxes& boxes) {
  for (int i = boxes.first; i <= boxes.last; ++i) program.form2->Chcktrp(i).set_visible(false);
}

/// What stands beside the boxes, and what assistive tools call the box of the zones.
void label_numbers(Program& program, const char* words) {
  program.form2->Label1.set_caption(words);
  program.form2->MaskEdBox1.set_label(words);
}

void show_zone_box(Program& program) {
  program.form2->MaskEdBox1.set_visible(true);
  program.form2->Label1.set_visible(true);
}

/// In the place of the other one.
void show_district_box(Program& program) {
  auto& form2 = program.form2;
  form2->Label1.set_visible(true);
  label_numbers(program, "Number of Districts");
  form2->MaskEdBox1.set_visible(false);
  form2->MaskEdBox2.set_visible(true);
  form2->MaskEdBox2.set_left(form2->MaskEdBox1.left());
}

/// What the two number entries do not have in common.
struct NumberEntry {
  const char* kind;
  const char* frame_caption;
  void (*show_box)(Program&);
};
constexpr NumberEntry zone_entry{"zone", "Enter Number of Zones", show_zone_box};
constexpr NumberEntry district_entry{"district", "Enter Number of Districts", show_district_box};

void arrange(Program& program, const NumberEntry& entry) {
  auto& form2 = program.form2;
  shell::GoToAppDirectory(program);
  form2.Load();
  form2.Show();
  form2->Command2.set_caption("save");  // not seen: its frame is hidden below
  form2->Command2.set_place({0, 120, 1225, 855});
  entry.show_box(program);
  form2->Frame2.set_visible(false);
  form2->Frame1.set_caption(entry.frame_caption);
  form2->Command1.set_visible(false);
  form2->Command4.set_visible(true);
  form2->Command5.set_visible(true);
  form2->Command5.set_top(1080);
  form2->Command5.set_left(120);
  form2->Command6.set_top(1080);
  form2->Command6.set_left(840);
  form2->Command6.set_visible(true);
  hide(program, industry_boxes);
  hide(program, occupation_boxes);
  program.mdiform1.NumberEntryKind = entry.kind;
}

struct TimesColumn {
  const char* planned_file;
  std::string_view name;
};
constexpr std::array times_columns{
    TimesColumn{"distance.txt", "distance"},
    TimesColumn{"base_time.txt", "Base_Travel_Times"},
    TimesColumn{"imp_time.txt", "Improvement_Travel_Times"},
};

}  // namespace

void Zones_Click(Program& program) {
  arrange(program, zone_entry);
}

void Districts_Click(Program& program) {
  arrange(program, district_entry);
}

void CommerTdata_Click(Program& program) {
  auto& form2 = program.form2;
  shell::GoToAppDirectory(program);
  form2.Show();
  form2->MaskEdBox1.set_tab_stop(false);
  label_numbers(program, "Number of Zones");
  set_mode_word(program, mode::commercial);
  hide(program, occupation_boxes);
}

void Comm_pop_Click(Program& program) {
  auto& form2 = program.form2;
  shell::GoToAppDirectory(program);
  shell::DisableMenus(program);
  form2->Command1.set_visible(false);
  form2->MaskEdBox1.set_tab_stop(false);
  label_numbers(program, "Number of Zones");
  form2->Frame1.set_caption("Choose Occupations for Commuting Sector");
  form2->Data1.set_visible(false);
  hide(program, industry_boxes);
  set_mode_word(program, mode::commuter_data);
  form2->Command3.set_place({120, 1920, 1575, 855});
  form2->Command3.set_visible(true);
  form2.Show();
}

void Times_Click(Program& program) {
  shell::GoToAppDirectory(program);
  const std::int16_t zones = zone_count(program);
  if (zones == 0) {
    program.desktop.MsgBox(no_zones_message);
    return;
  }
  const GridOpening opening(program);
  std::array<std::string_view, times_columns.size()> names;
  for (std::size_t i = 0; i < times_columns.size(); ++i) {
    program.frmdirget->List1.set_list(static_cast<int>(i), times_columns[i].planned_file);
    names[i] = times_columns[i].name;
  }
  copy_template(program, skeleton_of_times);
  opening.go([&] {
    write_skeleton(program, skeleton_of_times, names, zones);
    set_mode_word(program, mode::timdist);
    program.frmDataGrid.Show();
  });
}

}  // namespace inputs::mdiform1
