#include "analysis/verdict.h"

#include "runtime/text/numbers.h"

namespace analysis {

std::optional<std::string> read_verdict(runtime::files::Files& files, const std::string& name) {
  using runtime::files::Until;
  constexpr int number = 1;
  files.open_for_input(number, name);
  if (runtime::text::val(files.input_value(number, Until::blank_comma_or_line)) == 0) return std::nullopt;
  return files.input_value(number, Until::comma_or_line);
}

}  // namespace analysis
