#include <gtest/gtest.h>

#include <array>

#include "sample_models/study_directory.h"

namespace model_test {
namespace {

struct SampleIndustry {
  std::string code;
  std::string name;
  std::string sigma;
  std::string costs;
};

const std::array<SampleIndustry, 4> industries{{
    {"1", "Agriculture", "14.51", " 16765         25.07         430           1             90 "},
    {"2", "Mining", "4.62", " 5469          25.04         50            1             95 "},
    {"4", "Manufacturing", "7.44", " 34682         25.66         50            1             95 "},
    {"9", "Service", "10.61", " 135           0             50            1             95 "},
}};

/// An application directory with the sample study's files, and what the front end lays out in "truck".
class SampleTrucks : public testing::Test {
 protected:
  SampleTrucks() {
    std::filesystem::copy(SAMPLE_STUDY, place.path() / "sample");
    std::filesystem::create_directory(place.path() / "truck");
    copy("sample/distance.txt", "Dist.txt");
    copy("sample/base_time.txt", "base_time.txt");
    copy("sample/imp_time.txt", "imp_time.txt");
    copy("sample/districts.txt", "district.txt");
    write("base_var.txt", " 38  .42 ");
    write("imp_var.txt", " .42  47 ");
    for (const auto& [code, name, sigma, costs] : industries) {
      write("sig" + code + ".txt", ' ' + sigma + ' ');
      write("cost" + code + ".txt", costs);
    }
  }

  void copy(const std::string& from, const std::string& to) const {
    std::filesystem::copy_file(place.path() / from, place.path() / "truck" / to,
                               std::filesystem::copy_options::overwrite_existing);
  }

  void write(const std::string& name, const std::string& line) const {
    place.write("truck/" + name, line + "\r\n");
  }

  std::string verdict(const std::string& program) const {
    EXPECT_EQ(place.run(program, "truck"), 0);
    return place.read("truck/Err.txt");
  }

  /// Runs the report with the trips of "sample/" + `before` + industry + `behind`; its last section.
  std::string result_with(const std::string& before, const std::string& behind) const {
    for (const auto& industry : industries) {
      copy("sample/" + before + industry.name + behind, "trktrp" + industry.code + ".txt");
    }
    write("outpar.txt", " 24 \r\n1              4 \r\nDB\r\nreport\r\n 4 \r\n1\r\n2\r\n4\r\n9");
    EXPECT_EQ(verdict(TRUCK_REPORT_PROGRAM), "0\r\n");
    const auto report = place.read("truck/report.txt");
    return report.substr(report.find("Result"));
  }

  StudyDirectory place;
};

TEST_F(SampleTrucks, runs_from_its_files_to_its_result) {
  EXPECT_EQ(result_with("trips_", ".txt"), with_crlf(R"(Result
------
The improvement saves the commercial traffic of the study 31,469.06 dollars per working day, 2.27 dollars for each trip.
)"));
}

TEST_F(SampleTrucks, runs_from_its_tons_to_its_result) {
  copy("sample/commodity.txt", "commodity.txt");
  write("ttc.txt", "sample/\r\n 24 ");
  write("tontotruck.txt",
        "  1  16.5  0.88  300\r\n  2  21  0.62  280\r\n  3  14.2  0.91  300\r\n  4  18.4  0.79  280\r\n"
        "  5  20.1  0.54  310\r\n  6  17.3  0.7  290\r\n  7  8.6  0.95  300\r\n  8  5.4  0.97  310");
  EXPECT_EQ(verdict(TONS_PROGRAM), "0\r\n");
  EXPECT_EQ(result_with("commodity_", "_trip.txt"), with_crlf(R"(Result
------
The improvement saves the commercial traffic of the study 3,556.29 dollars per working day, 3.47 dollars for each trip.
)"));
}

}  // namespace
}  // namespace model_test
