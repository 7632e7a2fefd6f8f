// Whatever goes wrong before the question: the analyst keeps the page with its picks, and nothing is told.
#include "commuter_page.h"
#include "ordinary_user.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class CommuterFaults : public testing_aids::CommuterPage {
 protected:
  void expect_silent_retry(const std::string& open_files = "") {
    press();
    EXPECT_THAT(shown(), IsEmpty());
    const std::string state = left();
    EXPECT_THAT(state, ::testing::StartsWith("forms: Form3*"));
    EXPECT_EQ(state.substr(state.find("\nopen")), "\nopen files:" + open_files + R"(
new levels: 1
directory: .
picks: 7, output)" + (program.form3.DistrictFile.empty() ? "" : ", districts") +
                                                      R"(
menus: spec_CuCo spec_comm
)");
    EXPECT_EQ(program.form3.window_state(), runtime::forms::WindowState::maximized);
    EXPECT_TRUE(analyst.can_use("Command11"));
  }

  /// The run stops without a word, and goes on once the reason is gone.
  void expect_silent_retry_until(const std::function<void()>& mend, const std::string& open_files = "") {
    expect_silent_retry(open_files);
    mend();
    press_and_answer({"No"});
    EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  }
};

TEST_F(CommuterFaults, a_missing_model_directory) {
  make_ready();
  fs::rename(app.file("commuter"), app.file("elsewhere"));
  expect_silent_retry_until([&] { fs::rename(app.file("elsewhere"), app.file("commuter")); });
}

TEST_F(CommuterFaults, a_missing_model_directory_in_a_run_without_reliability) {
  make_ready();
  analyst.click("Option4(2)");
  fs::rename(app.file("commuter"), app.file("elsewhere"));
  expect_silent_retry_until([&] { fs::rename(app.file("elsewhere"), app.file("commuter")); });
}

TEST_F(CommuterFaults, a_pick_without_a_row_of_wages) {
  make_ready();
  app.sql("UPDATE commuter SET \"index\" = 70 WHERE \"index\" = 7");
  expect_silent_retry_until([&] { app.sql("UPDATE commuter SET \"index\" = 7 WHERE \"index\" = 70"); });
}

TEST_F(CommuterFaults, an_empty_table_of_wages) {
  make_ready();
  app.sql("DELETE FROM commuter");
  expect_silent_retry();
}

TEST_F(CommuterFaults, an_empty_table_of_speeds_with_sketch_planning_data) {
  app.sql("DELETE FROM var_input");
  make_ready();
  expect_silent_retry_until([&] { analyst.click("Option4(2)"); });
}

TEST_F(CommuterFaults, an_empty_table_of_mode_shares) {
  app.sql("DELETE FROM Commute_Param");
  make_ready();
  expect_silent_retry();
}

TEST_F(CommuterFaults, an_empty_table_of_time_files) {
  app.sql("DELETE FROM timdist");
  make_ready();
  expect_silent_retry();
}

// The parameter form is loaded before the trap stands.
TEST_F(CommuterFaults, a_table_of_parameters_that_is_gone_is_told) {
  make_ready();
  app.sql("DROP TABLE commuter");
  press_and_answer({"OK"});
  EXPECT_THAT(shown(), ElementsAre("RuntimeError: Run-time error '3078':\n\n"
                                   "The table 'commuter' was not found [stop sign, OK]"));
  EXPECT_EQ(left(), R"(forms: Form3* Form2
open files:
new levels: 0
directory: .
picks: 7, output
menus: spec_CuCo spec_comm
)");
}

TEST_F(CommuterFaults, more_zones_than_a_16_bit_number_holds) {
  make_ready();
  by_code([this] { program.form2.unload_without_storing(); });
  app.sql("UPDATE zones SET numzones = 40000");
  expect_silent_retry_until([&] {
    by_code([this] { program.form2.unload_without_storing(); });
    app.sql("UPDATE zones SET numzones = 24");
  });
}

// There are places for thirteen.
TEST_F(CommuterFaults, a_fourteenth_pick) {
  make_ready();
  by_code([this] {
    for (int i = 2; i <= 13; ++i) {
      program.form3.PickCode(i) = "7";
      program.form3.PickPath(i) = in_app(sales);
    }
    program.form3.PickCount = 14;
  });
  press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(program.form3.PickCount, 14);
  EXPECT_TRUE(analyst.can_use("Command11"));
  EXPECT_FALSE(fs::exists(app.file("commuter/outpar.txt")));
}

