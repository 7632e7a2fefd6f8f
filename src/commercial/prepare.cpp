// The commercial run up to its question: checks, model files, summary.
#include "analysis/run_state.h"
#include "commercial/model_files.h"
#include "commercial/run.h"
#include "runtime/text/numbers.h"

namespace commercial {

namespace {

constexpr int outpar = 1;

End tell(Run& run, const std::string& message, End end) {
  run.program.desktop.MsgBox(message);
  return end;
}

End check_choices(Run& run) {
  Program& program = run.program;
  run.ZoneCount = analysis::zone_count(program);
  program.form2.hide();
  if (run.ZoneCount == 0) return tell(run, analysis::no_zones_message, End::plain);
  if (program.form3.OutputFile.empty()) {
    program.form1.Unload();
    return tell(run, analysis::no_output_message, End::retry);
  }
  run.OutputBase = analysis::output_base(program.form3.OutputFile);
  if (program.form3.PickCount == 0) return tell(run, market.no_picks, End::retry);
  return End::go_on;
}

/// Both cases from the one row of the speeds table. The second column stands in both files.
void write_variations(Run& run) {
  auto& speeds = run.program.form1->Data2;
  speeds.MoveFirst();
  auto& files = run.program.desktop.files;
  files.write_file(path_of(run, "/base_var.txt"),
                   [&](std::ostream& stream) { write_variation(stream, speeds.field(0), speeds.field(1)); });
  files.write_file(path_of(run, "/imp_var.txt"),
                   [&](std::ostream& stream) { write_variation(stream, speeds.field(1), speeds.field(2)); });
}

/// With "FILE" the word in outpar.txt is all that changes: the file itself is neither tested nor copied.
End choose_reliability(Run& run) {
  const auto mode = analysis::reliability_mode(run.program);
  if (!mode) return tell(run, analysis::no_reliability_message, End::plain);
  run.ReliabilityMode = *mode;
  if (*mode == "DB") write_variations(run);
  return End::go_on;
}

End bring_district_file(Run& run) {
  Program& program = run.program;
  if (program.form3->Check1.value() != 1) return End::go_on;
  const std::string& file = program.form3.DistrictFile;
  if (file.empty()) {
    program.form1.Unload();
    return tell(run, "No District File Specified!", End::plain);
  }
  if (!analysis::file_found(run, file)) return tell(run, "File " + file + " not Found!", End::retry);
  program.desktop.files.FileCopy(file, path_of(run, "/district.txt"));
  return End::go_on;
}

End check_time_files(Run& run) {
  for (int i = 0; i <= 2; ++i) {
    const std::string file = runtime::text::joined(run.program.form3->Data1(1).field(i));
    if (!analysis::file_found(run, file)) {
      run.PendingMessage = "file " + file + " not found!";
      return End::reset;
    }
  }
  return End::go_on;
}

void write_industry_values(Run& run) {
  auto& form3 = run.program.form3;
  auto& files = run.program.desktop.files;
  for (int i = 1; i <= form3.PickCount; ++i) {
    const std::string& code = form3.PickCode(i);
    const auto row = analysis::parameters_of(run.db, market, code);
    files.write_file(path_of(run, "/sig" + code + ".txt"),
                     [&](std::ostream& stream) { analysis::write_one_value(stream, row.field("sigma")); });
    files.write_file(path_of(run, "/cost" + code + ".txt"), [&](std::ostream& stream) {
      write_costs(stream, {row.field("Value"), row.field("Unit Cost"), row.field("Reliability Cost"),
                           row.field("JIT Factor"), row.field("Load Factor")});
    });
  }
}

End write_district_line(Run& run) {
  Program& program = run.program;
  auto& out = program.desktop.files.out(outpar);
  if (program.form3->Check1.value() != 1) {
    analysis::write_no_districts(out);
    run.DistrictCount = 0;
    return End::go_on;
  }
  run.DistrictCount = analysis::district_count(program);
  if (run.DistrictCount == 0) {
    return tell(run, analysis::no_districts_message, End::retry);
  }
  if (run.DistrictCount > run.ZoneCount) {
    program.form1.Unload();
    return tell(run, analysis::many_districts_message, End::retry);
  }
  analysis::write_districts(out, run.DistrictCount);
  return End::go_on;
}

/// A trip file that is gone ends the run without a word, with the parameter file still open.
End copy_picks(Run& run) {
  auto& form3 = run.program.form3;
  auto& files = run.program.desktop.files;
  for (int i = 1; i <= form3.PickCount; ++i) {
    const std::string& path = form3.PickPath(i);
    if (!analysis::file_found(run, path)) {
      run.PendingMessage = "File" + path + "not Found!";
      return End::plain;
    }
    files.FileCopy(path, path_of(run, std::string("/") + market.picked_file + form3.PickCode(i) + ".txt"));
    analysis::write_pick(files.out(outpar), form3.PickCode(i));
  }
  return End::go_on;
}

End write_parameter_file(Run& run) {
  auto& files = run.program.desktop.files;
  files.open_for_output(outpar, path_of(run, "/outpar.txt"));
  write_zone_count(files.out(outpar), run.ZoneCount);
  if (const End end = write_district_line(run); end != End::go_on) return end;
  write_mode_and_output(files.out(outpar), run.ReliabilityMode, run.OutputBase, run.program.form3.PickCount);
  if (const End end = copy_picks(run); end != End::go_on) return end;
  files.Close(outpar);
  return End::go_on;
}

End ask(Run& run) {
  using runtime::forms::reply_no;
  using runtime::forms::yes_no;
  run.RunSummary = analysis::summary(run.program, market, run.ZoneCount, run.DistrictCount);
  run.RunSummary += "Do you wish to continue?";
  return run.program.desktop.MsgBox(run.RunSummary, yes_no) == reply_no ? End::reset : End::go_on;
}

}  // namespace

End prepare(Run& run) {
  if (const End end = check_choices(run); end != End::go_on) return end;
  if (const End end = choose_reliability(run); end != End::go_on) return end;
  if (const End end = bring_district_file(run); end != End::go_on) return end;
  if (const End end = check_time_files(run); end != End::go_on) return end;
  analysis::copy_time_files(run.program, market);
  run.program.form1.Unload();
  run.db = run.program.desktop.workspace.OpenDatabase(run.program.desktop.database_name);
  write_industry_values(run);
  if (const End end = write_parameter_file(run); end != End::go_on) return end;
  return ask(run);
}

}  // namespace commercial
