#include "commuter_report/study.h"

#include <cmath>

#include "common/line_reader.h"
#include "common/parameters.h"
#include "common/refusal.h"
#include "commuter_files/occupations.h"

namespace model {

namespace {

ReportedOccupation read_occupation(int code, int zones) {
  ReportedOccupation result{code, read_occupation_parameters(code), read_result(Case::Base, code, zones),
                            read_result(Case::Improvement, code, zones)};
  if (result.base.mode != result.improvement.mode) {
    throw Refusal(result_file(Case::Improvement, code), 1,
                  "the improvement case was computed with another reliability mode than the base case");
  }
  return result;
}

/// The report sums over all zones and occupations.
void refuse_what_is_too_large(const Commuting& sum, Case which, int code) {
  for (const double value : {sum.commuters, sum.minutes, sum.miles, sum.dollars}) {
    if (!std::isfinite(value)) {
      throw Refusal(result_file(which, code), "the numbers are too large to be computed with");
    }
  }
}

void check_sums(const std::vector<ReportedOccupation>& occupations) {
  Commuting base;
  Commuting improvement;
  for (const auto& occupation : occupations) {
    for (const auto& zone : occupation.base.zones) base += zone;
    refuse_what_is_too_large(base, Case::Base, occupation.code);
    for (const auto& zone : occupation.improvement.zones) improvement += zone;
    refuse_what_is_too_large(improvement, Case::Improvement, occupation.code);
  }
}

}  // namespace

Study read_study() {
  LineReader file("outpar.txt");
  Study study;
  study.report_file = read_report_file(file);
  study.zones = read_zone_count(file);
  study.districts = read_district_count(file, study.zones);
  const auto codes = read_codes(file, occupation_codes);
  file.expect_end();
  study.travel = read_travel_parameters();
  if (study.districts > 0) study.district_of = read_districts("district.txt", study.zones, study.districts);
  for (const int code : codes) study.occupations.push_back(read_occupation(code, study.zones));
  check_sums(study.occupations);
  return study;
}

}  // namespace model
