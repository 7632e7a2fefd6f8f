#include <gtest/gtest.h>

#include "sample_models/two_zone_trucks.h"

namespace model_test {
namespace {

class CommercialReport : public testing::Test {
 protected:
  CommercialReport() { write_two_zone_trucks(study); }

  /// Runs the program; the report's bytes.
  std::string report() {
    EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 0);
    EXPECT_EQ(study.read("Err.txt"), "0\r\n");
    return study.read("report.txt");
  }

  /// The report's section that begins with `heading`, up to the next empty line.
  std::string section(const std::string& heading) {
    const auto text = report();
    const auto start = text.find(heading);
    return start == std::string::npos ? text : text.substr(start, text.find("\r\n\r\n", start) - start);
  }

  /// The words of the report's last line.
  std::string result() {
    const auto text = report();
    return text.substr(text.rfind('\n', text.size() - 2) + 1);
  }

  StudyDirectory study;
};

const std::string heading = R"(What delay costs commercial traffic, and what the improvement is worth
======================================================================

Miles and minutes are means over the trips of trucks, one way. Costs are those of one working day,
in dollars: drivers, trucks, what loads lose on the road and what their unexpected delay costs. The
costs of the improvement case are those of the same trips. New choice is what it is worth besides that
loads then go where deliveries became cheaper. The benefit is the base case's cost less the
improvement case's, plus new choice, rounded after the sum.

These figures come from the sample models, which are stand-ins and not calibrated.

)";

