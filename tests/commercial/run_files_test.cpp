// The files that stand in the model directory when the commercial run asks its question.
#include "commercial_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class CommercialFiles : public testing_aids::CommercialPage {
 protected:
  void make_files() {
    press_and_answer({"No"});
    ASSERT_EQ(shown().size(), 1U);
  }

  /// The fourth line of the parameter file for an output file of that path.
  std::string output_base_of(const std::string& path) {
    make_ready();
    program.form3.OutputFile = path;
    make_files();
    const std::string bytes = app.bytes("truck/outpar.txt");
    const std::string before = " 24 \r\n0             0\r\nNONE\r\n";
    EXPECT_EQ(bytes.substr(0, before.size()), before);
    return bytes.substr(before.size(), bytes.find("\r\n", before.size()) - before.size());
  }
};

TEST_F(CommercialFiles, of_agriculture_and_service_name_both_in_seven_lines) {
  open_commercial_page();
  pick("Command1(1)", "sample/trips_Agriculture.txt");
  pick("Command1(9)", "sample/trips_Service.txt");
  pick("Command5", "results/two.txt");
  analyst.click("Option4(2)");
  make_files();
  EXPECT_EQ(shown().front(),
            "The Number of Zones= 24\nThe Number of Districts= 0\nThe industries areAgriculture\nService\n"
            "Do you wish to continue? [Yes, No]");
  const auto files = model_files();
  EXPECT_EQ(files.at("outpar.txt"),
            " 24 \r\n0             0\r\nNONE\r\n" + in_app("results/two") + "\r\n 2 \r\n1\r\n9\r\n");
  EXPECT_EQ(files.at("sig1.txt"), " 14.51 \r\n");
  EXPECT_EQ(files.at("cost1.txt"), " 16765         25.07         430           1             90 \r\n");
  EXPECT_EQ(files.at("trktrp1.txt"), "= sample/trips_Agriculture.txt");
  EXPECT_EQ(files.at("sig9.txt"), " 10.61 \r\n");
  EXPECT_EQ(files.at("cost9.txt"), " 135           0             50            1             95 \r\n");
  EXPECT_EQ(files.at("trktrp9.txt"), "= sample/trips_Service.txt");
}

TEST_F(CommercialFiles, follow_the_order_of_the_picks) {
  make_ready();
  pick("Command1(1)", "sample/trips_Agriculture.txt");
  make_files();
  EXPECT_THAT(app.bytes("truck/outpar.txt"), HasSubstr("\r\n 2 \r\n2\r\n1\r\n"));
  EXPECT_THAT(shown().front(), HasSubstr("The industries areMining\nAgriculture\nDo you wish"));
}

TEST_F(CommercialFiles, of_a_run_with_districts_hold_their_file_and_number) {
  make_ready_with_districts();
  make_files();
  const auto files = model_files();
  EXPECT_EQ(files.at("district.txt"), "= sample/districts.txt");
  EXPECT_EQ(files.at("outpar.txt"),
            " 24 \r\n1              4 \r\nNONE\r\n" + in_app("results/trucks") + "\r\n 1 \r\n2\r\n");
}

TEST_F(CommercialFiles, pass_over_a_district_file_that_is_gone_when_districts_are_not_asked_for) {
  make_ready_with_districts();
  analyst.click("Check1");
  std::filesystem::remove(app.file("sample/districts.txt"));
  make_files();
  EXPECT_THAT(shown(), ElementsAre(summary_of_mining));
  EXPECT_FALSE(model_files().contains("district.txt"));
}

TEST_F(CommercialFiles, take_the_first_record_of_the_speeds_and_its_first_three_fields) {
  app.sql(
      "UPDATE var_input SET BaseSpeed = 35, BaseHighwayShare = 1.2, ImprovementSpeed = 40,"
      " ImprovementHighwayShare = 1.3; INSERT INTO var_input VALUES (1, 2, 3, 4)");
  make_ready();
  analyst.click("Option4(0)");
  make_files();
  EXPECT_EQ(app.bytes("truck/base_var.txt"), " 35  1.2 \r\n");
  EXPECT_EQ(app.bytes("truck/imp_var.txt"), " 1.2  40 \r\n");
}

