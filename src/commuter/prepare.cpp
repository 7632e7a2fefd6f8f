// The commuter run up to its question: checks, model files, summary.
#include "analysis/run_state.h"
#include "commuter/model_files.h"
#include "commuter/run.h"
#include "runtime/text/numbers.h"

namespace commuter {

namespace {

using runtime::forms::exclamation;
using runtime::forms::reply_no;
using runtime::forms::yes_no;
using runtime::text::joined;

End tell(Run& run, const std::string& message, End end, int style = runtime::forms::ok_only) {
  run.program.desktop.MsgBox(message, style);
  return end;
}

End check_choices(Run& run) {
  Program& program = run.program;
  run.ZoneCount = analysis::zone_count(program);
  if (run.ZoneCount == 0) {
    program.desktop.MsgBox(analysis::no_zones_message);
    program.form1.Unload();
    return End::reset;
  }
  run.OutputBase = analysis::output_base(program.form3.OutputFile);
  if (program.form3.OutputFile.empty()) {
    program.form1.Unload();
    program.desktop.MsgBox(analysis::no_output_message);
    program.form3.set_window_state(runtime::forms::WindowState::maximized);
    return End::retry;
  }
  if (program.form3.PickCount == 0) return tell(run, market.no_picks, End::retry);
  return End::go_on;
}

/// The two fields of one case from the first row of the speeds table.
void write_variation_file(Run& run, const char* name, int speed_field) {
  auto& speeds = run.program.form1->Data2;
  speeds.MoveFirst();
  run.program.desktop.files.write_file(path_of(run, name), [&](std::ostream& stream) {
    write_variation(stream, speeds.field(speed_field), speeds.field(speed_field + 1));
  });
}

End choose_reliability(Run& run) {
  const auto mode = analysis::reliability_mode(run.program);
  if (!mode) return tell(run, analysis::no_reliability_message, End::retry);
  run.ReliabilityMode = *mode;
  if (*mode == "DB") write_base_variation(run);
  return End::go_on;
}

/// The mode word is in capitals, so the branch is never taken: a "FILE" run passes on the word alone.
End bring_reliability_file(Run& run) {
  if (run.ReliabilityMode != "file") return End::go_on;
  auto& desktop = run.program.desktop;
  const std::string file = joined(run.program.form3->Data1(0).field("relfile"));
  if (!analysis::file_found(run, file)) {
    run.PendingMessage = std::to_string(desktop.MsgBox("file " + file + " not found!", exclamation));
    return End::reset;
  }
  desktop.files.FileCopy(file, path_of(run, "/var.txt"));
  return End::go_on;
}

End check_time_files(Run& run) {
  for (int i = 0; i <= 2; ++i) {
    const std::string file = joined(run.program.form3->Data1(1).field(i));
    if (!analysis::file_found(run, file)) {
      return tell(run, "file " + file + " not found. Please respecify file. ", End::bail, exclamation);
    }
  }
  return End::go_on;
}

void write_occupation_values(Run& run) {
  auto& form3 = run.program.form3;
  auto& files = run.program.desktop.files;
  for (int i = 1; i <= form3.PickCount; ++i) {
    const std::string& code = form3.PickCode(i);
    const auto occupation = analysis::parameters_of(run.db, market, code);
    files.write_file(path_of(run, "/sig" + code + ".txt"),
                     [&](std::ostream& stream) { write_one_value(stream, occupation.field("sigma")); });
    files.write_file(path_of(run, "/wage" + code + ".txt"),
                     [&](std::ostream& stream) { write_one_value(stream, occupation.field("wage")); });
  }
}

/// The three parameter files and the numbers under which they are open.
constexpr int outpar = 1;
constexpr int ccpar = 2;
constexpr int ccpar2 = 3;
constexpr int parameter_files[] = {outpar, ccpar, ccpar2};

void begin_parameter_files(Run& run) {
  auto& files = run.program.desktop.files;
  files.open_for_output(outpar, path_of(run, "/outpar.txt"));
  files.open_for_output(ccpar, path_of(run, "/ccpar.txt"));
  files.open_for_output(ccpar2, path_of(run, "/ccpar2.txt"));
  write_output_head(files.out(outpar), run.OutputBase, run.ZoneCount);
  write_cost_head(files.out(ccpar), run.ZoneCount, run.ReliabilityMode, base_case);
  write_cost_head(files.out(ccpar2), run.ZoneCount, run.ReliabilityMode, improvement_case);
}

End bring_district_file(Run& run) {
  Program& program = run.program;
  if (program.form3->Check1.value() != 1) return End::go_on;
  const std::string& file = program.form3.DistrictFile;
  if (file.empty() || !analysis::file_found(run, file)) {
    return tell(run, "File " + file + " not Found or not Specified!", End::retry);
  }
  program.desktop.files.FileCopy(file, path_of(run, "/district.txt"));
  run.DistrictCount = analysis::district_count(program);
  if (run.DistrictCount == 0) {
    return tell(run, analysis::no_districts_message, End::reset);
  }
  if (run.DistrictCount > run.ZoneCount) {
    program.form1.Unload();
    return tell(run, analysis::many_districts_message, End::reset);
  }
  return End::go_on;
}

void write_district_line(Run& run) {
  auto& out = run.program.desktop.files.out(outpar);
  if (run.program.form3->Check1.value() == 1) {
    write_districts(out, run.DistrictCount);
  } else {
    write_no_districts(out);
    run.DistrictCount = 0;
  }
}

End write_picks(Run& run) {
  auto& form3 = run.program.form3;
  auto& files = run.program.desktop.files;
  for (const int number : parameter_files) write_pick_count(files.out(number), form3.PickCount);
  for (int i = 1; i <= form3.PickCount; ++i) {
    const std::string& path = form3.PickPath(i);
    if (!analysis::file_found(run, path)) return tell(run, "File " + path + " not Found!", End::reset);
    files.FileCopy(path, path_of(run, std::string("/") + market.picked_file + form3.PickCode(i) + ".txt"));
    for (const int number : parameter_files) write_pick(files.out(number), form3.PickCode(i));
  }
  return End::go_on;
}

void finish_parameter_files(Run& run) {
  auto& files = run.program.desktop.files;
  for (const int number : parameter_files) files.Close(number);
  auto& shares = run.program.form1->Data3;
  std::vector<Value> fields;
  for (int i = 0; i < cost_parameter_fields; ++i) fields.push_back(shares.field(i));
  files.write_file(path_of(run, "/costpar.txt"),
                   [&](std::ostream& stream) { write_cost_parameters(stream, fields); });
}

End ask(Run& run) {
  Program& program = run.program;
  run.RunSummary = analysis::summary(program, market, run.ZoneCount, run.DistrictCount);
  program.form1.Unload();
  program.form2.Unload();
  program.form3.set_window_state(runtime::forms::WindowState::maximized);
  run.RunSummary += "Do you wish to continue?";
  return program.desktop.MsgBox(run.RunSummary, yes_no) == reply_no ? End::retry : End::go_on;
}

/// Runs the steps in order up to the first that ends the run.
template <typename... Steps>
End in_order(Run& run, Steps... steps) {
  End end = End::go_on;
  (void)((end = steps(run), end == End::go_on) && ...);
  return end;
}

}  // namespace

void write_base_variation(Run& run) {
  write_variation_file(run, "/base_var.txt", 0);
}
void write_improvement_variation(Run& run) {
  write_variation_file(run, "/imp_var.txt", 2);
}

End prepare(Run& run) {
  if (const End end =
          in_order(run, check_choices, choose_reliability, bring_reliability_file, check_time_files);
      end != End::go_on) {
    return end;
  }
  analysis::copy_time_files(run.program, market);
  run.program.form1.Unload();
  run.db = run.program.desktop.workspace.OpenDatabase(run.program.desktop.database_name);
  write_occupation_values(run);
  begin_parameter_files(run);
  if (const End end = bring_district_file(run); end != End::go_on) return end;
  write_district_line(run);
  if (const End end = write_picks(run); end != End::go_on) return end;
  finish_parameter_files(run);
  return ask(run);
}

}  // namespace commuter
