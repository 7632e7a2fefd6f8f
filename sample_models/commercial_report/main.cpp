// Computes what delay costs commercial traffic in both cases, and writes the report.
#include "commercial_report/commercial_report.h"
#include "common/text_file.h"
#include "common/verdict.h"

int main() {
  return model::run_and_leave_verdict("Err.txt", [] {
    const auto study = model::read_study();
    model::write_lines(study.report_file, model::report_text(study, model::compute_traffic(study)));
  });
}
