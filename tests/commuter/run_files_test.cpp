// The files that stand in the model directory when the run asks its question.
#include "comma_locale.h"
#include "commuter_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class CommuterFiles : public testing_aids::CommuterPage {
 protected:
  void make_files() { press_and_answer({"No"}); }

  /// The first line of the report's parameters for an output file of that path.
  std::string output_base_of(const std::string& path) {
    program.form3.OutputFile = path;
    make_files();
    const std::string bytes = app.bytes("commuter/outpar.txt");
    return bytes.substr(0, bytes.find("\r\n"));
  }
};

TEST_F(CommuterFiles, of_a_run_with_sketch_planning_data) {
  make_ready();
  make_files();
  const std::string base = in_app("results/sales");
  EXPECT_THAT(
      model_files(),
      ElementsAre(
          Pair("Dist.txt", "= sample/distance.txt"), Pair("base_time.txt", "= sample/base_time.txt"),
          Pair("base_var.txt", " 38            .42 \r\n"),
          Pair("ccpar.txt", " 24 \r\nDB\r\n0\r\n 1 \r\n7\r\n"),
          Pair("ccpar2.txt", " 24 \r\nDB\r\n1\r\n 1 \r\n7\r\n"),
          Pair("costpar.txt", " .25           2.38 \r\n0              .7629  .0929  .1394  .0048 \r\n"),
          Pair("imp_time.txt", "= sample/imp_time.txt"),
          Pair("outpar.txt", base + "\r\n 24 \r\n0             0\r\n 1 \r\n7\r\n"),
          Pair("popemp7.txt", "= sample/commute_Sales.txt"), Pair("sig7.txt", " 13.05 \r\n"),
          Pair("wage7.txt", " 125.2 \r\n")));
}