// The road up to the question reads, and writes nothing to the database.
TEST_F(CommuterFaults, a_database_that_another_program_writes_to_is_no_reason_to_stop) {
  make_ready();
  runtime::engine::Workspace other;
  auto holder = other.OpenDatabase(in_app("zelmor.mdb"));
  holder.Execute("UPDATE zones SET numdstrct = 0");
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  other.handler_ended();
}

// Nor does one that may not be changed stop it; what can't be stored is told when the page is left.
TEST_F(CommuterFaults, a_database_that_is_read_only_is_no_reason_to_stop) {
  for (const char* name : {"commuter", "results"}) fs::permissions(app.file(name), fs::perms::all);
  const testing_aids::OrdinaryUser user;
  ASSERT_TRUE(user);
  make_ready();
  press_and_answer({"No"});
  EXPECT_THAT(shown(), ElementsAre(summary_of_sales));
  EXPECT_TRUE(model_files().contains("costpar.txt"));
  analyst.forget_boxes();
  analyst.will_press("OK");
  analyst.click("Command3");
  EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '"));
  EXPECT_TRUE(analyst.can_use("Command11"));
  EXPECT_EQ(program.form3->Text5(7).text(), in_app(sales));
}

TEST_F(CommuterFaults, a_time_file_that_is_a_copy_onto_itself) {
  app.put_file("commuter/Dist.txt", "kept");
  app.sql("UPDATE timdist SET distance = 'commuter/Dist.txt'");
  make_ready();
  expect_silent_retry();
  EXPECT_EQ(app.bytes("commuter/Dist.txt"), "kept");
}

TEST_F(CommuterFaults, an_occupation_file_that_may_not_be_read) {
  make_ready();
  fs::permissions(app.file(sales), fs::perms::none);
  for (const char* name : {"commuter", "zelmor.mdb"}) fs::permissions(app.file(name), fs::perms::all);
  const testing_aids::OrdinaryUser user;
  ASSERT_TRUE(user);
  expect_silent_retry(" 3");
}

// Every file that a run makes, and which number stays open when it cannot be opened or when the disk is full.
struct ModelFile {
  const char* name;
  const char* open_when_refused = "";
  const char* open_when_full = "";
};

void PrintTo(const ModelFile& file, std::ostream* stream) {
  *stream << file.name;
}

class CommuterFaultsOfFile : public CommuterFaults, public ::testing::WithParamInterface<ModelFile> {
 protected:
  void make_ready_with_districts() {
    make_ready();
    analyst.click("Check1");
    pick("Command7", "sample/districts.txt");
  }

  std::filesystem::path file() const { return app.file(std::string("commuter/") + GetParam().name); }
};

TEST_P(CommuterFaultsOfFile, a_directory_in_its_place) {
  make_ready_with_districts();
  fs::create_directory(file());
  expect_silent_retry(GetParam().open_when_refused);
}

TEST_P(CommuterFaultsOfFile, a_full_disk) {
  make_ready_with_districts();
  fs::create_symlink("/dev/full", file());
  expect_silent_retry(GetParam().open_when_full);
}

TEST_P(CommuterFaultsOfFile, one_that_is_not_to_be_changed) {
  make_ready_with_districts();
  testing_aids::put(file(), "old");
  fs::permissions(file(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  for (const char* name : {"commuter", "zelmor.mdb"}) fs::permissions(app.file(name), fs::perms::all);
  const testing_aids::OrdinaryUser user;
  ASSERT_TRUE(user);
  expect_silent_retry(GetParam().open_when_refused);
  EXPECT_EQ(testing_aids::bytes_of(file()), "old");
}

INSTANTIATE_TEST_SUITE_P(, CommuterFaultsOfFile,
                         ::testing::Values(ModelFile{"base_var.txt"}, ModelFile{"Dist.txt"},
                                           ModelFile{"base_time.txt"}, ModelFile{"imp_time.txt"},
                                           ModelFile{"sig7.txt"}, ModelFile{"wage7.txt"},
                                           ModelFile{"outpar.txt", "", " 3"},
                                           ModelFile{"ccpar.txt", "", " 3"}, ModelFile{"ccpar2.txt"},
                                           ModelFile{"district.txt", " 3", " 3"},
                                           ModelFile{"popemp7.txt", " 3", " 3"}, ModelFile{"costpar.txt"}),
                         [](const auto& file) {
                           const std::string name = file.param.name;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
