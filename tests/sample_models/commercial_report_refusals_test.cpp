#include <gtest/gtest.h>

#include "sample_models/refused_file.h"
#include "sample_models/two_zone_trucks.h"

namespace model_test {
namespace {

class TruckRefusal : public testing::TestWithParam<RefusedFile> {};

TEST_P(TruckRefusal, names_the_file_the_line_and_the_reason) {
  const StudyDirectory study;
  write_two_zone_trucks(study);
  const auto& refused = GetParam();
  study.write("base_var.txt", " 30  .2 \r\n");
  study.write("imp_var.txt", " .2  40 \r\n");
  study.write("district.txt", "1 2\r\n2 1\r\n");
  ask_for_trucks(study, refused.file == "var.txt" ? "FILE" : "DB", "1              2 ");
  spoil(study, refused);
  EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("Err.txt"), "1, " + refused.sentence + "\r\n");
  EXPECT_FALSE(study.has("report.txt"));
}

const std::string no_crlf = "the line does not end in carriage return and line feed";
const std::string too_large = "trktrp4.txt: the numbers are too large to be computed with";

TEST(TruckSums, that_are_too_large_over_all_zones_are_refused_with_the_file) {
  const StudyDirectory study;
  write_two_zone_trucks(study);
  ask_for_trucks(study, "NONE", "0             0");
  study.write("trktrp4.txt", with_crlf("         1         1         1\n         1         2          \n"
                                       "         2         1          \n         2         2         1\n"));
  for (const char* file : {"base_time.txt", "imp_time.txt"})
    study.write(file, "1 1 1E308\r\n1 2 1\r\n2 1 1\r\n2 2 1E308\r\n");
  EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("Err.txt"), "1, " + too_large + "\r\n");
  EXPECT_FALSE(study.has("report.txt"));
}

INSTANTIATE_TEST_SUITE_P(
    request, TruckRefusal,
    testing::Values(
        RefusedFile{"outpar.txt", {}, "outpar.txt: the file is missing or cannot be opened"},
        RefusedFile{"outpar.txt", "", "outpar.txt line 1: the line is missing"},
        RefusedFile{"outpar.txt", " 2 \n", "outpar.txt line 1: " + no_crlf},
        RefusedFile{"outpar.txt", " 10000 \r\n",
                    "outpar.txt line 1: ' 10000 ' is not a whole number from 1 to 9999"},
        RefusedFile{"outpar.txt", " 2 \r\n1              3 \r\n",
                    "outpar.txt line 2: '1              3 ' is neither 0 and 0 nor 1 and a number of "
                    "districts up to 2"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nfile\r\n",
                    "outpar.txt line 3: 'file' is not one of the words DB and FILE and NONE"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\n\r\n",
                    "outpar.txt line 4: the output file has no name"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 5 \r\n",
                    "outpar.txt line 5: ' 5 ' is not a whole number from 1 to 4"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 1 \r\n3\r\n",
                    "outpar.txt line 6: '3' is not a known code"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 2 \r\n4\r\n4\r\n",
                    "outpar.txt line 7: code '4' stands twice"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 1 \r\n4\r\n9\r\n",
                    "outpar.txt line 7: the file has more lines than it may have"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 1 \r\n9\r\n",
                    "sig9.txt: the file is missing or cannot be opened"},
        RefusedFile{"outpar.txt", " 2 \r\n0             0\r\nNONE\r\nno,such/place/report\r\n 1 \r\n4\r\n",
                    "no such/place/report.txt: the file cannot be written"}));

INSTANTIATE_TEST_SUITE_P(
    parameters, TruckRefusal,
    testing::Values(
        RefusedFile{"sig4.txt", "Null\r\n", "sig4.txt line 1: 'Null' is not a number"},
        RefusedFile{"sig4.txt", " 2 \r\n 2 \r\n",
                    "sig4.txt line 2: the file has more lines than it may have"},
        RefusedFile{"cost4.txt", {}, "cost4.txt: the file is missing or cannot be opened"},
        RefusedFile{"cost4.txt", " 400           39.98         600           1 \r\n",
                    "cost4.txt line 1: the line must hold 5 numbers and holds 4"},
        RefusedFile{"cost4.txt", " 400          -39.98         600           1             50 \r\n",
                    "cost4.txt line 1: '-39.98' is negative"},
        RefusedFile{"cost4.txt", " 0             39.98         600           1             50 \r\n",
                    "cost4.txt line 1: the value must be greater than 0"},
        RefusedFile{"cost4.txt", " 400           39.98         600           1             101 \r\n",
                    "cost4.txt line 1: the load factor must be from 0 to 100"},
        RefusedFile{"cost4.txt", " 1  1  1  1  1 \r\n\r\n",
                    "cost4.txt line 2: the file has more lines than it may have"}));

