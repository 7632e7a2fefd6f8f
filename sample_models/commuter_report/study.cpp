#include "commuter_report/study.h"

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
  return study;
}

}  // namespace model
