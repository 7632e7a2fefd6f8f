// No trap stands in the commercial run: what no step expects is a run-time error. The page and what was
// stored stay, and a later press or start goes on.
#include "commercial_page.h"
#include "ordinary_user.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class CommercialFaults : public testing_aids::CommercialPage {
 protected:
  /// A run-time error of that number, the page and its picks as they were, and the file numbers that stay
  /// open.
  void expect_error(const std::string& number, const std::string& open_files = "") {
    press_and_answer({"OK"});
    ASSERT_EQ(analyst.last_box().name, "RuntimeError");
    EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '" + number + "':"));
    const std::string state = left();
    EXPECT_THAT(state, ::testing::StartsWith("forms: Form3*"));
    EXPECT_EQ(state.substr(state.find("\nopen")),
              "\nopen files:" + open_files + "\nnew levels: 0\ndirectory: .\npicks: 2, output" +
                  (program.form3.DistrictFile.empty() ? "" : ", districts") +
                  "\nmenus: spec_CuCo spec_comm\n");
    EXPECT_TRUE(analyst.can_use("Command2"));
  }

  void expect_error_until(const std::function<void()>& mend, const std::string& number) {
    expect_error(number);
    mend();
    press_and_answer({"No"});
    EXPECT_THAT(shown(), ElementsAre(summary_of_mining));
  }
};

TEST_F(CommercialFaults, a_missing_model_directory) {
  make_ready();
  fs::rename(app.file("truck"), app.file("elsewhere"));
  expect_error_until([&] { fs::rename(app.file("elsewhere"), app.file("truck")); }, "76");
}

TEST_F(CommercialFaults, an_empty_table_of_speeds_with_sketch_planning_data) {
  app.sql("DELETE FROM var_input");
  make_ready();
  analyst.click("Option4(0)");
  expect_error_until([&] { analyst.click("Option4(2)"); }, "3021");
}

TEST_F(CommercialFaults, an_empty_table_of_costs) {
  app.sql("DELETE FROM Commercial");
  make_ready();
  expect_error("3021");
}

TEST_F(CommercialFaults, an_empty_table_of_time_files) {
  app.sql("DELETE FROM timdist");
  make_ready();
  expect_error("3021");
}

TEST_F(CommercialFaults, a_table_of_costs_that_is_gone) {
  make_ready();
  app.sql("DROP TABLE Commercial");
  expect_error("3078");
}

TEST_F(CommercialFaults, more_zones_than_a_16_bit_number_holds) {
  make_ready();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numzones = 40000");
  expect_error("6");
}

TEST_F(CommercialFaults, a_time_file_that_is_a_copy_onto_itself) {
  app.put_file("truck/Dist.txt", "kept");
  app.sql("UPDATE timdist SET distance = 'truck/Dist.txt'");
  make_ready();
  expect_error("70");
  EXPECT_EQ(app.bytes("truck/Dist.txt"), "kept");
}

TEST_F(CommercialFaults, a_trip_file_that_may_not_be_read_leaves_the_parameter_file_open) {
  make_ready();
  fs::permissions(app.file(mining), fs::perms::none);
  for (const char* name : {"truck", "zelmor.mdb"}) fs::permissions(app.file(name), fs::perms::all);
  const testing_aids::OrdinaryUser user;
  ASSERT_TRUE(user);
  expect_error("75", " 1");
}

TEST_F(CommercialFaults, a_parameter_file_left_open_meets_the_next_press_until_the_page_is_left) {
  make_ready();
  fs::rename(app.file(mining), app.file("sample/away.txt"));
  press();
  EXPECT_THAT(shown(), IsEmpty());
  fs::rename(app.file("sample/away.txt"), app.file(mining));
  expect_error("55", " 1");
  EXPECT_THAT(shown(), ElementsAre("RuntimeError: Run-time error '55':\n\nFile already open: " +
                                   in_app("truck/sig2.txt") + " [stop sign, OK]"));
  analyst.click("Command3");
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
  EXPECT_FALSE(program.desktop.files.is_open(1));
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_mining, completed));
}

