#include "sample_models/two_zone_study.h"

namespace model_test {

void write_two_zones(const StudyDirectory& study) {
  ask_for_case(study, "NONE", "0");
  study.write("Dist.txt", "1 1 9\r\n1 2 29\r\n2 1 29\r\n2 2 9\r\n");
  study.write("base_time.txt", "1 1 50\r\n1 2 150\r\n2 1 150\r\n2 2 50\r\n");
  study.write("imp_time.txt", "1 1 50\r\n1 2 30\r\n2 1 30\r\n2 2 50\r\n");
  study.write("popemp7.txt", "         1       202       151\r\n         2       100       151\r\n");
  study.write("sig7.txt", " 2 \r\n");
  study.write("wage7.txt", " 480 \r\n");
  study.write("costpar.txt", " .8            4 \r\n0              .5  .25  .25  0 \r\n");
  study.write("outpar.txt", "report\r\n 2 \r\n0             0\r\n 1 \r\n7\r\n");
}

void ask_for_case(const StudyDirectory& study, const std::string& mode, const std::string& which) {
  study.write("ccpar.txt", " 2 \r\n" + mode + "\r\n" + which + "\r\n 1 \r\n7\r\n");
}

void run_both_cases(const StudyDirectory& study, const std::string& mode) {
  for (const auto* const which : {"0", "1"}) {
    ask_for_case(study, mode, which);
    study.run(COST_PROGRAM);
  }
}

}  // namespace model_test