TEST_F(CommuterFiles, of_a_run_without_reliability_hold_no_speeds) {
  make_ready();
  analyst.click("Option4(2)");
  make_files();
  const auto files = model_files();
  EXPECT_FALSE(files.contains("base_var.txt"));
  EXPECT_EQ(files.at("ccpar.txt"), " 24 \r\nNONE\r\n0\r\n 1 \r\n7\r\n");
  EXPECT_EQ(files.at("ccpar2.txt"), " 24 \r\nNONE\r\n1\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterFiles, of_a_run_with_a_reliability_file_hold_its_mode_word_alone) {
  make_ready();
  analyst.click("Option4(1)");
  make_files();
  const auto files = model_files();
  EXPECT_FALSE(files.contains("var.txt"));
  EXPECT_FALSE(files.contains("base_var.txt"));
  EXPECT_EQ(files.at("ccpar.txt"), " 24 \r\nFILE\r\n0\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterFiles, are_made_without_a_word_when_the_reliability_file_does_not_exist) {
  app.sql("UPDATE Anfiles SET relFile = 'nowhere/reliability.txt'");
  make_ready();
  analyst.click("Option4(1)");
  make_files();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
}

TEST_F(CommuterFiles, of_a_run_with_districts_hold_their_file_and_number) {
  make_ready();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  make_files();
  const auto files = model_files();
  EXPECT_EQ(files.at("district.txt"), "= sample/districts.txt");
  EXPECT_EQ(files.at("outpar.txt"),
            in_app("results/sales") + "\r\n 24 \r\n1              4 \r\n 1 \r\n7\r\n");
}

TEST_F(CommuterFiles, pass_over_a_district_file_that_is_gone_when_districts_are_not_asked_for) {
  make_ready();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  analyst.click("Check1");
  std::filesystem::remove(app.file("sample/districts.txt"));
  make_files();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_FALSE(model_files().contains("district.txt"));
  EXPECT_EQ(app.bytes("commuter/outpar.txt"),
            in_app("results/sales") + "\r\n 24 \r\n0             0\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterFiles, name_the_picks_in_the_order_of_the_picks) {
  open_commuter_page();
  pick("Command10(7)", sales);
  pick("Command10(0)", "sample/commute_Precision_production_craft_and_repair.txt");
  pick("Command12", "results/two.txt");
  make_files();
  const auto files = model_files();
  EXPECT_EQ(files.at("ccpar.txt"), " 24 \r\nDB\r\n0\r\n 2 \r\n7\r\n0\r\n");
  EXPECT_EQ(files.at("ccpar2.txt"), " 24 \r\nDB\r\n1\r\n 2 \r\n7\r\n0\r\n");
  EXPECT_EQ(files.at("outpar.txt"),
            in_app("results/two") + "\r\n 24 \r\n0             0\r\n 2 \r\n7\r\n0\r\n");
  EXPECT_EQ(files.at("popemp0.txt"), "= sample/commute_Precision_production_craft_and_repair.txt");
  EXPECT_EQ(files.at("sig0.txt"), " 11.27 \r\n");
  EXPECT_EQ(files.at("wage0.txt"), " 129.6 \r\n");
}

TEST_F(CommuterFiles, take_twelve_occupations) {
  open_commuter_page();
  std::string codes;
  for (int code = 11; code >= 0; --code) {
    pick("Command10(" + std::to_string(code) + ")", sales);
    codes += std::to_string(code) + "\r\n";
  }
  pick("Command12", "results/all.txt");
  make_files();
  const auto files = model_files();
  EXPECT_EQ(files.at("ccpar.txt"), " 24 \r\nDB\r\n0\r\n 12 \r\n" + codes);
  EXPECT_EQ(files.at("ccpar2.txt"), " 24 \r\nDB\r\n1\r\n 12 \r\n" + codes);
  EXPECT_EQ(files.at("outpar.txt"),
            in_app("results/all") + "\r\n 24 \r\n0             0\r\n 12 \r\n" + codes);
  EXPECT_EQ(files.at("sig11.txt"), " 16.49 \r\n");
  EXPECT_EQ(files.at("wage10.txt"), " 116.56 \r\n");
  EXPECT_EQ(files.size(), 8U + 3 * 12);
}

TEST_F(CommuterFiles, put_the_output_before_its_first_dot) {
  make_ready();
  EXPECT_EQ(output_base_of("/study/results/sales.txt"), "/study/results/sales");
  EXPECT_EQ(output_base_of("/study/results.old/sales.txt"), "/study/results");
  EXPECT_EQ(output_base_of("/study/sales.2026.txt"), "/study/sales");
  EXPECT_EQ(output_base_of("out"), "out");
  EXPECT_EQ(output_base_of(".txt"), "");
}

TEST_F(CommuterFiles, with_an_empty_output_base_are_no_reason_to_stop) {
  make_ready();
  program.form3.OutputFile = ".txt";
  make_files();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(app.bytes("commuter/outpar.txt"), "\r\n 24 \r\n0             0\r\n 1 \r\n7\r\n");
}

TEST_F(CommuterFiles, give_way_to_names_that_are_exact) {
  app.put_file("commuter/dist.txt", "old");
  app.put_file("commuter/CCPAR.TXT", "old");
  make_ready();
  make_files();
  const auto files = model_files();
  EXPECT_TRUE(files.contains("Dist.txt"));
  EXPECT_FALSE(files.contains("dist.txt"));
  EXPECT_TRUE(files.contains("ccpar.txt"));
  EXPECT_FALSE(files.contains("CCPAR.TXT"));
}

TEST_F(CommuterFiles, take_the_first_record_of_the_speeds_and_of_the_mode_shares) {
  app.sql("INSERT INTO var_input VALUES (1, 2, 3, 4); INSERT INTO Commute_Param VALUES (1, 2, 3, 4, 5, 6)");
  make_ready();
  make_files();
  EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 38            .42 \r\n");
  EXPECT_EQ(app.bytes("commuter/costpar.txt"),
            " .25           2.38 \r\n0              .7629  .0929  .1394  .0048 \r\n");
}

TEST_F(CommuterFiles, take_the_first_record_of_the_speeds_wherever_the_form_of_the_parameters_stands) {
  app.sql("INSERT INTO var_input VALUES (1, 2, 3, 4)");
  make_ready();
  by_code([this] { program.form1->Data2.recordset().MoveNext(); });
  make_files();
  EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 38            .42 \r\n");
}

TEST_F(CommuterFiles, take_the_first_of_two_rows_of_an_occupation) {
  app.sql("INSERT INTO commuter (\"index\", sigma, wage) VALUES (7, 99, 99)");
  make_ready();
  make_files();
  EXPECT_EQ(app.bytes("commuter/sig7.txt"), " 13.05 \r\n");
  EXPECT_EQ(app.bytes("commuter/wage7.txt"), " 125.2 \r\n");
}

TEST_F(CommuterFiles, are_those_of_the_first_record_of_the_paths_though_the_present_one_is_looked_for) {
  const std::string other = "'sample/districts.txt'";
  app.sql("INSERT INTO timdist VALUES (" + other + ", " + other + ", " + other + ")");
  make_ready();
  by_code([this] { program.form3->Data1(1).recordset().MoveNext(); });
  std::filesystem::rename(app.file("sample/districts.txt"), app.file("sample/away.txt"));
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("file sample/districts.txt not found. Please respecify file.  "
                                   "[exclamation, OK]"));
  std::filesystem::rename(app.file("sample/away.txt"), app.file("sample/districts.txt"));
  by_code([this] { program.mdiform1.spec_timdist.set_enabled(true); });
  analyst.choose("spec_comm");
  by_code([this] { program.form3->Data1(1).recordset().MoveNext(); });
  make_files();
  EXPECT_EQ(model_files().at("Dist.txt"), "= sample/distance.txt");
  EXPECT_EQ(model_files().at("base_time.txt"), "= sample/base_time.txt");
  EXPECT_EQ(model_files().at("imp_time.txt"), "= sample/imp_time.txt");
}

TEST_F(CommuterFiles, keep_the_picks_in_the_first_record_alone) {
  app.sql("INSERT INTO Anfiles (Salesfiles) VALUES ('second')");
  make_ready();
  make_files();
  analyst.click("Command3");
  EXPECT_THAT(app.rows("SELECT Salesfiles FROM Anfiles"), ElementsAre(in_app(sales), "second"));
}

TEST_F(CommuterFiles, name_the_output_bare_whatever_its_path_holds) {
  make_ready();
  for (const char* name : {"Größe, neu/aus gabe,1", "\"alt\" und neu/it's", "a\\b"}) {
    EXPECT_EQ(output_base_of(in_app(name) + ".txt"), in_app(name));
  }
}

TEST_F(CommuterFiles, of_picked_paths_with_umlauts_commas_and_blanks) {
  std::filesystem::create_directory(app.file("Größe, neu"));
  std::filesystem::copy_file(app.file(sales), app.file("Größe, neu/Käufer, alle.txt"));
  open_commuter_page();
  pick("Command10(7)", "Größe, neu/Käufer, alle.txt");
  pick("Command12", "Größe, neu/aus gabe,1.txt");
  make_files();
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_EQ(app.bytes("commuter/outpar.txt"),
            in_app("Größe, neu/aus gabe,1") + "\r\n 24 \r\n0             0\r\n 1 \r\n7\r\n");
  EXPECT_EQ(model_files().at("popemp7.txt"), std::string("= ") + sales);
}

TEST_F(CommuterFiles, keep_the_word_for_a_parameter_that_was_left_out) {
  app.sql("UPDATE commuter SET wage = NULL; UPDATE var_input SET BaseHighwayShare = NULL");
  make_ready();
  make_files();
  EXPECT_EQ(app.bytes("commuter/wage7.txt"), "Null\r\n");
  EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 38           Null\r\n");
}

TEST_F(CommuterFiles, keep_a_negative_parameter_apart_from_the_one_before) {
  app.sql("UPDATE Commute_Param SET ModeShare2 = -0.5, CostParameterB = -1");
  make_ready();
  make_files();
  EXPECT_EQ(app.bytes("commuter/costpar.txt"),
            " .25          -1 \r\n0              .7629 -.5  .1394  .0048 \r\n");
}

TEST_F(CommuterFiles, hold_points_where_the_country_writes_commas) {
  const testing_aids::CommaLocale locale;
  ASSERT_TRUE(locale);
  app.sql("UPDATE commuter SET wage = 12345.5");
  make_ready();
  make_files();
  EXPECT_EQ(app.bytes("commuter/wage7.txt"), " 12345.5 \r\n");
  EXPECT_EQ(app.bytes("commuter/base_var.txt"), " 38            .42 \r\n");
}

TEST_F(CommuterFiles, of_the_improvement_speeds_come_only_with_the_run) {
  make_ready();
  make_files();
  EXPECT_FALSE(model_files().contains("imp_var.txt"));
}

}  // namespace
