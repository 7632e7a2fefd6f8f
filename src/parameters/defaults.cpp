// "Restore Defaults": the calibrated parameters of the study, and how they go over the tables.
#include <array>

#include "parameters/form1.h"
#include "parameters/modes.h"
#include "runtime/engine/recordset.h"
#include "shell/module1.h"

namespace parameters::form1 {

namespace {

using forms::Program;
using runtime::Value;
using runtime::engine::Recordset;

/// Code, elasticity of substitution, value, unit cost, reliability cost, just-in-time factor, load factor.
constexpr std::array<std::array<float, 7>, 4> commercial_defaults{{
    {1, 14.51F, 16765, 25.07F, 430, 1, 90},
    {2, 4.62F, 5469, 25.04F, 50, 1, 95},
    {4, 7.44F, 34682, 25.66F, 50, 1, 95},
    {9, 10.61F, 135, 0, 50, 1, 95},
}};

/// Elasticity of substitution and wage. The code before them is not written.
constexpr std::array<std::array<double, 2>, 12> commuter_defaults{{
    {11.27, 129.6},   // Precision production, craft, and repair
    {11.35, 120.64},  // Transportation and material moving
    {12.25, 175.2},   // Executive, Administrative, and Managerial
    {12.83, 139.2},   // Technicians and Related Support
    {13.04, 98},      // Machine Operaters, Assemblers, Inspectors
    {13.21, 78.32},   // Protective service
    {13.75, 88.24},   // Handlers, equipment cleaners, helpers
    {13.05, 125.2},   // Sales
    {14.57, 179.12},  // Professional Specialty
    {14.66, 101.12},  // Administrative Support
    {16.02, 116.56},  // Private Household
    {16.49, 88.2},    // Other Services
}};

/// The four mode shares and the two parameters of the cost model.
constexpr std::array mode_share_defaults{0.7629, 0.0929, 0.1394, 0.0048, 0.25, 2.38};

/// Each field is an edit of its own: a fault leaves those before it stored.
template <typename Numbers>
void write_record(Recordset& records, int first_field, const Numbers& numbers) {
  int field = first_field;
  for (const auto number : numbers) {
    records.Edit();
    records.set(field++, number);
    records.Update();
  }
}

template <typename Rows>
void write_rows(Recordset& records, int first_field, const Rows& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (row > 0) records.MoveNext();
    write_record(records, first_field, rows[row]);
  }
}

void restore_commuter(Program& program) {
  auto& form1 = program.form1;
  form1->Data4.MoveFirst();
  write_rows(form1->Data4.recordset(), 1, commuter_defaults);
  form1.Refresh();
  form1->Data4.Refresh();
  form1->DBGrid4.Refresh();
  form1->DBGrid4.set_current_row(1);
}

void restore_mode_shares(Program& program) {
  auto& form1 = program.form1;
  // The refresh would store what is being typed, over the defaults.
  form1->DBGrid3.drop_edit();
  write_record(form1->Data3.recordset(), 0, mode_share_defaults);
  form1.Refresh();
  form1->Data3.Refresh();
  form1->DBGrid3.Refresh();
}

}  // namespace

void Command2_Click(Program& program) {
  drop_refused_texts(program);
  program.form1->Data1.post();  // the grid's row, before the move leaves it
  auto& records = program.form1->Data1.recordset();
  records.MoveLast();
  records.MoveFirst();
  write_rows(records, 0, commercial_defaults);
  offer_main_menu(program);
  shell::EnableMenus(program);
}

void Command6_Click(Program& program) {
  drop_refused_texts(program);
  if (program.form1.caption() == commuter_caption) {
    restore_commuter(program);
  } else if (program.form1.caption() == mode_share_caption) {
    restore_mode_shares(program);
  }
  offer_main_menu(program);
  shell::EnableMenus(program);
}

}  // namespace parameters::form1
