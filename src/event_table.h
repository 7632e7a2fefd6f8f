// The list of all events: which handler a control's or menu item's event runs. Read event_table.cpp to find
// the code behind anything on the screen.
#pragma once

#include <span>
#include <variant>

#include "forms/program.h"

namespace quelar {

using Handler = void (*)(forms::Program&);
using ElementHandler = void (*)(forms::Program&, int index);

struct EventTableRow {
  const char* control;  // "" for an event of the form itself
  runtime::forms::Event event;
  std::variant<Handler, ElementHandler> handler;
};

struct MenuTableRow {
  const char* item;
  Handler handler;
};

std::span<const MenuTableRow> menu_events();
std::span<const EventTableRow> form1_events();
std::span<const EventTableRow> form2_events();
std::span<const EventTableRow> form3_events();
std::span<const EventTableRow> frmdatagrid_events();
std::span<const EventTableRow> frmdirget_events();

/// Ties every event to its handler. Called once for a program.
void tie_events(forms::Program& program);

/// Shows the main window: the start of the user-visible program.
void start(forms::Program& program);

}  // namespace quelar
