// A second way to fill the directory "truck", which nothing in the program starts.
#include <array>

#include "commercial/form3.h"
#include "commercial/run.h"
#include "runtime/fault.h"
#include "runtime/text/numbers.h"
#include "runtime/text/print_line.h"
#include "shell/module1.h"

namespace commercial {

namespace {

using runtime::ignoring_faults;
using runtime::engine::Database;
using runtime::engine::Recordset;
using runtime::text::joined;
using runtime::text::print_line;

constexpr int outpar = 1;
constexpr int cost = 2;

void copy_pick(Program& program, const std::string& truck, int i) {
  auto& files = program.desktop.files;
  auto& form3 = program.form3;
  ignoring_faults([&] {
    if (form3.PickPath(i).empty()) return;
    ignoring_faults(
        [&] { files.FileCopy(form3.PickPath(i), truck + "\\trktrp" + form3.PickCode(i) + ".txt"); });
    ignoring_faults([&] { print_line(files.out(outpar), {form3.PickCode(i)}); });
  });
}

/// All fields but the first, each followed by a comma.
std::string comma_line(const Recordset& row) {
  std::string line;
  for (int field = 1; field < row.field_count(); ++field) line += joined(row.field(field)) + ",";
  return line;
}

void write_cost(Program& program, Database& db, Recordset& row, const std::string& truck, int i) {
  auto& files = program.desktop.files;
  auto& code = program.form3.PickCode;
  ignoring_faults(
      [&] { row = db.OpenRecordset("select * from Commercial where industry_number= " + code(i) + " "); });
  ignoring_faults([&] { files.open_for_output(cost, truck + "\\cost" + code(i) + ".txt"); });
  std::string line;
  ignoring_faults([&] { line = comma_line(row); });
  ignoring_faults([&] { print_line(files.out(cost), {line}); });
  ignoring_faults([&] { row.Close(); });
  ignoring_faults([&] { files.Close(cost); });
}

/// The name of the copy of a time or distance file. Fault 9 behind the last place, as in the picks.
const std::string& stem(int field) {
  static const std::array<std::string, 11> stems{"distance", "base_time", "imp_time"};
  if (field >= static_cast<int>(stems.size())) throw runtime::Fault(9);
  return stems[static_cast<std::size_t>(field)];
}

void copy_time_files(Program& program, Database& db, const std::string& truck) {
  auto& files = program.desktop.files;
  ignoring_faults([&] {
    const auto paths = db.OpenRecordset("select * from timdist");
    for (int field = 0; field < paths.field_count(); ++field) {
      ignoring_faults([&] {
        const std::string path = joined(paths.field(field));
        if (files.Dir(path).empty()) return;
        files.FileCopy(path, truck + "\\trktrp\\" + stem(field) + ".txt");
      });
    }
  });
}

}  // namespace

void form3::run_commercform3(Program& program) {
  auto& files = program.desktop.files;
  auto db = program.desktop.workspace.OpenDatabase(program.desktop.database_name);
  shell::GoToAppDirectory(program);
  const std::string truck = program.desktop.app_path + "\\truck";
  files.open_for_output(outpar, truck + "\\outpar.txt");
  print_line(files.out(outpar), {truck});
  print_line(files.out(outpar), {"9"});
  print_line(files.out(outpar), {program.form3.PickCount});
  // The first of the two acts on the current directory, which is the application directory.
  ignoring_faults([&] { files.Kill("trktrp*.txt"); });
  ignoring_faults([&] { files.Kill(truck + "\\cost*.txt"); });
  Recordset row;
  for (int i = 1; i <= program.form3.PickCount; ++i) {
    copy_pick(program, truck, i);
    write_cost(program, db, row, truck, i);
  }
  ignoring_faults([&] { files.Close(outpar); });
  ignoring_faults([&] { row.Close(); });
  copy_time_files(program, db, truck);
}

}  // namespace commercial
