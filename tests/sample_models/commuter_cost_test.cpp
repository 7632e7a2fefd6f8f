#include <gtest/gtest.h>

#include <charconv>
#include <sstream>

#include "sample_models/two_zone_study.h"

namespace model_test {
namespace {

double next_number(std::istream& text) {
  std::string digits;
  text >> digits;
  double value = -1;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

class CommuterCost : public testing::Test {
 protected:
  CommuterCost() { write_two_zones(study); }

  std::string verdict() {
    EXPECT_EQ(study.run(COST_PROGRAM), 0);
    return study.read("err.txt");
  }

  StudyDirectory study;
};

TEST_F(CommuterCost, base_case_has_the_figures_worked_out_by_hand) {
  EXPECT_EQ(verdict(), "0\r\n");
  std::istringstream result(study.read("costbase7.txt"));
  std::string zones;
  std::string mode;
  result >> zones >> mode;
  EXPECT_EQ(zones + ' ' + mode, "2 NONE");
  // 121 of 202 stay within the zone: 121 * 50 + 81 * 150 minutes, 121 * 9 + 81 * 29 miles, 202 * 114 dollars.
  for (const double expected : {1.0, 202.0, 18200.0, 3438.0, 23028.0})
    EXPECT_NEAR(next_number(result), expected, 1e-8);
}

TEST_F(CommuterCost, improvement_case_reads_the_improvement_times) {
  ask_for_case(study, "NONE", "1");
  study.remove("base_time.txt");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(study.read("costimp7.txt"), "2 NONE\r\n1 202 8080 3838 12120\r\n2 100 4000 1900 6000\r\n");
}

TEST_F(CommuterCost, table_of_the_front_end_gives_each_case_its_roads) {
  study.write("base_var.txt", " 30            .2 \r\n");
  ask_for_case(study, "DB", "0");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(study.read("costbase7.txt").substr(0, 13), "2 DB 30 0.2\r\n");
  study.write("imp_var.txt", " 40            .2 \r\n");
  ask_for_case(study, "DB", "1");
  EXPECT_EQ(verdict(), "0\r\n");
  // Free roads would be driven at 40 miles per hour, so that nothing is unexpected any more.
  EXPECT_EQ(study.read("costimp7.txt"), "2 DB 40 0.2\r\n1 202 8080 3838 12120\r\n2 100 4000 1900 6000\r\n");
}

TEST_F(CommuterCost, supplied_file_holds_the_roads_of_both_cases) {
  study.write("var.txt", "30 0.2 40 0.3\r\n");
  run_both_cases(study, "FILE");
  EXPECT_EQ(study.read("costbase7.txt").substr(0, 15), "2 FILE 30 0.2\r\n");
  EXPECT_EQ(study.read("costimp7.txt").substr(0, 15), "2 FILE 40 0.3\r\n");
}

TEST_F(CommuterCost, file_mode_goes_on_without_a_file) {
  ask_for_case(study, "FILE", "1");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(study.read("costimp7.txt"), "2 FILE\r\n1 202 8080 3838 12120\r\n2 100 4000 1900 6000\r\n");
}

TEST_F(CommuterCost, empty_population_fields_count_as_nobody) {
  study.write("popemp7.txt", "         1                 151\r\n         2       100       151\r\n");
  ask_for_case(study, "NONE", "1");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(study.read("costimp7.txt"), "2 NONE\r\n1 0 0 0 0\r\n2 100 4000 1900 6000\r\n");
}

TEST_F(CommuterCost, zones_of_a_population_file_may_stand_in_any_order) {
  study.write("popemp7.txt", "         2       100       151\r\n         1       202       151\r\n");
  ask_for_case(study, "NONE", "1");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(study.read("costimp7.txt"), "2 NONE\r\n1 202 8080 3838 12120\r\n2 100 4000 1900 6000\r\n");
}

TEST_F(CommuterCost, without_substitution_commuters_follow_the_workplaces_alone) {
  study.write("sig7.txt", " 0 \r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  // Half stay, half go: the mean of 60 and 180 dollars.
  EXPECT_EQ(study.read("costbase7.txt"), "2 NONE\r\n1 202 20200 3838 24240\r\n2 100 10000 1900 12000\r\n");
}

TEST_F(CommuterCost, elasticity_of_one_takes_the_geometric_mean) {
  study.write("sig7.txt", " 1 \r\n");
  study.write("Dist.txt", "1 1 0\r\n1 2 0\r\n2 1 0\r\n2 2 0\r\n");
  // Prices of 540 and 960, whose geometric mean is 720.
  study.write("base_time.txt", "1 1 59\r\n1 2 479\r\n2 1 479\r\n2 2 59\r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_NE(study.read("costbase7.txt").find("\r\n2 100 21"), std::string::npos);
  EXPECT_NE(study.read("costbase7.txt").find(" 0 24000\r\n"), std::string::npos)
      << study.read("costbase7.txt");
}

TEST_F(CommuterCost, base_case_removes_the_results_of_an_earlier_run) {
  study.write("costbase3.txt", "old");
  study.write("costimp7.txt", "old");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_FALSE(study.has("costbase3.txt"));
  EXPECT_FALSE(study.has("costimp7.txt"));
}

TEST_F(CommuterCost, refused_case_leaves_no_result) {
  study.write("costimp7.txt", "old");
  study.remove("imp_time.txt");
  ask_for_case(study, "NONE", "1");
  EXPECT_NE(verdict(), "0\r\n");
  EXPECT_FALSE(study.has("costimp7.txt"));
}

TEST_F(CommuterCost, reads_files_larger_than_its_buffer) {
  constexpr int zones = 120;  // 14,400 pairs, some 130 kilobytes
  std::string pairs;
  std::string people;
  for (int origin = 1; origin <= zones; ++origin) {
    const auto zone = std::to_string(origin);
    people += std::string(10 - zone.size(), ' ') + zone + "         2         3\r\n";
    for (int destination = 1; destination <= zones; ++destination) {
      pairs += zone + ' ' + std::to_string(destination) + " 7\r\n";
    }
  }
  for (const auto* const name : {"Dist.txt", "base_time.txt"}) study.write(name, pairs);
  study.write("popemp7.txt", people);
  study.write("ccpar.txt", " 120 \r\nNONE\r\n0\r\n 1 \r\n7\r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  const auto result = study.read("costbase7.txt");
  // Two persons, 7 + 7 + 1 dollars each.
  EXPECT_EQ(result.substr(result.rfind('\n', result.size() - 2) + 1), "120 2 14 14 30\r\n");
}

TEST_F(CommuterCost, verdict_of_an_earlier_run_is_replaced) {
  study.write("err.txt", "1, something of long ago that was longer than a mere nought\r\n");
  EXPECT_EQ(verdict(), "0\r\n");
}

TEST_F(CommuterCost, fails_only_when_it_can_leave_no_verdict) {
  std::filesystem::create_directory(study.path() / "err.txt");
  EXPECT_EQ(study.run(COST_PROGRAM), 1);
}

}  // namespace
}  // namespace model_test