TEST_F(CommercialFiles, keep_a_negative_speed_apart_from_the_value_before) {
  app.sql("UPDATE var_input SET ImprovementSpeed = -47");
  make_ready();
  analyst.click("Option4(0)");
  make_files();
  EXPECT_EQ(app.bytes("truck/imp_var.txt"), " .42 -47 \r\n");
}

TEST_F(CommercialFiles, hold_a_word_for_a_parameter_that_was_left_out) {
  app.sql(
      "UPDATE var_input SET BaseHighwayShare = NULL;"
      "UPDATE Commercial SET sigma = NULL, \"Value\" = NULL, \"JIT Factor\" = NULL");
  make_ready();
  analyst.click("Option4(0)");
  make_files();
  EXPECT_EQ(app.bytes("truck/base_var.txt"), " 38 Null\r\n");
  EXPECT_EQ(app.bytes("truck/imp_var.txt"), "Null 47 \r\n");
  EXPECT_EQ(app.bytes("truck/sig2.txt"), "Null\r\n");
  EXPECT_EQ(app.bytes("truck/cost2.txt"), "Null           25.04         50           Null           95 \r\n");
}

TEST_F(CommercialFiles, hold_seven_digits_of_a_single_precision_value_and_fifteen_of_a_speed) {
  app.sql(
      "UPDATE Commercial SET sigma = 1.23456789, \"Unit Cost\" = 0.1, \"Load Factor\" = 16777217;"
      "UPDATE var_input SET BaseSpeed = 1.23456789012345, BaseHighwayShare = 0.1");
  make_ready();
  analyst.click("Option4(0)");
  make_files();
  EXPECT_EQ(app.bytes("truck/sig2.txt"), " 1.234568 \r\n");
  EXPECT_EQ(app.bytes("truck/cost2.txt"),
            " 5469          .1            50            1             16777220 \r\n");
  EXPECT_EQ(app.bytes("truck/base_var.txt"), " 1.23456789012345  .1 \r\n");
}

TEST_F(CommercialFiles, hold_no_speeds_unless_sketch_planning_data_are_used_and_then_none_are_read) {
  app.sql("DELETE FROM var_input");
  for (const auto& [option, mode] : {std::pair("Option4(1)", "FILE"), {"Option4(2)", "NONE"}}) {
    make_ready();
    analyst.click(option);
    make_files();
    EXPECT_THAT(shown(), ElementsAre(summary_of_mining));
    EXPECT_THAT(app.bytes("truck/outpar.txt"), HasSubstr("\r\n" + std::string(mode) + "\r\n"));
    EXPECT_FALSE(model_files().contains("base_var.txt")) << mode;
    EXPECT_FALSE(model_files().contains("imp_var.txt")) << mode;
  }
}

TEST_F(CommercialFiles, put_the_output_before_its_first_dot) {
  EXPECT_EQ(output_base_of("/study/results/trucks.txt"), "/study/results/trucks");
  EXPECT_EQ(output_base_of("/study/results.old/trucks.txt"), "/study/results");
  EXPECT_EQ(output_base_of("C:\\run.1\\out.txt"), "C:\\run");
  EXPECT_EQ(output_base_of("out"), "out");
  EXPECT_EQ(output_base_of(".txt"), "");
}

TEST_F(CommercialFiles, are_the_time_files_that_the_page_shows_and_not_those_that_were_stored) {
  app.put_file("sample/other.txt", "1 1 2\r\n");
  make_ready();
  by_code([this] { program.form3->Text1(5).set_text(in_app("sample/other.txt")); });
  make_files();
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "1 1 2\r\n");
  EXPECT_THAT(app.rows("SELECT distance FROM timdist"), ElementsAre(in_app("sample/other.txt")));
}

