// The save button of the grid. In the commuter entry it comes twice: the first time it keeps the population
// and makes room for the employment.
#include "database/catalogue.h"
#include "database/text_table.h"
#include "inputs/chosen.h"
#include "inputs/frmdatagrid.h"
#include "inputs/grid_mode.h"
#include "runtime/fault.h"
#include "runtime/forms/long_work.h"
#include "shell/module1.h"

namespace inputs::frmdatagrid {

using runtime::engine::Database;
using runtime::forms::LongWork;

namespace {

constexpr std::string_view distances = "distance.txt";
constexpr std::string_view mining =
    "mining.txt";  // planned by nobody: trips are planned as "trips_Mining.txt"

/// The first planned file tells which entry this is.
std::string planned_file(Program& program) {
  return program.frmdirget->List1.list(0);
}

/// The engine holds nothing equal to NULL, so empty cells stay empty.
void empty_to_zero(Database& db, const std::string& table, const std::string& field) {
  db.Execute("UPDATE " + table + " set " + field + " = 0 where " + field + "= NULL ");
}

void empty_times_to_zero(Database& db) {
  db.Execute("UPDATE sosec set distance=0 where distance = NULL ");
  db.Execute("UPDATE sosec set Base_Travel_Times=0 where Base_Travel_Times = NULL ");
  db.Execute("UPDATE sosec set Improvement_Travel_Times=0 where Improvement_Travel_Times = NULL ");
}

void empty_trips_to_zero(Database& db) {
  auto industries = db.OpenRecordset(chosen_industries);
  for (; !industries.eof(); industries.MoveNext()) empty_to_zero(db, "sosec", description_of(industries));
}

void end_employment_pass(Program& program, Database& db) {
  auto occupations = db.OpenRecordset(chosen_occupations);
  for (; !occupations.eof(); occupations.MoveNext()) empty_to_zero(db, "SOSEC", description_of(occupations));
  occupations.Close();
  program.frmDataGrid.EmploymentPass = false;
  program.frmDataGrid.SaveClone.Close();
}

void keep_population(Program& program, Database& db) {
  database::drop_if_there(db, "POPULATION");
  db.Execute("CREATE TABLE population (Zone integer" + column_list(program) + ")");
  db.Execute("insert into population select * from sosec ");
  auto occupations = db.OpenRecordset(chosen_occupations);
  for (; !occupations.eof(); occupations.MoveNext())
    empty_to_zero(db, "population", description_of(occupations));
}

/// The population pass as it stood before its end, to be gone back to when the other pass can't be opened.
class PopulationPass {
 public:
  explicit PopulationPass(Program& program)
      : program_(program),
        picked_(program.frmDataGrid.SelectedFields),
        caption_(program.frmDataGrid.caption()) {
    program_.desktop.workspace.BeginTrans();
  }

  /// The other pass stands, and is durable.
  void done() {
    program_.desktop.workspace.CommitTrans();
    is_guarded_ = false;
    program_.desktop.make_durable();
  }

  void come_back() const {
    auto& form = program_.frmDataGrid;
    form.EmploymentPass = false;
    form.SelectedFields = picked_;
    form.unload_without_storing();
    auto& workspace = program_.desktop.workspace;
    if (is_guarded_) runtime::ignoring_faults([&] { workspace.Rollback(); });
    runtime::ignoring_faults([&] { workspace.take_back(); });
    form.keeps_staging_table = true;
    runtime::ignoring_faults([&] {
      form.Load();
      form.set_caption(caption_);
      form->Label3.set_caption(form.SelectedFieldsText);
    });
    form.keeps_staging_table = false;
    // Alone it would save the population as the employment, too.
    if (!form.loaded()) program_.frmdirget.unload_without_storing();
  }

 private:
  Program& program_;
  const decltype(Program::frmDataGrid.SelectedFields) picked_;
  const std::string caption_;
  bool is_guarded_ = true;
};

void end_population_pass(Program& program, Database& db) {
  keep_population(program, db);
  // Behind this stretch the typed values stand nowhere else.
  program.desktop.make_durable();
  auto& form = program.frmDataGrid;
  PopulationPass population(program);
  forget_picked_names(program);  // not how many: a fill that meets the empty names ends in a fault
  db.Close();
  form.EmploymentPass = true;
  try {
    form->DataLu.close_database();
    form.Unload();
    form.Load();
    population.done();
  } catch (...) {
    population.come_back();
    throw;
  }
}

void choose_directory(Program& program) {
  program.frmDataGrid.Unload();
  program.form2.set_window_state(runtime::forms::WindowState::minimized);
  program.frmdirget.Load();
  program.frmdirget.Show();
}

}  // namespace

void cmdClose_Click(Program& program) {
  auto& form = program.frmDataGrid;
  shell::GoToAppDirectory(program);
  Database db = program.desktop.workspace.OpenDatabase(program.desktop.database_name);
  {
    const LongWork work(program.desktop, "Storing the zone data");
    form->DataLu.Refresh();
    const std::string planned = planned_file(program);
    if (planned == distances) empty_times_to_zero(db);
    if (planned == mining) empty_trips_to_zero(db);
  }
  form.SaveClone = form->DataLu.recordset().Clone();
  if (mode_word(program) == mode::commuter_data) {
    if (!form.EmploymentPass) return end_population_pass(program, db);
    end_employment_pass(program, db);
  }
  const std::string planned = planned_file(program);
  if (planned == distances || planned == mining) form.SaveClone.Close();
  choose_directory(program);
}

}  // namespace inputs::frmdatagrid