TEST_F(CommercialFaults, a_missing_verdict_leaves_the_current_directory_and_quit_leads_back) {
  program_does("exit 0\n");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(),
              ElementsAre(summary_of_mining,
                          "RuntimeError: Run-time error '53':\n\nFile not found: Err.txt [stop sign, OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 0
directory: ./truck
picks: 2, output
menus: spec_CuCo spec_comm
)");
  program_does("write Err.txt 0\\r\\n\n");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(),
              ElementsAre("RuntimeError: Run-time error '3024':\n\nThe project database was not found: " +
                          in_app("truck/zelmor.mdb") + " [stop sign, OK]"));
  analyst.click("Command3");
  make_ready();
  press_and_answer({"Yes", "OK"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_mining, completed));
}

TEST_F(CommercialFaults, lose_nothing_that_was_stored_and_the_next_start_is_clean) {
  make_ready();
  app.sql("DELETE FROM Commercial WHERE industry_number = 2");
  expect_error("3021");
  EXPECT_THAT(app.rows("PRAGMA integrity_check"), ElementsAre("ok"));
  EXPECT_THAT(app.rows("SELECT numzones, numdstrct FROM zones"), ElementsAre("24|4"));
  EXPECT_THAT(app.rows("SELECT count(*) FROM timdist"), ElementsAre("1"));
  forms::Program again(app.path());
  EXPECT_EQ(again.form3.PickCount, 0);
  EXPECT_EQ(again.desktop.workspace.levels(), 0);
  EXPECT_FALSE(again.desktop.files.is_open(1));
}

// Every file that a run makes. Number 1 stays open when the fault comes while the parameter file is written.
struct ModelFile {
  const char* name;
  bool is_copy = false;
  const char* left_open = "";
};

void PrintTo(const ModelFile& file, std::ostream* stream) {
  *stream << file.name;
}

class CommercialFaultsOfFile : public CommercialFaults, public ::testing::WithParamInterface<ModelFile> {
 protected:
  void make_all_ready() {
    make_ready_with_districts();
    analyst.click("Option4(0)");
  }

  fs::path file() const { return app.file(std::string("truck/") + GetParam().name); }
};

TEST_P(CommercialFaultsOfFile, a_directory_in_its_place) {
  make_all_ready();
  fs::create_directory(file());
  expect_error("75", GetParam().left_open);
}

TEST_P(CommercialFaultsOfFile, a_full_disk) {
  make_all_ready();
  fs::create_symlink("/dev/full", file());
  // A device is no place for a copy, whatever its room.
  expect_error(GetParam().is_copy ? "75" : "61", GetParam().left_open);
}

TEST_P(CommercialFaultsOfFile, one_that_is_not_to_be_changed) {
  make_all_ready();
  testing_aids::put(file(), "old");
  fs::permissions(file(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  for (const char* name : {"truck", "zelmor.mdb"}) fs::permissions(app.file(name), fs::perms::all);
  const testing_aids::OrdinaryUser user;
  ASSERT_TRUE(user);
  expect_error("75", GetParam().left_open);
  EXPECT_EQ(testing_aids::bytes_of(file()), "old");
}

INSTANTIATE_TEST_SUITE_P(, CommercialFaultsOfFile,
                         ::testing::Values(ModelFile{"base_var.txt"}, ModelFile{"imp_var.txt"},
                                           ModelFile{"district.txt", true}, ModelFile{"Dist.txt", true},
                                           ModelFile{"base_time.txt", true}, ModelFile{"imp_time.txt", true},
                                           ModelFile{"sig2.txt"}, ModelFile{"cost2.txt"},
                                           ModelFile{"outpar.txt"}, ModelFile{"trktrp2.txt", true, " 1"}),
                         [](const auto& file) {
                           const std::string name = file.param.name;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
