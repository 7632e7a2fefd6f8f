#include "analysis/market.h"

#include "analysis/run_state.h"
#include "runtime/fault.h"
#include "runtime/text/numbers.h"

namespace analysis {

using runtime::text::joined;

std::string path_of(const Program& program, const Market& market, const std::string& name) {
  return model_path(program, market.directory, name);
}

std::optional<std::string> reliability_mode(Program& program) {
  constexpr const char* modes[] = {"DB", "FILE", "NONE"};
  for (int option = 0; option <= 2; ++option) {
    if (program.form3->Option4(option).value()) return modes[option];
  }
  return std::nullopt;
}

void copy_time_files(Program& program, const Market& market) {
  auto& paths = program.form3->Data1(1);
  paths.MoveFirst();
  const auto& files = program.desktop.files;
  files.FileCopy(joined(paths.field("distance")), path_of(program, market, "/Dist.txt"));
  files.FileCopy(joined(paths.field("base_time")), path_of(program, market, "/base_time.txt"));
  files.FileCopy(joined(paths.field("improvement_time")), path_of(program, market, "/imp_time.txt"));
}

runtime::engine::Recordset parameters_of(runtime::engine::Database& database, const Market& market,
                                         const std::string& code) {
  auto parameters = database.OpenRecordset(market.row_query + code + " ");
  parameters.MoveFirst();
  return parameters;
}

std::string summary(Program& program, const Market& market, std::int16_t zones, std::int16_t districts) {
  auto& form3 = program.form3;
  std::string text = "The Number of Zones= " + std::to_string(zones) + "\r" +
                     "The Number of Districts= " + std::to_string(districts) + "\r" + market.summary_heading;
  for (int i = 1; i <= form3.PickCount; ++i) {
    const auto code = runtime::text::whole_16(runtime::text::val(form3.PickCode(i)));
    text += market.before_label + form3.PickLabel(code) + "\r";
  }
  return text;
}

void clean_up(Program& program, const Market& market) {
  for (const char* pattern : market.clean_up) {
    runtime::ignoring_faults([&] { program.desktop.files.Kill(path_of(program, market, pattern)); });
  }
}

}  // namespace analysis
