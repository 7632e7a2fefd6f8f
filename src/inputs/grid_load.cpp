// The load of the grid: the skeleton of the rows becomes the staging table.
#include <array>
#include <optional>

#include "database/catalogue.h"
#include "database/text_table.h"
#include "inputs/frmdatagrid.h"
#include "inputs/grid_mode.h"
#include "runtime/fault.h"
#include "runtime/forms/long_work.h"
#include "shell/module1.h"

namespace inputs::frmdatagrid {

using runtime::engine::Database;
using runtime::engine::TableDef;

namespace {

/// What the form shows in a mode; an empty text leaves what stands there.
struct Mode {
  std::string_view word;
  std::optional<bool> employment_pass;  ///< Of a mode that comes twice: which pass.
  std::string_view columns;             ///< Of the staging table.
  bool adds_column_list;                ///< Whether the chosen columns come behind them.
  std::string_view save_caption;
  std::string_view form_caption;
  std::string_view label;
};

constexpr std::array modes{
    Mode{mode::commercial, std::nullopt, "Origin integer, Destination integer", true,
         "Save Commercial Trips and Return to Main Menu", "", ""},
    Mode{mode::timdist, std::nullopt,
         "Origin integer, Destination integer, distance DOUBLE,Base_Travel_Times DOUBLE,"
         "Improvement_Travel_Times DOUBLE",
         false, "Save Distance and Time and Return to Main Menu", "", ""},
    Mode{mode::commuter_data, false, "Zone integer", true, "",
         "ENTER POPULATION BY OCCUPATION FOR COMMUTER ANALYSIS", "POPULATION"},
    Mode{mode::commuter_data, true, "Zone integer", true, "Save Employment Data and Return to Main Menu",
         "ENTER EMPLOYMENT FOR COMMUTER ANALYSIS", "EMPLOYMENT"},
    Mode{mode::commuter_trip, std::nullopt, "Origin integer, Destination integer, Daily_Trips double ", false,
         "", "", ""},
};

const Mode* present_mode(Program& program) {
  const std::string word = mode_word(program);
  for (const Mode& mode : modes) {
    const bool is_pass = !mode.employment_pass || *mode.employment_pass == program.frmDataGrid.EmploymentPass;
    if (mode.word == word && is_pass) return &mode;
  }
  return nullptr;
}

void make_if_absent(Program& program, std::string_view name) {
  auto& files = program.desktop.files;
  if (files.Dir(name).empty()) files.write_file(name, [](std::ostream&) {});
}

Database open_project(Program& program) {
  return program.desktop.workspace.OpenDatabase(program.desktop.app_path + "\\" +
                                                program.desktop.database_name);
}

void drop_old_tables(Database& db) {
  database::drop_if_there(db, "sosec");
  database::drop_if_there(db, "csvtable");
}

/// Sets the captions of the mode. Returns its statement, an empty one without a mode.
std::string prepare_mode(Program& program) {
  const Mode* mode = present_mode(program);
  if (mode == nullptr) return {};
  auto& form = program.frmDataGrid;
  if (!mode->save_caption.empty()) form->cmdClose.set_caption(std::string(mode->save_caption));
  if (!mode->form_caption.empty()) form.set_caption(std::string(mode->form_caption));
  if (!mode->label.empty()) form->Label1.set_caption(std::string(mode->label));
  return "CREATE TABLE sosec (" + std::string(mode->columns) +
         (mode->adds_column_list ? column_list(program) : "") + ")";
}

void fill_staging_table(Program& program, Database& db) {
  drop_old_tables(db);
  const TableDef csvtable = database::csvtable_definition(db, program.desktop.app_path);
  const std::string create_table = prepare_mode(program);
  db.AppendTableDef(csvtable);
  db.Execute(create_table);
  db.Execute("insert into sosec select * from csvtable");
}

}  // namespace

void Form_Load(Program& program) {
  shell::GoToAppDirectory(program);
  program.frmDataGrid.set_window_state(runtime::forms::WindowState::maximized);
  make_if_absent(program, database::trips_file);
  make_if_absent(program, database::unused_file);
  Database db = open_project(program);  // the text files need no handle of their own
  runtime::forms::LongWork work(program.desktop, "Loading the zone data");
  if (program.frmDataGrid.keeps_staging_table) {
    prepare_mode(program);
  } else {
    fill_staging_table(program, db);
  }
  program.frmDataGrid->DataLu.set_recordset(db.OpenRecordset(database::sosec_table));
}

}  // namespace inputs::frmdatagrid
