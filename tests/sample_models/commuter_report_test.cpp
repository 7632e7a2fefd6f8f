#include <gtest/gtest.h>

#include "sample_models/refused_file.h"
#include "sample_models/two_zone_study.h"

namespace model_test {
namespace {

class CommuterReport : public testing::Test {
 protected:
  CommuterReport() { write_two_zones(study); }

  /// Runs both cases and the report; the report's bytes.
  std::string report(const std::string& mode) {
    run_both_cases(study, mode);
    EXPECT_EQ(study.run(REPORT_PROGRAM), 0);
    EXPECT_EQ(study.read("err.txt"), "0\r\n");
    return study.read("report.txt");
  }

  /// The section that begins with `heading`, up to the next empty line.
  static std::string section(const std::string& text, const std::string& heading) {
    const auto start = text.find(heading);
    return start == std::string::npos ? text : text.substr(start, text.find("\r\n\r\n", start) - start);
  }

  /// The words of the report's last line.
  std::string result(const std::string& mode) {
    const auto text = report(mode);
    return text.substr(text.rfind('\n', text.size() - 2) + 1);
  }

  StudyDirectory study;
};

const std::string heading = R"(What commuting costs, and what the improvement is worth
=======================================================

Miles and minutes are means over the commuters, one way. Costs are those of one working day, both
ways, in dollars: time, cars, fares and the loss of being tied to near workplaces. The benefit is
the base case's cost less the improvement case's, rounded after the subtraction. Where a faster way
opens farther workplaces, people travel farther: mean miles may rise.

These figures come from the sample models, which are stand-ins and not calibrated.

)";

TEST_F(CommuterReport, tells_the_study_and_its_figures) {
  EXPECT_EQ(report("NONE"), with_crlf(heading + R"(The study
---------
Zones                       2
Districts                   none
Cost of a car               0.8 dollars per mile
Fare of public transport    4 dollars per day
Mode shares
  drive alone               50.00 %
  public transport          25.00 %
  two in one car            25.00 %
  walk or cycle             0.00 %
Reliability                 not part of this analysis

Wages and elasticities
----------------------
            Wage per day  Elasticity of
Occupation       dollars   substitution
---------------------------------------
Sales             480.00              2

By occupation
-------------
                            Miles     Miles  Minutes   Minutes  Dollars a day  Dollars a day     Benefit in
Occupation       Commuters   base  improved     base  improved           base       improved  dollars a day
-----------------------------------------------------------------------------------------------------------
Sales                  302   17.0      19.0     90.1      40.0      34,428.00      18,120.00      16,308.00
-----------------------------------------------------------------------------------------------------------
All occupations        302   17.0      19.0     90.1      40.0      34,428.00      18,120.00      16,308.00

Result
------
The improvement saves the commuters of the study 16,308.00 dollars per working day, 54.00 dollars for each of them.
)"));
}

// At 30 miles per hour instead of 40 a mile takes half a minute more, a fifth of a minute unexpected: each
// mile costs 2 * 0.2 * 1 = 0.40 dollars more. So the base case's prices are 543.6 and 671.6, their index is
// 600.859, and 120.859 dollars a day are the cost of each commuter. District 1 is zone 2, district 2 is
// zone 1.
TEST_F(CommuterReport, tells_districts_and_reliability) {
  study.write("base_var.txt", " 30            .2 \r\n");
  study.write("imp_var.txt", " 40            .2 \r\n");
  study.write("district.txt", "1 2\r\n2 1\r\n");
  study.write("outpar.txt", "report\r\n 2 \r\n1              2 \r\n 1 \r\n7\r\n");
  EXPECT_EQ(report("DB"), with_crlf(heading + R"(The study
---------
Zones                       2
Districts                   2
Cost of a car               0.8 dollars per mile
Fare of public transport    4 dollars per day
Mode shares
  drive alone               50.00 %
  public transport          25.00 %
  two in one car            25.00 %
  walk or cycle             0.00 %
Reliability                 sketch-planning data
  base case                 30.0 miles per hour, 20.0 % on highways: 0.20 unexpected minutes per mile
  improvement case          40.0 miles per hour, 20.0 % on highways: 0.00 unexpected minutes per mile

Wages and elasticities
----------------------
            Wage per day  Elasticity of
Occupation       dollars   substitution
---------------------------------------
Sales             480.00              2

By occupation
-------------
                            Miles     Miles  Minutes   Minutes  Dollars a day  Dollars a day     Benefit in
Occupation       Commuters   base  improved     base  improved           base       improved  dollars a day
-----------------------------------------------------------------------------------------------------------
Sales                  302   16.9      19.0     89.6      40.0      36,499.33      18,120.00      18,379.33
-----------------------------------------------------------------------------------------------------------
All occupations        302   16.9      19.0     89.6      40.0      36,499.33      18,120.00      18,379.33

By district of residence
------------------------
                            Miles     Miles  Minutes   Minutes  Dollars a day  Dollars a day     Benefit in
District  Zones  Commuters   base  improved     base  improved           base       improved  dollars a day
-----------------------------------------------------------------------------------------------------------
1             1        100   16.9      19.0     89.6      40.0      12,085.87       6,000.00       6,085.87
2             1        202   16.9      19.0     89.6      40.0      24,413.46      12,120.00      12,293.46
-----------------------------------------------------------------------------------------------------------
All           2        302   16.9      19.0     89.6      40.0      36,499.33      18,120.00      18,379.33

Result
------
The improvement saves the commuters of the study 18,379.33 dollars per working day, 60.86 dollars for each of them.
)"));
}

TEST_F(CommuterReport, tells_the_roads_of_the_analysts_file) {
  study.write("var.txt", "30 0.2 40 0.2\r\n");
  const auto text = report("FILE");
  EXPECT_NE(text.find(with_crlf(R"(
Reliability                 data of the analyst's file
  base case                 30.0 miles per hour, 20.0 % on highways: 0.20 unexpected minutes per mile
  improvement case          40.0 miles per hour, 20.0 % on highways: 0.00 unexpected minutes per mile
)")),
            std::string::npos)
      << text;
}

TEST_F(CommuterReport, tells_when_no_reliability_data_were_supplied) {
  const auto text = report("FILE");
  EXPECT_NE(text.find(with_crlf(R"(
Reliability                 asked for from a file, but no reliability data were supplied;
                            the figures leave it out
)")),
            std::string::npos)
      << text;
}

TEST_F(CommuterReport, improvement_equal_to_the_base_case_is_worth_nothing) {
  study.write("imp_time.txt", study.read("base_time.txt"));
  EXPECT_EQ(result("NONE"), "The improvement makes no difference to the cost of commuting.\r\n");
}

TEST_F(CommuterReport, longer_ways_are_told_as_a_cost) {
  const auto slow = study.read("base_time.txt");
  study.write("base_time.txt", study.read("imp_time.txt"));
  study.write("imp_time.txt", slow);
  EXPECT_EQ(result("NONE"),
            "The improvement costs the commuters of the study 16,308.00 dollars per working day, 54.00 "
            "dollars for each "
            "of them.\r\n");
}

TEST_F(CommuterReport, occupations_keep_the_order_of_their_picks) {
  for (const auto* const name : {"sig", "wage", "popemp"}) {
    study.write(std::string(name) + "0.txt", study.read(std::string(name) + "7.txt"));
  }
  study.write("popemp0.txt", "         1                   1\r\n         2                    \r\n");
  for (const auto* const which : {"0", "1"}) {
    study.write("ccpar.txt", std::string(" 2 \r\nNONE\r\n") + which + "\r\n 2 \r\n7\r\n0\r\n");
    EXPECT_EQ(study.run(COST_PROGRAM), 0);
  }
  study.write("outpar.txt", "report\r\n 2 \r\n0             0\r\n 2 \r\n7\r\n0\r\n");
  EXPECT_EQ(study.run(REPORT_PROGRAM), 0);
  EXPECT_EQ(section(study.read("report.txt"), "By occupation"), with_crlf(R"(By occupation
-------------
                                            Miles     Miles  Minutes   Minutes  Dollars a day  Dollars a day     Benefit in
Occupation                       Commuters   base  improved     base  improved           base       improved  dollars a day
---------------------------------------------------------------------------------------------------------------------------
Sales                                  302   17.0      19.0     90.1      40.0      34,428.00      18,120.00      16,308.00
Precision production and repair          0      -         -        -         -           0.00           0.00           0.00
---------------------------------------------------------------------------------------------------------------------------
All occupations                        302   17.0      19.0     90.1      40.0      34,428.00      18,120.00      16,308.00)"));
}

TEST_F(CommuterReport, absolute_name_leads_out_of_the_directory) {
  const StudyDirectory elsewhere;
  study.write("outpar.txt",
              (elsewhere.path() / "run 1").string() + "\r\n 2 \r\n0             0\r\n 1 \r\n7\r\n");
  run_both_cases(study, "NONE");
  EXPECT_EQ(study.run(REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "0\r\n");
  EXPECT_TRUE(elsewhere.has("run 1.txt"));
}

TEST_F(CommuterReport, longer_report_of_an_earlier_run_is_replaced) {
  study.write("report.txt", std::string(100'000, 'x'));
  EXPECT_LT(report("NONE").size(), 5'000U);
}

#ifdef __linux__
TEST_F(CommuterReport, report_that_does_not_fit_on_the_disk_is_refused) {
  run_both_cases(study, "NONE");
  std::filesystem::create_symlink("/dev/full", study.path() / "report.txt");
  EXPECT_EQ(study.run(REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "1, report.txt: the file cannot be written\r\n");
}

TEST_F(CommuterReport, fails_when_its_verdict_does_not_fit_on_the_disk) {
  run_both_cases(study, "NONE");
  study.remove("err.txt");
  std::filesystem::create_symlink("/dev/full", study.path() / "err.txt");
  EXPECT_EQ(study.run(REPORT_PROGRAM), 1);
}
#endif

class ReportRefusal : public testing::TestWithParam<RefusedFile> {};

TEST_P(ReportRefusal, names_the_file_the_line_and_the_reason) {
  const StudyDirectory study;
  write_two_zones(study);
  study.write("district.txt", "1 2\r\n2 1\r\n");
  study.write("outpar.txt", "report\r\n 2 \r\n1              2 \r\n 1 \r\n7\r\n");
  run_both_cases(study, "NONE");
  spoil(study, GetParam());
  EXPECT_EQ(study.run(REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("err.txt"), "1, " + GetParam().sentence + "\r\n");
  EXPECT_FALSE(study.has("report.txt"));
}

INSTANTIATE_TEST_SUITE_P(
    parameters, ReportRefusal,
    testing::Values(
        RefusedFile{"outpar.txt", {}, "outpar.txt: the file is missing or cannot be opened"},
        RefusedFile{"outpar.txt", "\r\n", "outpar.txt line 1: the output file has no name"},
        RefusedFile{"outpar.txt", "report\r\n many \r\n",
                    "outpar.txt line 2: ' many ' is not a whole number from 1 to 9999"},
        RefusedFile{"outpar.txt", "report\r\n 2 \r\n1              3 \r\n",
                    "outpar.txt line 3: '1              3 ' is neither 0 and 0 nor 1 and a number of "
                    "districts up to 2"},
        RefusedFile{"outpar.txt", "report\r\n 2 \r\n0\r\n",
                    "outpar.txt line 3: '0' is neither 0 and 0 nor 1 and a number of districts up to 2"},
        RefusedFile{"outpar.txt", "report\r\n 2 \r\n0             0\r\n 1 \r\n8\r\n",
                    "wage8.txt: the file is missing or cannot be opened"},
        RefusedFile{"outpar.txt", "no,such/place/report\r\n 2 \r\n0             0\r\n 1 \r\n7\r\n",
                    "no such/place/report.txt: the file cannot be written"},
        RefusedFile{"costpar.txt", {}, "costpar.txt: the file is missing or cannot be opened"}));

INSTANTIATE_TEST_SUITE_P(
    districts, ReportRefusal,
    testing::Values(RefusedFile{"district.txt", {}, "district.txt: the file is missing or cannot be opened"},
                    RefusedFile{"district.txt", "1\r\n",
                                "district.txt line 1: '1' is not a zone and a district"},
                    RefusedFile{"district.txt", "3 1\r\n", "district.txt line 1: there is no zone 3"},
                    RefusedFile{"district.txt", "1 3\r\n", "district.txt line 1: there is no district 3"},
                    RefusedFile{"district.txt", "1 1\r\n1 2\r\n", "district.txt line 2: zone 1 stands twice"},
                    RefusedFile{"district.txt", "1 1\r\n", "district.txt line 2: the line is missing"},
                    RefusedFile{"district.txt", "1 1\r\n2 2\r\n3 1\r\n",
                                "district.txt line 3: the file has more lines than it may have"}));

INSTANTIATE_TEST_SUITE_P(
    results, ReportRefusal,
    testing::Values(
        RefusedFile{"costimp7.txt", {}, "costimp7.txt: the file is missing or cannot be opened"},
        RefusedFile{"costbase7.txt", "3 NONE\r\n",
                    "costbase7.txt line 1: the results were made for another study"},
        RefusedFile{"costbase7.txt", "2 NONE\r\n2 1 1 1 1\r\n", "costbase7.txt line 2: zone 1 is missing"},
        RefusedFile{"costbase7.txt", "2 NONE\r\n1 1 1 1 1E308\r\n2 1 1 1 1E308\r\n",
                    "costbase7.txt: the numbers are too large to be computed with"},
        RefusedFile{"costbase7.txt", "2 DB 30\r\n",
                    "costbase7.txt line 1: the speed and the highway share are damaged"},
        RefusedFile{
            "costimp7.txt", "2 DB 30 0.2\r\n1 1 1 1 1\r\n2 1 1 1 1\r\n",
            "costimp7.txt line 1: the improvement case was computed with another reliability mode than the "
            "base case"}));

}  // namespace
}  // namespace model_test