INSTANTIATE_TEST_SUITE_P(
    roads, TruckRefusal,
    testing::Values(
        RefusedFile{"base_var.txt", {}, "base_var.txt: the file is missing or cannot be opened"},
        RefusedFile{"base_var.txt", " 0  .2 \r\n", "base_var.txt line 1: the speed must be greater than 0"},
        RefusedFile{"base_var.txt", " 30  42 \r\n",
                    "base_var.txt line 1: the highway share must be from 0 to 1"},
        RefusedFile{"imp_var.txt", {}, "imp_var.txt: the file is missing or cannot be opened"},
        RefusedFile{"imp_var.txt", " .2  0 \r\n", "imp_var.txt line 1: the speed must be greater than 0"},
        RefusedFile{"imp_var.txt", " 42  40 \r\n",
                    "imp_var.txt line 1: the highway share must be from 0 to 1"},
        RefusedFile{"imp_var.txt", " .2  40 \r\n\r\n",
                    "imp_var.txt line 2: the file has more lines than it may have"},
        RefusedFile{"var.txt", "30 0.2\r\n", "var.txt line 1: the line must hold 4 numbers and holds 2"}));

INSTANTIATE_TEST_SUITE_P(
    districts, TruckRefusal,
    testing::Values(RefusedFile{"district.txt", {}, "district.txt: the file is missing or cannot be opened"},
                    RefusedFile{"district.txt", "1 3\r\n", "district.txt line 1: there is no district 3"},
                    RefusedFile{"district.txt", "1 1\r\n", "district.txt line 2: the line is missing"}));

INSTANTIATE_TEST_SUITE_P(
    times_and_distances, TruckRefusal,
    testing::Values(
        RefusedFile{"Dist.txt", {}, "Dist.txt: the file is missing or cannot be opened"},
        RefusedFile{"base_time.txt", {}, "base_time.txt: the file is missing or cannot be opened"},
        RefusedFile{"imp_time.txt", {}, "imp_time.txt: the file is missing or cannot be opened"},
        RefusedFile{"imp_time.txt", "1 1 50\r\n2 1 50\r\n", "imp_time.txt line 2: pair 1 2 is missing"},
        RefusedFile{"Dist.txt", "1 1 6\r\n1 2 30\r\n2 1 30\r\n2 2 6\r\n1 1 6\r\n",
                    "Dist.txt line 5: the file has more lines than it may have"},
        RefusedFile{"base_time.txt", "1 1 50\r\n1 2 1E308\r\n2 1 150\r\n2 2 50\r\n", too_large}));

INSTANTIATE_TEST_SUITE_P(
    trips, TruckRefusal,
    testing::Values(RefusedFile{"trktrp4.txt", {}, "trktrp4.txt: the file is missing or cannot be opened"},
                    RefusedFile{"trktrp4.txt", "1 1 11\r\n",
                                "trktrp4.txt line 1: the line must have three fields of 10 columns"},
                    RefusedFile{"trktrp4.txt", "                   1        11\r\n",
                                "trktrp4.txt line 1: '          ' is not a zone"},
                    RefusedFile{"trktrp4.txt", "         1       1.5        11\r\n",
                                "trktrp4.txt line 1: '       1.5' is not a zone"},
                    RefusedFile{"trktrp4.txt", "         1         3        11\r\n",
                                "trktrp4.txt line 1: there is no zone 3 in a study of 2"},
                    RefusedFile{"trktrp4.txt",
                                "         1         1        11\r\n         1         1        11\r\n",
                                "trktrp4.txt line 2: pair 1 1 stands twice or out of order"},
                    RefusedFile{"trktrp4.txt", "         1         2        11\r\n",
                                "trktrp4.txt line 1: pair 1 1 is missing"},
                    RefusedFile{"trktrp4.txt", "         1         1      many\r\n",
                                "trktrp4.txt line 1: '      many' is not a number"},
                    RefusedFile{"trktrp4.txt", "         1         1       -11\r\n",
                                "trktrp4.txt line 1: '       -11' is negative"},
                    RefusedFile{"trktrp4.txt", "         1         1        11\r\n",
                                "trktrp4.txt line 2: the line is missing"},
                    RefusedFile{"trktrp4.txt",
                                "         1         1        11\r\n         1         2         9\r\n"
                                "         2         1          \r\n         2         2        10\r\n\r\n",
                                "trktrp4.txt line 5: the file has more lines than it may have"}));

}  // namespace
}  // namespace model_test