TEST_F(CommercialFiles, stand_beside_those_of_a_run_that_was_stopped_until_the_model_sees_both) {
  make_ready();
  press_and_answer({"No"});
  app.put_file("truck/sig2.txt", "old and longer than what comes\r\n");
  program_does("copy sig2.txt seen.txt\nwrite Err.txt 0\\r\\n\n");
  open_commercial_page();
  pick("Command1(9)", "sample/trips_Service.txt");
  pick("Command5", "results/trucks.txt");
  analyst.click("Option4(2)");
  press_and_answer({"Yes", "OK"});
  EXPECT_EQ(app.bytes("truck/seen.txt"), "old and longer than what comes\r\n");
  EXPECT_EQ(app.bytes("truck/sig2.txt"), "(none)");
}

TEST_F(CommercialFiles, replace_those_of_the_same_name_whole) {
  app.put_file("truck/sig2.txt", "old and longer than what comes\r\n");
  app.put_file("truck/dist.txt", "old");
  make_ready();
  make_files();
  const auto files = model_files();
  EXPECT_EQ(files.at("sig2.txt"), " 4.62 \r\n");
  EXPECT_EQ(files.at("Dist.txt"), "= sample/distance.txt");
  EXPECT_FALSE(files.contains("dist.txt"));
}

TEST_F(CommercialFiles, take_the_first_record_of_the_speeds_wherever_the_form_of_the_parameters_stands) {
  app.sql("INSERT INTO var_input VALUES (1, 2, 3, 4)");
  make_ready();
  analyst.click("Option4(0)");
  by_code([this] { program.form1->Data2.recordset().MoveNext(); });
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/base_var.txt"), " 38  .42 \r\n");
}

TEST_F(CommercialFiles, take_the_first_of_two_rows_of_an_industry) {
  app.sql("INSERT INTO Commercial SELECT industry_number, 99, 99, 99, 99, 99, 99 FROM Commercial");
  make_ready();
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/sig2.txt"), " 4.62 \r\n");
  EXPECT_EQ(app.bytes("truck/cost2.txt"), " 5469          25.04         50            1             95 \r\n");
}

TEST_F(CommercialFiles, are_those_of_the_first_record_of_the_paths) {
  const std::string other = "'sample/districts.txt'";
  app.sql("INSERT INTO timdist VALUES (" + other + ", " + other + ", " + other + ")");
  make_ready();
  by_code([this] { program.form3->Data1(1).recordset().MoveNext(); });
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/Dist.txt"), app.bytes("sample/distance.txt"));
  EXPECT_EQ(app.bytes("truck/imp_time.txt"), app.bytes("sample/imp_time.txt"));
}

TEST_F(CommercialFiles, name_the_output_bare_whatever_its_path_holds) {
  for (const char* name : {"Größe, neu/aus gabe,1", "\"alt\" und neu/it's"}) {
    make_ready();
    program.form3.OutputFile = in_app(name) + ".txt";
    press_and_answer({"No"});
    EXPECT_EQ(app.bytes("truck/outpar.txt"),
              " 24 \r\n0             0\r\nNONE\r\n" + in_app(name) + "\r\n 1 \r\n2\r\n");
  }
}

TEST_F(CommercialFiles, of_picked_paths_with_umlauts_and_commas) {
  std::filesystem::create_directory(app.file("Größe,neu"));
  std::filesystem::copy_file(app.file(mining), app.file("Größe,neu/Güter,alle.txt"));
  open_commercial_page();
  pick("Command1(2)", "Größe,neu/Güter,alle.txt");
  pick("Command5", "Größe,neu/aus,1.txt");
  analyst.click("Option4(2)");
  press_and_answer({"No"});
  EXPECT_EQ(app.bytes("truck/outpar.txt"),
            " 24 \r\n0             0\r\nNONE\r\n" + in_app("Größe,neu/aus,1") + "\r\n 1 \r\n2\r\n");
  EXPECT_EQ(app.bytes("truck/trktrp2.txt"), app.bytes(mining));
}

TEST_F(CommercialFiles, are_not_made_of_a_directory) {
  make_ready();
  program.form3.PickPath(1) = in_app("sample");
  press();
  EXPECT_THAT(shown(), ::testing::IsEmpty());
  EXPECT_EQ(app.bytes("truck/trktrp2.txt"), "(none)");
  EXPECT_TRUE(program.form3.visible());
}

}  // namespace
