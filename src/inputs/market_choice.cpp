// Form2 as the choice of the industries or occupations that the grid gets a column for.
#include <array>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "database/catalogue.h"
#include "inputs/form2.h"
#include "inputs/grid_mode.h"
#include "inputs/grid_opening.h"
#include "inputs/skeleton.h"
#include "shell/module1.h"

namespace inputs::form2 {

using runtime::engine::Database;
using runtime::engine::Recordset;

namespace {

/// One of a fixed list.
struct Choice {
  std::string_view name;
  int code;
};

constexpr auto industries = [] {
  std::array<Choice, database::industry_list.size()> choices{};
  for (std::size_t i = 0; i < choices.size(); ++i) {
    choices[i] = {database::industry_list[i].description, database::industry_list[i].industry_number};
  }
  return choices;
}();

constexpr auto occupations = [] {
  std::array<Choice, database::occupation_list.size()> choices{};
  for (std::size_t i = 0; i < choices.size(); ++i) {
    choices[i] = {database::occupation_list[i].description, database::occupation_list[i].index};
  }
  return choices;
}();

/// What the two go-aheads do not have in common.
struct Market {
  std::string_view table;
  std::string_view code_field;
  std::span<const Choice> choices;
  int first_box;  ///< The box of the first choice; the others follow.
  std::string_view file_prefix;
  const char* nothing_chosen;
  bool takes_back_without_zones;
  const Skeleton& skeleton;
};

const Market commercial_market{database::industries::table,
                               database::industries::industry_number,
                               industries,
                               0,
                               "trips_",
                               "No Industries Selected!",
                               false,
                               skeleton_of_industries};

const Market commuter_market{database::occupations::table,
                             database::occupations::occupation_number,
                             occupations,
                             4,
                             "commute_",
                             "No Occupations Selected!",
                             true,
                             skeleton_of_occupations};

/// Writes a row for each of the fixed list, with a code and a name for the ticked ones alone. Returns these
/// names, in the order of the list whatever the order of ticking.
std::vector<std::string_view> write_rows(Program& program, const Market& market, Recordset& rows) {
  std::vector<std::string_view> chosen;
  for (int i = 0; i < static_cast<int>(market.choices.size()); ++i) {
    const Choice& choice = market.choices[static_cast<std::size_t>(i)];
    rows.AddNew();
    rows.set(database::industries::index, std::int64_t{i + 1});
    if (program.form2->Chcktrp(market.first_box + i).value() == 1) {
      rows.set(market.code_field, std::int64_t{choice.code});
      rows.set(database::industries::description, std::string(choice.name));
      program.frmdirget->List1.set_list(static_cast<int>(chosen.size()),
                                        std::string(market.file_prefix) + std::string(choice.name) + ".txt");
      chosen.push_back(choice.name);
    }
    rows.Update();
  }
  return chosen;
}

/// What the grid is to be made for.
struct Order {
  std::int16_t zones;
  std::vector<std::string_view> chosen;
};

/// All that stands before the skeleton. Nothing when the analyst was told why it goes no further.
std::optional<Order> prepare_grid(Program& program, const Market& market) {
  shell::GoToAppDirectory(program);
  shell::BeginFileTransaction(program);
  Database db = program.desktop.workspace.OpenDatabase(program.desktop.database_name);
  Recordset rows = db.OpenRecordset(market.table);
  const std::int16_t zones = zone_count(program);
  if (zones == 0) {
    program.desktop.MsgBox(no_zones_message);
    if (market.takes_back_without_zones) shell::RollbackFileTransaction(program);
    return std::nullopt;
  }
  db.Execute("DELETE * from " + std::string(market.table));
  shell::CommitFileTransaction(program);
  Order order{zones, write_rows(program, market, rows)};
  rows.Close();
  if (order.chosen.empty()) {
    program.desktop.MsgBox(market.nothing_chosen);
    return std::nullopt;
  }
  copy_template(program, market.skeleton);
  return order;
}

void open_grid(Program& program, const Market& market, const std::function<void()>& show) {
  const GridOpening opening(program);
  const auto order = prepare_grid(program, market);
  if (!order) return;
  opening.go([&] {
    write_skeleton(program, market.skeleton, order->chosen, order->zones);
    show();
  });
}

}  // namespace

void Command1_Click(Program& program) {
  open_grid(program, commercial_market, [&] { program.frmDataGrid.Show(); });
}

void Command3_Click(Program& program) {
  open_grid(program, commuter_market, [&] {
    // Nothing on the form takes the font on: what this does is to load the form, so that the caption below
    // replaces the one of the load.
    program.frmDataGrid.set_font_size(24);
    program.frmDataGrid.set_caption(mode_word(program) == "employment"
                                        ? "Enter the number of persons who work in each zone by occupation"
                                        : "Enter the number of persons living in each zone by occupation");
    program.frmDataGrid.Show();
  });
}

void Command2_Click(Program& program) {
  program.form2.Unload();
  shell::EnableMenus(program);
}

void Command4_Click(Program& program) {
  shell::EnableMenus(program);
  program.form2.Unload();
}

}  // namespace inputs::form2
