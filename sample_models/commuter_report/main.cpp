// Writes the report of a commuter run from the results of both cases.
#include "common/text_file.h"
#include "common/verdict.h"
#include "commuter_report/commuter_report.h"

int main() {
  return model::run_and_leave_verdict("err.txt", [] {
    const auto study = model::read_study();
    model::write_lines(study.report_file, model::report_text(study));
  });
}
