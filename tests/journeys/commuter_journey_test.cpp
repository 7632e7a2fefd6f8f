// The whole road of a commuter analysis through the real windows, with the sample models.
#include "program_test.h"

namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

struct Choice {
  const char* name;
  int option;
  bool districts;
  const char* reliability;  // what the report says of it
};

void PrintTo(const Choice& choice, std::ostream* stream) {
  *stream << choice.name;
}

constexpr const char* occupation_files[] = {
    "Precision_production_craft_and_repair",
    "Transportation_and_material_moving",
    "Executive_Adminstrative_Managerial",
    "Technicians_and_Related_Support",
    "Machine_operators_assemblers_inspectors",
    "Protective_Service",
    "Handlers_equipment_cleaners_helpers",
    "Sales",
    "Professional_Specialty",
    "Administrative_Support",
    "Private_Household",
    "Service",
};

class CommuterJourney : public testing_aids::ProgramTest, public ::testing::WithParamInterface<Choice> {
 protected:
  void pick_all_occupations() {
    int code = 0;
    for (const char* file : occupation_files) {
      pick("Command10(" + std::to_string(code++) + ")", std::string("sample/commute_") + file + ".txt");
    }
  }

  void choose_options() {
    analyst.click("Option4(" + std::to_string(GetParam().option) + ")");
    if (!GetParam().districts) return;
    analyst.click("Check1");
    pick("Command7", "sample/districts.txt");
  }
};

TEST_P(CommuterJourney, of_twelve_occupations_ends_in_a_report) {
  open_commuter_page();
  pick_all_occupations();
  pick("Command12", "results/all.txt");
  choose_options();
  analyst.forget_boxes();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_THAT(analyst.texts(),
              ElementsAre("The Number of Zones= 24\nThe Number of Districts= " +
                              std::string(GetParam().districts ? "4" : "0") +
                              "\nThe occupations are Precision_Production\n Transportation\n"
                              " Executive,Admin,Managerial\n Technician\n Operators,Assemblers,Inspectors\n"
                              " Protective Services\n Handlers,Cleaners,Laborers\n Sales\n"
                              " Professional_Specialty\n Admin_Support\n Private_Household_Services\n"
                              " Other_Services\nDo you wish to continue?",
                          "Analysis Completed"));
  const std::string report = app.bytes("results/all.txt");
  EXPECT_THAT(report, AllOf(HasSubstr(GetParam().reliability), HasSubstr("All occupations"),
                            HasSubstr("The improvement saves the commuters of the study")));
  const auto by_district = HasSubstr("By district of residence");
  if (GetParam().districts) {
    EXPECT_THAT(report, by_district);
  } else {
    EXPECT_THAT(report, Not(by_district));
  }
  EXPECT_THAT(app.names_in("commuter"), ElementsAre("CC.EXE", "OUTPUT1.EXE", "err.txt"));
  EXPECT_TRUE(analyst.item_enabled("spec_timdist"));
  EXPECT_FALSE(analyst.item_enabled("spec_CuCo"));
}

constexpr const char* from_the_database = "sketch-planning data";
constexpr const char* from_a_file = "no reliability data were supplied";
constexpr const char* none = "not part of this analysis";

INSTANTIATE_TEST_SUITE_P(, CommuterJourney,
                         ::testing::Values(Choice{"sketch_planning", 0, false, from_the_database},
                                           Choice{"sketch_planning_by_district", 0, true, from_the_database},
                                           Choice{"reliability_file", 1, false, from_a_file},
                                           Choice{"reliability_file_by_district", 1, true, from_a_file},
                                           Choice{"without_reliability", 2, false, none},
                                           Choice{"without_reliability_by_district", 2, true, none}),
                         [](const auto& choice) { return choice.param.name; });

using CommuterJourneys = testing_aids::ProgramTest;

TEST_F(CommuterJourneys, use_a_reliability_file_that_the_analyst_put_beside_the_model_and_keep_it) {
  app.put_file("commuter/var.txt", app.bytes("sample/reliability.txt"));
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  pick("Command12", "results/sales.txt");
  analyst.click("Option4(1)");
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_EQ(last_box(), "Analysis Completed");
  EXPECT_THAT(app.bytes("results/sales.txt"), HasSubstr("data of the analyst's file"));
  EXPECT_EQ(app.bytes("commuter/var.txt"), app.bytes("sample/reliability.txt"));
}

TEST_F(CommuterJourneys, tell_in_the_model_s_own_words_what_is_wrong_with_an_input) {
  app.put_file("sample/short.txt", "         1       100       100\r\n");
  open_commuter_page();
  pick("Command10(7)", "sample/short.txt");
  pick("Command12", "results/sales.txt");
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  EXPECT_THAT(last_box(),
              AllOf(::testing::StartsWith("error occured in program execution! "), HasSubstr("popemp7.txt")));
}

}  // namespace
