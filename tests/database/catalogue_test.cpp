#include "database/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "runtime/engine/workspace.h"
#include "runtime/text/numbers.h"

namespace database {
namespace {

namespace fs = std::filesystem;
using runtime::Value;
using runtime::engine::Recordset;

/// The installed database.
class Installed : public ::testing::Test {
 protected:
  Installed() { workspace_.required_tables = required_tables(); }

  /// A row a line, fields between blanks, "-" for Null.
  std::string rows_of(std::string_view table) {
    auto rows = database_.OpenRecordset(table);
    std::string text;
    for (; !rows.eof(); rows.MoveNext()) {
      for (int i = 0; i < rows.field_count(); ++i) {
        const auto value = rows.field(i);
        text += (i == 0 ? "" : " ") + (runtime::is_null(value) ? "-" : runtime::text::joined(value));
      }
      text += "\n";
    }
    return text;
  }

  std::string names_of(std::string_view table) {
    const auto rows = database_.OpenRecordset(table);
    std::string text;
    for (int i = 0; i < rows.field_count(); ++i) text += (i == 0 ? "" : ", ") + rows.field_name(i);
    return text;
  }

  std::string text_of(std::string_view table, std::string_view field) {
    return std::get<std::string>(database_.OpenRecordset(table).field(field));
  }

 private:
  runtime::engine::Workspace workspace_;

 protected:
  runtime::engine::Database database_ = workspace_.OpenDatabase(PROJECT_DATABASE);
};

TEST_F(Installed, holds_the_size_of_the_sample_study) {
  EXPECT_EQ(names_of(zones::table), "numzones, numdstrct");
  EXPECT_EQ(rows_of(zones::table), "24 4\n");
}

TEST_F(Installed, holds_the_fixed_lists_as_if_all_had_been_chosen_but_the_armed_forces) {
  EXPECT_EQ(names_of(industries::table), "index, industry_number, description");
  std::string expected;
  for (const auto& industry : industry_list)
    expected += std::to_string(industry.index) + " " + std::to_string(industry.industry_number) + " " +
                std::string(industry.description) + "\n";
  EXPECT_EQ(rows_of(industries::table), expected);

  EXPECT_EQ(names_of(occupations::table), "index, Occupation_Number, description");
  expected.clear();
  for (const auto& occupation : occupation_list)
    expected += occupation.description == "Armed_Forces"
                    ? "13 - -\n"
                    : std::to_string(occupation.index) + " " + std::to_string(occupation.index) + " " +
                          std::string(occupation.description) + "\n";
  EXPECT_EQ(rows_of(occupations::table), expected);
}

TEST_F(Installed, holds_the_parameters_of_the_commuter_model) {
  EXPECT_EQ(names_of(commuter::table), "index, sigma, wage");
  EXPECT_EQ(rows_of(commuter::table),
            "0 11.27 129.6\n1 11.35 120.64\n2 12.25 175.2\n3 12.83 139.2\n4 13.04 98\n5 13.21 78.32\n"
            "6 13.75 88.24\n7 13.05 125.2\n8 14.57 179.12\n9 14.66 101.12\n10 16.02 116.56\n11 16.49 88.2\n");
  EXPECT_EQ(names_of(commute_param_table),
            "ModeShare1, ModeShare2, ModeShare3, ModeShare4, CostParameterA, CostParameterB");
  EXPECT_EQ(rows_of(commute_param_table), "0.7629 0.0929 0.1394 0.0048 0.25 2.38\n");
}

TEST_F(Installed, holds_the_parameters_of_the_commercial_model_in_single_precision) {
  EXPECT_EQ(names_of(commercial::table),
            "industry_number, sigma, Value, Unit Cost, Reliability Cost, JIT Factor, Load Factor");
  EXPECT_EQ(rows_of(commercial::table),
            "1 14.51 16765 25.07 430 1 90\n2 4.62 5469 25.04 50 1 95\n"
            "4 7.44 34682 25.66 50 1 95\n9 10.61 135 0 50 1 95\n");
  const auto rows = database_.OpenRecordset(commercial::table);
  for (int i = 1; i < rows.field_count(); ++i)
    EXPECT_TRUE(std::holds_alternative<float>(rows.field(i))) << rows.field_name(i);
}

TEST_F(Installed, holds_speeds_and_shares_of_both_cases) {
  EXPECT_EQ(names_of(var_input_table),
            "BaseSpeed, BaseHighwayShare, ImprovementSpeed, ImprovementHighwayShare");
  EXPECT_EQ(rows_of(var_input_table), "38 0.42 47 0.48\n");
}

TEST_F(Installed, holds_plausible_factors_of_the_conversion_to_trucks) {
  auto rows = database_.OpenRecordset(tontotruck_table);
  EXPECT_EQ(rows.RecordCount(), 8);
  for (; !rows.eof(); rows.MoveNext()) {
    EXPECT_GT(std::get<double>(rows.field("TonsPerTruck")), 1);
    EXPECT_LT(std::get<double>(rows.field("TonsPerTruck")), 40);
    EXPECT_GT(std::get<double>(rows.field("TruckShare")), 0);
    EXPECT_LE(std::get<double>(rows.field("TruckShare")), 1);
    EXPECT_LE(std::get<double>(rows.field("DaysPerYear")), 366);
  }
}

TEST_F(Installed, names_for_each_occupation_the_file_of_that_occupation) {
  constexpr std::array<int, 12> place_in_list{9, 11, 1, 3, 10, 7, 12, 4, 2, 5, 6, 8};
  for (std::size_t code = 0; code < occupation_files.size(); ++code) {
    const auto& occupation = occupation_list[static_cast<std::size_t>(place_in_list[code] - 1)];
    EXPECT_EQ(text_of(anfiles::table, occupation_files[code]),
              "sample/commute_" + std::string(occupation.description) + ".txt");
  }
}

TEST_F(Installed, names_files_that_the_sample_study_holds) {
  std::vector<std::string> names;
  for (const auto field : {timdist::distance, timdist::base_time, timdist::improvement_time})
    names.push_back(text_of(timdist::table, field));
  for (const auto field : {anfiles::agfile, anfiles::minfile, anfiles::manfile, anfiles::serfile,
                           anfiles::distrfile, anfiles::relfile})
    names.push_back(text_of(anfiles::table, field));
  for (const auto field : occupation_files) names.push_back(text_of(anfiles::table, field));
  for (const auto& name : names) EXPECT_TRUE(fs::exists(fs::path(APPLICATION_SOURCES) / name)) << name;
}

TEST_F(Installed, proposes_results_where_they_may_be_written) {
  EXPECT_EQ(text_of(anfiles::table, anfiles::foutfile), "results/commercial.txt");
  EXPECT_EQ(text_of(anfiles::table, anfiles::occ_outfile), "results/commuter.txt");
  EXPECT_EQ(text_of(anfiles::table, anfiles::tonsfile), "sample/commodity.txt");
}

TEST(FixedLists, hold_names_that_can_be_columns_and_files) {
  const auto is_plain = [](std::string_view name) {
    return std::all_of(name.begin(), name.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; });
  };
  for (const auto& industry : industry_list) EXPECT_TRUE(is_plain(industry.description));
  for (const auto& occupation : occupation_list) EXPECT_TRUE(is_plain(occupation.description));
}

}  // namespace
}  // namespace database
