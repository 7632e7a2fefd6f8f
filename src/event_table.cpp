#include "event_table.h"

#include <array>

#include "analysis/form3.h"
#include "analysis/frmdirget.h"
#include "analysis/layouts.h"
#include "analysis/picks.h"
#include "commercial/form3.h"
#include "commercial/layouts.h"
#include "commuter/form3.h"
#include "inputs/form2.h"
#include "inputs/frmdatagrid.h"
#include "inputs/launchers.h"
#include "parameters/form1.h"
#include "parameters/modes.h"
#include "shell/start_and_exit.h"

namespace quelar {

namespace {

using forms::Program;
using runtime::forms::Event;

constexpr std::array menu_table{
    MenuTableRow{"Zones", inputs::mdiform1::Zones_Click},
    MenuTableRow{"Districts", inputs::mdiform1::Districts_Click},
    MenuTableRow{"Times", inputs::mdiform1::Times_Click},
    MenuTableRow{"Comm_pop", inputs::mdiform1::Comm_pop_Click},
    MenuTableRow{"CommerTdata", inputs::mdiform1::CommerTdata_Click},
    MenuTableRow{"mnu_tonstotrucks", commercial::mdiform1::mnu_tonstotrucks_Click},
    MenuTableRow{"commute_param_sw", parameters::mdiform1::commute_param_sw_Click},
    MenuTableRow{"Commute_param_ms", parameters::mdiform1::Commute_param_ms_Click},
    MenuTableRow{"Commerparam", parameters::mdiform1::Commerparam_Click},
    MenuTableRow{"mnu_rel", parameters::mdiform1::mnu_rel_Click},
    MenuTableRow{"spec_timdist", analysis::mdiform1::spec_timdist_Click},
    MenuTableRow{"spec_comm", analysis::mdiform1::spec_comm_Click},
    MenuTableRow{"Spec_commercial", commercial::mdiform1::Spec_commercial_Click},
    MenuTableRow{"Mnu_exit", shell::mdiform1::Mnu_exit_Click},
};

constexpr std::array form1_table{
    EventTableRow{"", Event::Load, parameters::form1::Form_Load},
    EventTableRow{"DBGrid1", Event::Click, parameters::form1::DBGrid1_Click},
    EventTableRow{"Command1", Event::Click, parameters::form1::Command1_Click},
    EventTableRow{"Command2", Event::Click, parameters::form1::Command2_Click},
    EventTableRow{"Command3", Event::Click, parameters::form1::Command3_Click},
    EventTableRow{"Command4", Event::Click, parameters::form1::Command4_Click},
    EventTableRow{"Command5", Event::Click, parameters::form1::Command5_Click},
    EventTableRow{"Command6", Event::Click, parameters::form1::Command6_Click},
};

constexpr std::array form2_table{
    EventTableRow{"", Event::Load, inputs::form2::Form_Load},
    EventTableRow{"Command1", Event::Click, inputs::form2::Command1_Click},
    EventTableRow{"Command2", Event::Click, inputs::form2::Command2_Click},
    EventTableRow{"Command3", Event::Click, inputs::form2::Command3_Click},
    EventTableRow{"Command4", Event::Click, inputs::form2::Command4_Click},
    EventTableRow{"Command5", Event::Click, inputs::form2::Command5_Click},
    EventTableRow{"Command6", Event::Click, inputs::form2::Command6_Click},
};

constexpr std::array form3_table{
    EventTableRow{"", Event::Load, analysis::form3::Form_Load},
    EventTableRow{"Check1", Event::Click, analysis::form3::Check1_Click},
    EventTableRow{"Option4", Event::Click, analysis::form3::Option4_Click},
    EventTableRow{"Command1", Event::Click, analysis::form3::Command1_Click},
    EventTableRow{"Command2", Event::Click, commercial::form3::Command2_Click},
    EventTableRow{"Command3", Event::Click, analysis::form3::Command3_Click},
    EventTableRow{"Command4", Event::Click, analysis::form3::Command4_Click},
    EventTableRow{"Command5", Event::Click, analysis::form3::Command5_Click},
    EventTableRow{"Command6", Event::Click, analysis::form3::Command6_Click},
    EventTableRow{"Command7", Event::Click, analysis::form3::Command7_Click},
    EventTableRow{"Command8", Event::Click, analysis::form3::Command8_Click},
    EventTableRow{"Command9", Event::Click, analysis::form3::Command9_Click},
    EventTableRow{"Command10", Event::Click, analysis::form3::Command10_Click},
    EventTableRow{"Command11", Event::Click, commuter::form3::Command11_Click},
    EventTableRow{"Command12", Event::Click, analysis::form3::Command12_Click},
    EventTableRow{"Command13", Event::Click, commercial::form3::Command13_Click},
    EventTableRow{"Command14", Event::Click, analysis::form3::Command14_Click},
    EventTableRow{"Command15", Event::Click, analysis::form3::Command15_Click},
};

constexpr std::array frmdatagrid_table{
    EventTableRow{"", Event::Load, inputs::frmdatagrid::Form_Load},
    EventTableRow{"", Event::Resize, inputs::frmdatagrid::Form_Resize},
    EventTableRow{"grdDataGrid", Event::HeadClick, inputs::frmdatagrid::grdDataGrid_HeadClick},
    EventTableRow{"grdDataGrid", Event::MouseUp, inputs::frmdatagrid::grdDataGrid_MouseUp},
    EventTableRow{"Cmdquit", Event::Click, inputs::frmdatagrid::Cmdquit_Click},
    EventTableRow{"cmdClose", Event::Click, inputs::frmdatagrid::cmdClose_Click},
    EventTableRow{"cmdFilter", Event::Click, inputs::frmdatagrid::cmdFilter_Click},
    EventTableRow{"cmdSort", Event::Click, inputs::frmdatagrid::cmdSort_Click},
    EventTableRow{"cmdRefresh", Event::Click, inputs::frmdatagrid::cmdRefresh_Click},
    EventTableRow{"txt_zonedit", Event::Change, inputs::frmdatagrid::txt_zonedit_Change},
    EventTableRow{"cmd_zonedit", Event::Click, inputs::frmdatagrid::cmd_zonedit_Click},
    EventTableRow{"Command1", Event::Click, inputs::frmdatagrid::Command1_Click},
};

constexpr std::array frmdirget_table{
    EventTableRow{"", Event::Load, analysis::frmdirget::Form_Load},
    EventTableRow{"drvList", Event::Change, analysis::frmdirget::drvList_Change},
    EventTableRow{"dirList", Event::Change, analysis::frmdirget::dirList_Change},
    EventTableRow{"dirList", Event::LostFocus, analysis::frmdirget::dirList_LostFocus},
    EventTableRow{"cmdExit", Event::Click, analysis::frmdirget::cmdExit_Click},
    EventTableRow{"Command1", Event::Click, analysis::frmdirget::Command1_Click},
};

std::vector<runtime::forms::EventRow> bound_to(Program& program, std::span<const EventTableRow> table) {
  std::vector<runtime::forms::EventRow> rows;
  for (const EventTableRow& row : table) {
    rows.push_back({row.control, row.event, [&program, handler = row.handler](int index) {
                      if (const auto* simple = std::get_if<Handler>(&handler)) {
                        (*simple)(program);
                      } else {
                        std::get<ElementHandler>(handler)(program, index);
                      }
                    }});
  }
  return rows;
}

}  // namespace

std::span<const MenuTableRow> menu_events() {
  return menu_table;
}
std::span<const EventTableRow> form1_events() {
  return form1_table;
}
std::span<const EventTableRow> form2_events() {
  return form2_table;
}
std::span<const EventTableRow> form3_events() {
  return form3_table;
}

std::span<const EventTableRow> frmdatagrid_events() {
  return frmdatagrid_table;
}

std::span<const EventTableRow> frmdirget_events() {
  return frmdirget_table;
}

void tie_events(Program& program) {
  for (const MenuTableRow& row : menu_table) {
    program.mdiform1.window().on_item(row.item, [&program, handler = row.handler] { handler(program); });
  }
  program.form1.set_events(bound_to(program, form1_table));
  program.form2.set_events(bound_to(program, form2_table));
  program.form3.set_events(bound_to(program, form3_table));
  program.frmDataGrid.set_events(bound_to(program, frmdatagrid_table));
  program.frmdirget.set_events(bound_to(program, frmdirget_table));
  QObject::connect(&program.mdiform1.window(), &runtime::forms::MainWindow::close_requested, [&program] {
    program.desktop.run_person_event([&program] { shell::mdiform1::close_box(program); });
  });
}

void start(Program& program) {
  program.desktop.run_event([&program] { shell::mdiform1::MDIForm_Load(program); });
}

}  // namespace quelar
