#include "inputs/grid_save.h"

#include <array>
#include <deque>
#include <vector>

#include "database/catalogue.h"
#include "database/text_table.h"
#include "database/value_lines.h"
#include "inputs/chosen.h"
#include "inputs/grid_mode.h"
#include "runtime/fault.h"
#include "runtime/files/path_names.h"
#include "runtime/files/replacement.h"
#include "runtime/forms/long_work.h"
#include "shell/module1.h"

namespace inputs::frmdatagrid {

using database::ColumnExport;
using runtime::engine::Database;
using runtime::engine::Recordset;
using runtime::forms::LongWork;
using Pointer = runtime::forms::Desktop::Pointer;

namespace {

/// The name of a file in the chosen directory.
std::string target(Program& program, const std::string& name) {
  using namespace runtime::files;
  return text_of(native(program.frmdirget->dirList.path() + "\\" + name));
}

Database open_project(Program& program) {
  shell::GoToAppDirectory(program);
  return program.desktop.workspace.OpenDatabase(program.desktop.database_name);
}

/// Stands on the first of the chosen ones. Fault 3021 when none is.
Recordset open_chosen(Database& db, std::string_view chosen) {
  auto rows = db.OpenRecordset(chosen);
  rows.MoveLast();
  rows.MoveFirst();
  return rows;
}

/// A statement for each chosen one, which there are at most so many of, else Fault 9.
template <typename Statement>
std::vector<std::string> prepared(Recordset& chosen, std::size_t most, Statement&& statement) {
  std::vector<std::string> statements;
  for (; !chosen.eof(); chosen.MoveNext()) {
    if (statements.size() == most) throw runtime::Fault(9);
    statements.push_back(statement(description_of(chosen)));
  }
  return statements;
}

std::string insert_trips(const std::string& name) {
  return "INSERT INTO csvtable SELECT origin, destination, " + name + " from sosec";
}

std::string insert_residents_and_workers(const std::string& name) {
  return "INSERT INTO csvtable select population.Zone, population." + name + ", sosec." + name + " as " +
         name + "_emp from population,  sosec where population.zone=sosec.zone;";
}

/// Gives the record at each position the origin that a table in order has there, whatever it holds.
void renumber_origins(Program& program) {
  const std::int64_t zones = zone_count(program);
  const LongWork work(program.desktop, "Numbering the origins");
  program.frmDataGrid.SaveClone.set_each("origin", zones * zones,
                                         [zones](std::int64_t position) { return position / zones + 1; });
}

void export_file(Program& program, Database& db, const std::string& name, ColumnExport column) {
  const LongWork work(program.desktop, "Writing " + name);
  column.target = target(program, name);
  database::export_column(program.desktop.files, db, program.desktop.app_path, column);
}

/// Exports with the link made anew for each file. When one cannot be written the link is there again, so that
/// the analyst can save into another directory.
template <typename Exports>
void with_links(Program& program, Database& db, Exports&& exports) {
  db.Execute("Drop TABLE csvtable");
  try {
    exports();
  } catch (const runtime::Fault&) {
    runtime::ignoring_faults(
        [&] { db.AppendTableDef(database::csvtable_definition(db, program.desktop.app_path)); });
    throw;
  }
}

void leave(Program& program) {
  program.desktop.set_pointer(Pointer::normal);
  program.frmDataGrid.Unload();
  program.form2.Unload();
}

/// A file for each value column of the staging table, in order. They take their places together, after the
/// last one is whole: distances and times of two studies must not be mixed.
void save_value_files(Program& program, const std::vector<std::string>& names) {
  constexpr int key_columns = 2;
  Database db = open_project(program);
  auto pairs = db.OpenRecordset(database::sosec_table);
  pairs.MoveLast();
  pairs.MoveFirst();
  std::deque<runtime::files::Replacement> made;
  std::deque<database::ValueLines> lines;
  for (const std::string& name : names) {
    const std::string path = target(program, name);
    const int column = key_columns + static_cast<int>(lines.size());
    lines.emplace_back(made.emplace_back(program.desktop.files, path).out(), path, column);
  }
  {
    const LongWork work(program.desktop, "Writing " + names.front());
    database::write_value_lines(lines, pairs);
    for (auto& file : made) file.finish();
  }
  for (auto& file : made) file.put_in_place();
  leave(program);
}

}  // namespace

void savfle(Program& program) {
  const std::string word = mode_word(program);
  if (word == mode::commercial) savcommercial(program);
  if (word == mode::timdist) savtimdist(program);
  if (word == mode::commuter_data) savcommuter(program);
}

void savcommercial(Program& program) {
  Database db = open_project(program);
  const auto all_industries = db.OpenRecordset(database::industries::table);
  auto industries = open_chosen(db, chosen_industries);
  const auto inserts = prepared(industries, database::industry_list.size(), insert_trips);
  program.desktop.set_pointer(Pointer::hourglass);
  renumber_origins(program);
  program.frmDataGrid.SaveClone.MoveFirst();
  industries.MoveFirst();
  with_links(program, db, [&] {
    for (const std::string& insert : inserts) {
      const std::string name = description_of(industries);
      export_file(program, db, "trips_" + name + ".txt",
                  {database::write_pairs_template, {database::column_to_write(3, name)}, insert, {}});
      industries.MoveNext();
    }
  });
  leave(program);
  program.frmDataGrid.SaveClone.Close();
}

void savcommuter(Program& program) {
  Database db = open_project(program);
  const auto all_occupations = db.OpenRecordset(database::occupations::table);
  auto occupations = open_chosen(db, chosen_occupations);
  const auto inserts = prepared(occupations, database::occupation_list.size(), insert_residents_and_workers);
  program.desktop.set_pointer(Pointer::hourglass);
  occupations.MoveFirst();
  with_links(program, db, [&] {
    for (const std::string& insert : inserts) {
      const std::string name = description_of(occupations);
      export_file(program, db, "commute _" + name + ".txt",
                  {database::write_zones_template,
                   {database::column_to_write(2, name), database::workers_column_to_write(3, name)},
                   insert,
                   {}});
      occupations.MoveNext();
    }
  });
  occupations.Close();
  db.Close();
  leave(program);
}

void savtimdist(Program& program) {
  save_value_files(program, {"distance.txt", "base_time.txt", "imp_time.txt"});
}

void savcommutrip(Program& program) {
  save_value_files(program, {"commutrip.txt"});
}

}  // namespace inputs::frmdatagrid
