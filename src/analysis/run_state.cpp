#include "analysis/run_state.h"

#include <algorithm>

#include "runtime/text/numbers.h"

namespace analysis {

namespace {
constexpr int last_entry = 13;
}  // namespace

std::int16_t district_count(Program& program) {
  return runtime::text::whole_16(runtime::text::val(program.form2->MaskEdBox2.text()));
}

void forget_picks(Program& program) {
  forms::Form3& form3 = program.form3;
  for (int i = 0; i <= std::min<int>(form3.PickCount, last_entry); ++i) {
    form3.PickPath(i).clear();
    form3.PickCode(i).clear();
  }
  form3.PickCount = 0;
  form3.OutputFile.clear();
  form3.DistrictFile.clear();
}

void reopen_time_and_distance(Program& program) {
  program.mdiform1.spec_CuCo.set_enabled(false);
  program.mdiform1.spec_timdist.set_enabled(true);
}

std::string output_base(const std::string& output_file) {
  return output_file.substr(0, output_file.find('.'));
}

std::string model_path(const Program& program, const std::string& directory, const std::string& name) {
  return program.desktop.app_path + "/" + directory + name;
}

}  // namespace analysis
