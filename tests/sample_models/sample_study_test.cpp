#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "sample_models/study_directory.h"

namespace model_test {
namespace {

struct SampleOccupation {
  std::string file;
  std::string sigma;
  std::string wage;
};

/// By the code of the commuter run.
const std::array<SampleOccupation, 12> occupations{{
    {"Precision_production_craft_and_repair", "11.27", "129.6"},
    {"Transportation_and_material_moving", "11.35", "120.64"},
    {"Executive_Adminstrative_Managerial", "12.25", "175.2"},
    {"Technicians_and_Related_Support", "12.83", "139.2"},
    {"Machine_operators_assemblers_inspectors", "13.04", "98"},
    {"Protective_Service", "13.21", "78.32"},
    {"Handlers_equipment_cleaners_helpers", "13.75", "88.24"},
    {"Sales", "13.05", "125.2"},
    {"Professional_Specialty", "14.57", "179.12"},
    {"Administrative_Support", "14.66", "101.12"},
    {"Private_Household", "16.02", "116.56"},
    {"Service", "16.49", "88.2"},
}};

class SampleStudy : public testing::Test {
 protected:
  SampleStudy() {
    copy("distance.txt", "Dist.txt");
    copy("base_time.txt", "base_time.txt");
    copy("imp_time.txt", "imp_time.txt");
    copy("districts.txt", "district.txt");
    copy("reliability.txt", "var.txt");
    study.write("costpar.txt", " .25           2.38 \r\n0              .7629  .0929  .1394  .0048 \r\n");
    for (std::size_t code = 0; code < occupations.size(); ++code) {
      const auto number = std::to_string(code);
      copy("commute_" + occupations[code].file + ".txt", "popemp" + number + ".txt");
      study.write("sig" + number + ".txt", " " + occupations[code].sigma + " \r\n");
      study.write("wage" + number + ".txt", " " + occupations[code].wage + " \r\n");
      codes += number + "\r\n";
    }
    study.write("outpar.txt", "report\r\n 24 \r\n1              4 \r\n" + codes);
  }

  void copy(const std::string& from, const std::string& to) const {
    std::filesystem::copy_file(std::filesystem::path(SAMPLE_STUDY) / from, study.path() / to);
  }

  std::string verdict(const std::string& program) const {
    EXPECT_EQ(study.run(program), 0);
    return study.read("err.txt");
  }

  std::string cost_verdict(const std::string& which) const {
    study.write("ccpar.txt", " 24 \r\nFILE\r\n" + which + "\r\n" + codes);
    return verdict(COST_PROGRAM);
  }

  StudyDirectory study;
  std::string codes = " 12 \r\n";
};

TEST_F(SampleStudy, runs_from_its_files_to_its_result) {
  EXPECT_EQ(cost_verdict("0"), "0\r\n");
  EXPECT_EQ(cost_verdict("1"), "0\r\n");
  EXPECT_EQ(verdict(REPORT_PROGRAM), "0\r\n");
  const auto report = study.read("report.txt");
  EXPECT_EQ(report.substr(report.find("Result")), with_crlf(R"(Result
------
The improvement saves the commuters of the study 121,890.82 dollars per working day, 1.09 dollars for each of them.
)"));
}

}  // namespace
}  // namespace model_test