TEST_F(CommercialReport, tells_the_study_and_its_figures) {
  EXPECT_EQ(report(), with_crlf(heading + R"(The study
---------
Zones                       2
Districts                   none
Reliability                 not part of this analysis

Costs and factors
-----------------
               Elasticity of     Value of a        Unit cost  Reliability cost  Just-in-time  Load factor  Hour of a trip
Industry        substitution  load, dollars  dollars an hour   dollars an hour        factor     per cent         dollars
-------------------------------------------------------------------------------------------------------------------------
Manufacturing              2         400.00            39.98            600.00             1           50           60.00

By industry
-----------
                Trips         Minutes   Minutes  Hours saved  Dollars a day  Dollars a day     New choice     Benefit in
Industry        a day  Miles     base  improved        a day           base       improved  dollars a day  dollars a day
------------------------------------------------------------------------------------------------------------------------
Manufacturing    30.0   13.2     80.0      50.0         15.0       2,400.00       1,500.00          90.00         990.00
------------------------------------------------------------------------------------------------------------------------
All industries   30.0   13.2     80.0      50.0         15.0       2,400.00       1,500.00          90.00         990.00

Result
------
The improvement saves the commercial traffic of the study 990.00 dollars per working day, 33.00 dollars for each trip.
)"));
}

// At 30 miles per hour instead of 40 a mile takes half a minute more, a fifth of a minute unexpected. Half of
// the trips carry a load whose hour of delay costs 600 dollars: 0.5 * 600 / 60 * 0.2 = 1 dollar a mile in the
// base case. Deliveries then cost 456 within a zone and 580 between zones. Zone 1 spends 10,236 on them, and
// its prices fall to 10,236 / (11 * 456^2 / 450 + 9 * 580^2 / 450) = 0.86666: worth 1,364.88. Zone 2 saves 6
// dollars on each of 10 trips. District 1 is zone 2, district 2 is zone 1.
TEST_F(CommercialReport, tells_districts_and_reliability) {
  study.write("base_var.txt", " 30  .2 \r\n");
  study.write("imp_var.txt", " .2  40 \r\n");
  study.write("district.txt", "1 2\r\n2 1\r\n");
  ask_for_trucks(study, "DB", "1              2 ");
  EXPECT_EQ(report(), with_crlf(heading + R"(The study
---------
Zones                       2
Districts                   2
Reliability                 sketch-planning data
  base case                 30.0 miles per hour, 20.0 % on highways: 0.20 unexpected minutes per mile
  improvement case          40.0 miles per hour, 20.0 % on highways: 0.00 unexpected minutes per mile
                            a commercial run keeps the base case's highway share in both cases

Costs and factors
-----------------
               Elasticity of     Value of a        Unit cost  Reliability cost  Just-in-time  Load factor  Hour of a trip
Industry        substitution  load, dollars  dollars an hour   dollars an hour        factor     per cent         dollars
-------------------------------------------------------------------------------------------------------------------------
Manufacturing              2         400.00            39.98            600.00             1           50           60.00

By industry
-----------
                Trips         Minutes   Minutes  Hours saved  Dollars a day  Dollars a day     New choice     Benefit in
Industry        a day  Miles     base  improved        a day           base       improved  dollars a day  dollars a day
------------------------------------------------------------------------------------------------------------------------
Manufacturing    30.0   13.2     80.0      50.0         15.0       2,796.00       1,500.00         128.88       1,424.88
------------------------------------------------------------------------------------------------------------------------
All industries   30.0   13.2     80.0      50.0         15.0       2,796.00       1,500.00         128.88       1,424.88

By district of origin
---------------------
                 Trips         Minutes   Minutes  Hours saved  Dollars a day  Dollars a day     New choice     Benefit in
District  Zones  a day  Miles     base  improved        a day           base       improved  dollars a day  dollars a day
-------------------------------------------------------------------------------------------------------------------------
1             1   10.0    6.0     50.0      50.0          0.0         560.00         500.00           0.00          60.00
2             1   20.0   16.8     95.0      50.0         15.0       2,236.00       1,000.00         128.88       1,364.88
-------------------------------------------------------------------------------------------------------------------------
All           2   30.0   13.2     80.0      50.0         15.0       2,796.00       1,500.00         128.88       1,424.88

Result
------
The improvement saves the commercial traffic of the study 1,424.88 dollars per working day, 47.50 dollars for each trip.
)"));
}

TEST_F(CommercialReport, tells_the_roads_of_the_analysts_file) {
  study.write("var.txt", "30 0.2 40 0.3\r\n");
  ask_for_trucks(study, "FILE");
  EXPECT_EQ(section("Zones"), with_crlf(R"(Zones                       2
Districts                   none
Reliability                 data of the analyst's file
  base case                 30.0 miles per hour, 20.0 % on highways: 0.20 unexpected minutes per mile
  improvement case          40.0 miles per hour, 30.0 % on highways: 0.04 unexpected minutes per mile)"));
}

TEST_F(CommercialReport, tells_when_no_reliability_data_were_supplied) {
  ask_for_trucks(study, "FILE", "1              2 ");
  study.write("district.txt", "1 2\r\n2 1\r\n");
  EXPECT_EQ(section("Zones"), with_crlf(R"(Zones                       2
Districts                   2
Reliability                 asked for from a file, but no reliability data were supplied;
                            the figures leave it out)"));
}

TEST_F(CommercialReport, industries_keep_the_order_of_their_picks) {
  study.write("sig1.txt", " 2 \r\n");
  study.write("cost1.txt", " 135           0             50            1             95 \r\n");
  study.write("trktrp1.txt",
              "         1         1          \r\n         1         2       0.5\r\n"
              "         2         1          \r\n         2         2          \r\n");
  ask_for_trucks(study, "NONE", "0             0", " 2 \r\n4\r\n1\r\n");
  EXPECT_EQ(section("By industry"), with_crlf(R"(By industry
-----------
                Trips         Minutes   Minutes  Hours saved  Dollars a day  Dollars a day     New choice     Benefit in
Industry        a day  Miles     base  improved        a day           base       improved  dollars a day  dollars a day
------------------------------------------------------------------------------------------------------------------------
Manufacturing    30.0   13.2     80.0      50.0         15.0       2,400.00       1,500.00          90.00         990.00
Agriculture       0.5   30.0    150.0      50.0          0.8          25.02           8.34           0.00          16.68
------------------------------------------------------------------------------------------------------------------------
All industries   30.5   13.5     81.1      50.0         15.8       2,425.02       1,508.34          90.00       1,006.68)"));
}

TEST_F(CommercialReport, elasticity_of_one_takes_the_geometric_mean) {
  study.write("sig4.txt", " 1 \r\n");
  // Deliveries to zone 2 fall to a fourth of their price: with half of the spending, all fall to a half.
  study.write("base_time.txt", "1 1 50\r\n1 2 1400\r\n2 1 150\r\n2 2 50\r\n");
  study.write("trktrp4.txt",
              "         1         1         4\r\n         1         2         1\r\n"
              "         2         1          \r\n         2         2          \r\n");
  EXPECT_EQ(result(),
            "The improvement saves the commercial traffic of the study 1,800.00 dollars per working day, "
            "360.00 dollars for each trip.\r\n");
}

TEST_F(CommercialReport, without_substitution_new_choice_is_worth_nothing) {
  study.write("sig4.txt", " 0 \r\n");
  EXPECT_EQ(result(),
            "The improvement saves the commercial traffic of the study 900.00 dollars per working day, 30.00 "
            "dollars for each trip.\r\n");
}

TEST_F(CommercialReport, improvement_equal_to_the_base_case_is_worth_nothing) {
  study.write("imp_time.txt", study.read("base_time.txt"));
  EXPECT_EQ(result(), "The improvement makes no difference to the cost of commercial traffic.\r\n");
}

TEST_F(CommercialReport, study_without_a_trip_is_told_without_means) {
  study.write("trktrp4.txt",
              "         1         1          \r\n         1         2          \r\n"
              "         2         1          \r\n         2         2          \r\n");
  EXPECT_EQ(result(), "The improvement makes no difference to the cost of commercial traffic.\r\n");
  EXPECT_EQ(section("By industry"), with_crlf(R"(By industry
-----------
                Trips         Minutes   Minutes  Hours saved  Dollars a day  Dollars a day     New choice     Benefit in
Industry        a day  Miles     base  improved        a day           base       improved  dollars a day  dollars a day
------------------------------------------------------------------------------------------------------------------------
Manufacturing     0.0      -        -         -          0.0           0.00           0.00           0.00           0.00
------------------------------------------------------------------------------------------------------------------------
All industries    0.0      -        -         -          0.0           0.00           0.00           0.00           0.00)"));
}

TEST_F(CommercialReport, longer_ways_are_told_as_a_cost) {
  const auto slow = study.read("base_time.txt");
  study.write("base_time.txt", study.read("imp_time.txt"));
  study.write("imp_time.txt", slow);
  EXPECT_EQ(result(),
            "The improvement costs the commercial traffic of the study 801.98 dollars per working day, "
            "26.73 dollars for each trip.\r\n");
}

TEST_F(CommercialReport, absolute_name_leads_out_of_the_directory) {
  const StudyDirectory elsewhere;
  study.write("outpar.txt", " 2 \r\n0             0\r\nNONE\r\n" + (elsewhere.path() / "run 1").string() +
                                "\r\n 1 \r\n4\r\n");
  EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("Err.txt"), "0\r\n");
  EXPECT_TRUE(elsewhere.has("run 1.txt"));
}

TEST_F(CommercialReport, reads_files_larger_than_its_buffer) {
  constexpr int zones = 120;  // 14,400 pairs of 32 bytes
  std::string pairs;
  std::string trips;
  for (int origin = 1; origin <= zones; ++origin) {
    for (int destination = 1; destination <= zones; ++destination) {
      const auto from = std::to_string(origin);
      const auto to = std::to_string(destination);
      pairs += from + ' ' + to + " 7\r\n";
      trips += std::string(10 - from.size(), ' ') + from + std::string(10 - to.size(), ' ') + to +
               "         2\r\n";
    }
  }
  for (const auto* const name : {"Dist.txt", "base_time.txt", "imp_time.txt"}) study.write(name, pairs);
  study.write("trktrp4.txt", trips);
  study.write("outpar.txt", " 120 \r\n0             0\r\nNONE\r\nreport\r\n 1 \r\n4\r\n");
  // 28,800 trips of 7 minutes at 1 dollar each.
  EXPECT_NE(report().find("28,800.0    7.0      7.0       7.0          0.0     201,600.00"),
            std::string::npos);
}

#ifdef __linux__
TEST_F(CommercialReport, report_that_does_not_fit_on_the_disk_is_refused) {
  std::filesystem::create_symlink("/dev/full", study.path() / "report.txt");
  EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 0);
  EXPECT_EQ(study.read("Err.txt"), "1, report.txt: the file cannot be written\r\n");
}

TEST_F(CommercialReport, fails_when_its_verdict_does_not_fit_on_the_disk) {
  std::filesystem::create_symlink("/dev/full", study.path() / "Err.txt");
  EXPECT_EQ(study.run(TRUCK_REPORT_PROGRAM), 1);
}
#endif

}  // namespace
}  // namespace model_test
