// The conversion of tons to trucks.
#include "analysis/model_run.h"
#include "analysis/run_state.h"
#include "commercial/form3.h"
#include "commercial/model_files.h"
#include "commercial/run.h"
#include "runtime/fault.h"
#include "runtime/files/path_names.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace commercial {

namespace {

using runtime::text::joined;

std::string model_file(Program& program, const char* name) {
  return analysis::path_of(program, market, name);
}

void write_factors(Program& program, runtime::engine::Recordset& factors) {
  program.desktop.files.write_file(model_file(program, "/tontotruck.txt"), [&](std::ostream& stream) {
    const int columns = factors.field_count();
    for (; !factors.eof(); factors.MoveNext()) {
      std::vector<Value> row;
      for (int column = 0; column < columns; ++column) row.push_back(factors.field(column));
      write_conversion_row(stream, row);
    }
  });
}

/// The directory of the commodity file with its separator; a bare name has none.
std::string commodity_directory(const std::string& file) {
  const auto separator = runtime::files::last_separator(file);
  return separator ? file.substr(0, *separator + 1) : std::string();
}

void bring_inputs(Program& program, std::int16_t zone_count) {
  auto& form3 = program.form3;
  auto& files = program.desktop.files;
  form3->Data1(1).MoveFirst();
  files.FileCopy(joined(form3->Data1(1).field("distance")), model_file(program, "/Dist.txt"));
  program.form1.Unload();
  form3->Data1(0).MoveFirst();
  files.FileCopy(joined(form3->Data1(0).field("tonsfile")), model_file(program, "/commodity.txt"));
  program.form1.Unload();
  form3.OutputFile = joined(form3->Data1(0).field("tonsfile"));
  files.write_file(model_file(program, "/ttc.txt"), [&](std::ostream& stream) {
    write_conversion_parameters(stream, commodity_directory(form3.OutputFile), zone_count);
  });
}

void run_converter(Program& program) {
  auto& desktop = program.desktop;
  desktop.files.ChDir(market.directory);
  analysis::ModelRun model(program, "tontotruck.exe", market.verdict_file);
  if (model.exit_code() != 0) {
    const int reply =
        desktop.MsgBox("Error executing truck to ton conversion program", runtime::forms::critical);
    program.form3.LastReply = std::to_string(reply);
    return;
  }
  const auto error = model.verdict();
  desktop.MsgBox(error ? market.refused + *error : "Analysis Completed");
}

void close_page(Program& program, runtime::engine::Database& db) {
  program.form3.Unload();
  program.form2.Unload();
  program.desktop.files.Close(1);
  program.desktop.files.Close(2);
  db.Close();
  shell::EnableMenus(program);
  program.mdiform1.spec_CuCo.set_enabled(false);
  program.mdiform1.Show();
  program.mdiform1.spec_timdist.set_enabled(true);
}

void convert(Program& program) {
  auto& desktop = program.desktop;
  shell::GoToAppDirectory(program);
  const std::int16_t zone_count = analysis::zone_count(program);
  program.form2.hide();
  if (zone_count == 0) {
    desktop.MsgBox(analysis::no_zones_message);
    return;
  }
  for (const char* left_over : {"/dist*.*", "/err*.*", "/tontotruck.txt"}) {
    runtime::ignoring_faults([&] { desktop.files.Kill(model_file(program, left_over)); });
  }
  auto db = desktop.workspace.OpenDatabase(desktop.database_name);
  auto factors = db.OpenRecordset("select * from tontotruck");
  factors.MoveFirst();
  write_factors(program, factors);
  // The base time file is what is looked for, though the conversion uses the distances alone.
  const std::string base_time = joined(program.form3->Data1(1).field(1));
  if (!desktop.files.Dir(base_time).empty()) {
    bring_inputs(program, zone_count);
    run_converter(program);
  }
  close_page(program, db);
}

}  // namespace

void form3::Command13_Click(Program& program) {
  try {
    convert(program);
  } catch (const runtime::Fault& fault) {
    program.desktop.end_with_report(fault);
  }
}

}  // namespace commercial
