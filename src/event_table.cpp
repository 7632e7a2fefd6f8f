#include "event_table.h"

#include <array>

#include "analysis/form3.h"
#include "analysis/layouts.h"
#include "analysis/picks.h"
#include "commercial/form3.h"
#include "commercial/layouts.h"
#include "commuter/form3.h"
#include "inputs/form2.h"
#include "shell/start_and_exit.h"

namespace quelar {

namespace {

using forms::Program;
using runtime::forms::Event;

constexpr std::array menu_table{
    MenuTableRow{"mnu_tonstotrucks", commercial::mdiform1::mnu_tonstotrucks_Click},
    MenuTableRow{"spec_timdist", analysis::mdiform1::spec_timdist_Click},
    MenuTableRow{"spec_comm", analysis::mdiform1::spec_comm_Click},
    MenuTableRow{"Spec_commercial", commercial::mdiform1::Spec_commercial_Click},
    MenuTableRow{"Mnu_exit", shell::mdiform1::Mnu_exit_Click},
};

constexpr std::array form2_table{
    EventTableRow{"", Event::Load, inputs::form2::Form_Load},
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
std::span<const EventTableRow> form2_events() {
  return form2_table;
}
std::span<const EventTableRow> form3_events() {
  return form3_table;
}

void tie_events(Program& program) {
  for (const MenuTableRow& row : menu_table) {
    program.mdiform1.window().on_item(row.item, [&program, handler = row.handler] { handler(program); });
  }
  program.form2.set_events(bound_to(program, form2_table));
  program.form3.set_events(bound_to(program, form3_table));
  QObject::connect(&program.mdiform1.window(), &runtime::forms::MainWindow::close_requested, [&program] {
    program.desktop.run_event([&program] { shell::mdiform1::close_box(program); });
  });
}

void start(Program& program) {
  program.desktop.run_event([&program] { shell::mdiform1::MDIForm_Load(program); });
}

}  // namespace quelar
