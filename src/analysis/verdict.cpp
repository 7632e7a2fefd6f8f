#include "analysis/verdict.h"

#include "runtime/text/numbers.h"

namespace analysis {

namespace {

bool begins_with_number(const std::string& value) {
  const auto digit = value.find_first_not_of("+-.");
  return digit != std::string::npos && value[digit] >= '0' && value[digit] <= '9';
}

}  // namespace

Verdict read_verdict(runtime::files::Files& files, const std::string& name) {
  using runtime::files::Until;
  constexpr int number = 1;
  files.open_for_input(number, name);
  const std::string first = files.input_value(number, Until::blank_comma_or_line);
  if (runtime::text::val(first) == 0) return {std::nullopt, begins_with_number(first)};
  return {files.input_value(number, Until::comma_or_line)};
}

}  // namespace analysis
