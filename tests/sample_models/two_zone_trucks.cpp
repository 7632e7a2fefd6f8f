#include "sample_models/two_zone_trucks.h"

namespace model_test {

void write_two_zone_trucks(const StudyDirectory& study) {
  ask_for_trucks(study, "NONE");
  study.write("Dist.txt", "1 1 6\r\n1 2 30\r\n2 1 30\r\n2 2 6\r\n");
  study.write("base_time.txt", "1 1 50\r\n1 2 150\r\n2 1 150\r\n2 2 50\r\n");
  study.write("imp_time.txt", "1 1 50\r\n1 2 50\r\n2 1 50\r\n2 2 50\r\n");
  study.write("trktrp4.txt",
              "         1         1        11\r\n         1         2         9\r\n"
              "         2         1          \r\n         2         2        10\r\n");
  study.write("sig4.txt", " 2 \r\n");
  study.write("cost4.txt", " 400           39.98         600           1             50 \r\n");
}

void ask_for_trucks(const StudyDirectory& study, const std::string& mode, const std::string& districts,
                    const std::string& picks) {
  study.write("outpar.txt", " 2 \r\n" + districts + "\r\n" + mode + "\r\nreport\r\n" + picks);
}

}  // namespace model_test
