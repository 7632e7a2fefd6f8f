#include <gtest/gtest.h>

#include "sample_models/refused_file.h"
#include "sample_models/two_zone_study.h"

namespace model_test {
namespace {

class CostRefusal : public testing::TestWithParam<RefusedFile> {};

TEST_P(CostRefusal, names_the_file_the_line_and_the_reason) {
  const StudyDirectory study;
  write_two_zones(study);
  study.write("base_var.txt", " 30            .2 \r\n");
  study.write("var.txt", "30 0.2 40 0.3\r\n");
  const auto& refused = GetParam();
  ask_for_case(study,
               refused.file == "base_var.txt" ? "DB"
               : refused.file == "var.txt"    ? "FILE"
                                              : "NONE",
               "0");
  spoil(study, refused);
  EXPECT_EQ(study.run(COST_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "1, " + refused.sentence + "\r\n");
  EXPECT_FALSE(study.has("costbase7.txt"));
}

const std::string no_crlf = "the line does not end in carriage return and line feed";

INSTANTIATE_TEST_SUITE_P(
    request, CostRefusal,
    testing::Values(
        RefusedFile{"ccpar.txt", {}, "ccpar.txt: the file is missing or cannot be opened"},
        RefusedFile{"ccpar.txt", "", "ccpar.txt line 1: the line is missing"},
        RefusedFile{"ccpar.txt", " 2 \n", "ccpar.txt line 1: " + no_crlf},
        RefusedFile{"ccpar.txt", " 2 ", "ccpar.txt line 1: " + no_crlf},
        RefusedFile{"ccpar.txt", std::string(33000, ' ') + "\r\n", "ccpar.txt line 1: the line is too long"},
        RefusedFile{"ccpar.txt", " 0 \r\n", "ccpar.txt line 1: ' 0 ' is not a whole number from 1 to 9999"},
        RefusedFile{"ccpar.txt", " 10000 \r\n",
                    "ccpar.txt line 1: ' 10000 ' is not a whole number from 1 to 9999"},
        RefusedFile{"ccpar.txt", "two\r\n", "ccpar.txt line 1: 'two' is not a whole number from 1 to 9999"},
        RefusedFile{"ccpar.txt", " 2 \r\nfile\r\n",
                    "ccpar.txt line 2: 'file' is not one of the words DB and FILE and NONE"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n2\r\n",
                    "ccpar.txt line 3: '2' is not a whole number from 0 to 1"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n0\r\n 0 \r\n",
                    "ccpar.txt line 4: ' 0 ' is not a whole number from 1 to 12"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n0\r\n 1 \r\n12\r\n",
                    "ccpar.txt line 5: '12' is not a known code"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n0\r\n 2 \r\n7\r\n7\r\n",
                    "ccpar.txt line 6: code '7' stands twice"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n0\r\n 2 \r\n7\r\n", "ccpar.txt line 6: the line is missing"},
        RefusedFile{"ccpar.txt", " 2 \r\nNONE\r\n0\r\n 1 \r\n7\r\n8\r\n",
                    "ccpar.txt line 6: the file has more lines than it may have"}));

INSTANTIATE_TEST_SUITE_P(
    parameters, CostRefusal,
    testing::Values(
        RefusedFile{"sig7.txt", {}, "sig7.txt: the file is missing or cannot be opened"},
        RefusedFile{"sig7.txt", "-1 \r\n", "sig7.txt line 1: '-1' is negative"},
        RefusedFile{"sig7.txt", " 1,5 \r\n", "sig7.txt line 1: '1 5' is not a number"},
        RefusedFile{"sig7.txt", " inf \r\n", "sig7.txt line 1: 'inf' is not a number"},
        RefusedFile{"sig7.txt", " 1 \r\n 2 \r\n",
                    "sig7.txt line 2: the file has more lines than it may have"},
        RefusedFile{"wage7.txt", "\r\n", "wage7.txt line 1: the line must hold 1 number and holds 0"},
        RefusedFile{"wage7.txt", " 0 \r\n", "wage7.txt line 1: the wage must be greater than 0"},
        RefusedFile{"costpar.txt", " 1 \r\n", "costpar.txt line 1: the line must hold 2 numbers and holds 1"},
        RefusedFile{"costpar.txt", " 1  2 \r\n1 .5  .25  .25  0 \r\n",
                    "costpar.txt line 2: the line must begin with 0"},
        RefusedFile{"costpar.txt", " 1  2 \r\n0 .5  .25  .2  0 \r\n",
                    "costpar.txt line 2: the four mode shares must total 1"},
        RefusedFile{"base_var.txt", {}, "base_var.txt: the file is missing or cannot be opened"},
        RefusedFile{"base_var.txt", " 0            .2 \r\n",
                    "base_var.txt line 1: the speed must be greater than 0"},
        RefusedFile{"base_var.txt", " 30            42 \r\n",
                    "base_var.txt line 1: the highway share must be from 0 to 1"},
        RefusedFile{"var.txt", "30 0.2\r\n", "var.txt line 1: the line must hold 4 numbers and holds 2"}));

INSTANTIATE_TEST_SUITE_P(
    people, CostRefusal,
    testing::Values(
        RefusedFile{"popemp7.txt", {}, "popemp7.txt: the file is missing or cannot be opened"},
        RefusedFile{"popemp7.txt", "1 202 151\r\n",
                    "popemp7.txt line 1: the line must have three fields of 10 columns"},
        RefusedFile{"popemp7.txt", "                 202       151\r\n",
                    "popemp7.txt line 1: '          ' is not a zone"},
        RefusedFile{"popemp7.txt", "         3       202       151\r\n",
                    "popemp7.txt line 1: there is no zone 3"},
        RefusedFile{"popemp7.txt", "         1       202       151\r\n         1       100       151\r\n",
                    "popemp7.txt line 2: zone 1 stands twice"},
        RefusedFile{"popemp7.txt", "         1       202       151\r\n",
                    "popemp7.txt line 2: the line is missing"},
        RefusedFile{"popemp7.txt", "         1      many       151\r\n",
                    "popemp7.txt line 1: '      many' is not a number"},
        RefusedFile{"popemp7.txt", "         1       202      -151\r\n",
                    "popemp7.txt line 1: '      -151' is negative"},
        RefusedFile{"popemp7.txt", "         1       202          \r\n         2       100          \r\n",
                    "popemp7.txt: persons live in the zones but none works there"},
        RefusedFile{"popemp7.txt", "         1     1E308       151\r\n         2       100       151\r\n",
                    "popemp7.txt: the numbers are too large to be computed with"}));

INSTANTIATE_TEST_SUITE_P(
    pairs, CostRefusal,
    testing::Values(
        RefusedFile{"base_time.txt", {}, "base_time.txt: the file is missing or cannot be opened"},
        RefusedFile{"Dist.txt", {}, "Dist.txt: the file is missing or cannot be opened"},
        RefusedFile{"Dist.txt", "1 1 9\r\n1 1 9\r\n",
                    "Dist.txt line 2: pair 1 1 stands twice or out of order"},
        RefusedFile{"Dist.txt", "1 1 9\r\n2 1 29\r\n", "Dist.txt line 2: pair 1 2 is missing"},
        RefusedFile{"Dist.txt", "1 1 9\r\n1 3 9\r\n", "Dist.txt line 2: there is no zone 3 in a study of 2"},
        RefusedFile{"Dist.txt", "0 1 9\r\n", "Dist.txt line 1: there is no zone 0 in a study of 2"},
        RefusedFile{"Dist.txt", "1 1 9\r\n1 2 29\r\n2 1 29\r\n", "Dist.txt line 4: the line is missing"},
        RefusedFile{"Dist.txt", "1 1 9\r\n1 2 29\r\n2 1 29\r\n2 2 9\r\n1 1 9\r\n",
                    "Dist.txt line 5: the file has more lines than it may have"},
        RefusedFile{"Dist.txt", "1 1 9\r\n1 2 29\r\n2 1 29\r\n2 2 9", "Dist.txt line 4: " + no_crlf},
        RefusedFile{"Dist.txt", "1 1 \r\n", "Dist.txt line 1: pair 1 1 has no value"},
        RefusedFile{"Dist.txt", "1 1 -9\r\n", "Dist.txt line 1: '-9' is negative"},
        RefusedFile{"Dist.txt", "1 1 9x\r\n", "Dist.txt line 1: '9x' is not a number"},
        RefusedFile{"Dist.txt", "1 1  9\r\n", "Dist.txt line 1: ' 9' is not a number"},
        RefusedFile{"Dist.txt", "1,1,9\r\n",
                    "Dist.txt line 1: '1 1 9' is not an origin and a destination and a value"},
        RefusedFile{"Dist.txt", " 1 1 9\r\n",
                    "Dist.txt line 1: ' 1 1 9' is not an origin and a destination and a value"}));

TEST(CostRefusalByCase, improvement_case_needs_roads_of_its_own) {
  const StudyDirectory study;
  write_two_zones(study);
  study.write("base_var.txt", " 30            .2 \r\n");
  ask_for_case(study, "DB", "1");
  EXPECT_EQ(study.run(COST_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "1, imp_var.txt: the file is missing or cannot be opened\r\n");
}

TEST(CostRefusalByCase, file_that_is_a_directory_cannot_be_read) {
  const StudyDirectory study;
  write_two_zones(study);
  study.remove("Dist.txt");
  std::filesystem::create_directory(study.path() / "Dist.txt");
  EXPECT_EQ(study.run(COST_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "1, Dist.txt: the file cannot be read\r\n");
}

}  // namespace
}  // namespace model_test
