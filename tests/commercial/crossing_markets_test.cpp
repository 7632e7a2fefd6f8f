// What a commuter run that gave up leaves for the other pages: its picks still count there.
#include "commercial_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

namespace fs = std::filesystem;

class CrossingMarkets : public testing_aids::CommercialPage {
 protected:
  /// A commuter run of these occupations that misses a time file: it closes its page and keeps the picks.
  void give_up_a_run_of(const std::vector<int>& occupations) {
    open_commuter_page();
    for (const int code : occupations) pick("Command10(" + std::to_string(code) + ")", sales);
    pick("Command12", "results/sales.txt");
    fs::rename(app.file("sample/base_time.txt"), app.file("away.txt"));
    run_button = "Command11";
    press_and_answer({"OK"});
    ASSERT_THAT(last_box(), ::testing::StartsWith("file sample/base_time.txt not found."));
    fs::rename(app.file("away.txt"), app.file("sample/base_time.txt"));
    run_button = "Command2";
  }

  /// The commercial page, ready to run on the picks that there are.
  void open_commercial_page_after_it() {
    analyst.choose("Spec_commercial");
    pick("Command5", "results/trucks.txt");
    analyst.click("Option4(2)");
  }

  static std::string summary_of(const std::string& labels) {
    return "The Number of Zones= 24\nThe Number of Districts= 0\nThe industries are" + labels +
           "\nDo you wish to continue? [Yes, No]";
  }
};

TEST_F(CrossingMarkets, an_occupation_that_is_no_industry_fails_where_its_costs_are_read) {
  give_up_a_run_of({7});
  open_commercial_page_after_it();
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("RuntimeError: Run-time error '3021':\n\nNo current record [stop sign, OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 0
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
  EXPECT_THAT(model_files(), UnorderedElementsAre(Pair("Dist.txt", "= sample/distance.txt"),
                                                  Pair("base_time.txt", "= sample/base_time.txt"),
                                                  Pair("imp_time.txt", "= sample/imp_time.txt"),
                                                  Pair("stand_in.txt", "write Err.txt 0\\r\\n\n")));
}

TEST_F(CrossingMarkets, the_output_file_of_the_given_up_run_counts_without_a_pick) {
  give_up_a_run_of({2});
  analyst.choose("Spec_commercial");
  EXPECT_FALSE(analyst.can_use("Command2"));
  by_code([this] { program.form3->Command2.set_enabled(true); });
  analyst.click("Option4(2)");
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/outpar.txt"),
            " 24 \r\n0             0\r\nNONE\r\n" + in_app("results/sales") + "\r\n 1 \r\n2\r\n");
}

struct SharedCode {
  int code;
  const char* occupation;
  const char* industry;
  const char* sigma;
};

void PrintTo(const SharedCode& shared, std::ostream* stream) {
  *stream << shared.industry;
}

class OccupationAsIndustry : public CrossingMarkets, public ::testing::WithParamInterface<SharedCode> {};

TEST_P(OccupationAsIndustry, runs_on_the_file_of_the_occupation_under_its_name) {
  const std::string code = std::to_string(GetParam().code);
  give_up_a_run_of({GetParam().code});
  open_commercial_page_after_it();
  program_does("copy trktrp" + code + ".txt trips.txt\ncopy sig" + code +
               ".txt seen.txt\nwrite Err.txt 0\\r\\n\n");
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of(GetParam().occupation), completed));
  EXPECT_EQ(app.bytes("truck/trips.txt"), app.bytes(sales));
  EXPECT_EQ(app.bytes("truck/seen.txt"), GetParam().sigma);
  EXPECT_EQ(left(), first_step_again());
}

TEST_P(OccupationAsIndustry, bears_the_name_of_the_industry_once_a_trip_pick_was_begun) {
  give_up_a_run_of({GetParam().code});
  open_commercial_page_after_it();
  analyst.will_cancel_file();
  analyst.click("Command1(2)");
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of(GetParam().industry)));
}

INSTANTIATE_TEST_SUITE_P(
    , OccupationAsIndustry,
    ::testing::Values(SharedCode{1, "Transportation", "Agriculture", " 14.51 \r\n"},
                      SharedCode{2, "Executive,Admin,Managerial", "Mining", " 4.62 \r\n"},
                      SharedCode{4, "Operators,Assemblers,Inspectors", "Manufacturing", " 7.44 \r\n"},
                      SharedCode{9, "Admin_Support", "Service", " 10.61 \r\n"}),
    [](const auto& shared) { return shared.param.industry; });

TEST_F(CrossingMarkets, the_distance_pick_of_the_truck_page_takes_the_place_of_a_fifth_occupation) {
  give_up_a_run_of({0, 1, 2, 3, 4});
  analyst.choose("mnu_tonstotrucks");
  pick("Command4(5)", "sample/imp_time.txt");
  EXPECT_EQ(program.form3.PickCount, 5);
  EXPECT_EQ(program.form3.PickCode(5), "5");
  app.put_stand_in("truck/tontotruck.exe");
  run_button = "Command13";
  press_and_answer({"OK"});
  EXPECT_THAT(left(), ::testing::HasSubstr("picks: 0 1 2 3 5, output\n"));

  run_button = "Command11";
  model_directory = "commuter";
  open_commuter_page();
  pick("Command12", "results/sales.txt");
  press_and_answer({"No"});
  EXPECT_THAT(
      shown(),
      ElementsAre("The Number of Zones= 24\nThe Number of Districts= 0\n"
                  "The occupations are Precision_Production\n Transportation\n Executive,Admin,Managerial\n"
                  " Technician\n Protective Services\nDo you wish to continue? [Yes, No]"));
  EXPECT_EQ(model_files().at("popemp5.txt"), "= sample/imp_time.txt");
  EXPECT_FALSE(model_files().contains("popemp4.txt"));
}

}  // namespace
