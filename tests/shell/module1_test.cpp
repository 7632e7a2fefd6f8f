#include "shell/module1.h"

#include <QMessageBox>
#include <filesystem>

#include "faults.h"
#include "program_test.h"

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::fault_of;

class Module1 : public testing_aids::ProgramTest {
 protected:
  int run(const std::string& program_name) {
    int code = 0;
    as_handler([&] { code = shell::RunAndWait(program, program_name); });
    return code;
  }
  std::string current() { return program.desktop.files.current_directory(); }
};

using RunAndWait = Module1;

TEST_F(RunAndWait, a_program_that_exits_with_259_has_failed) {
  app.put_stand_in("model.exe");
  app.put_file("stand_in.txt", "exit 259\n");
  EXPECT_EQ(run("model.exe"), 259 % 256);  // this platform passes 8 bits of an exit code
}

TEST_F(RunAndWait, gives_the_exit_code_of_the_program) {
  app.put_stand_in("model.exe");
  EXPECT_EQ(run("model.exe"), 0);
  app.put_file("stand_in.txt", "exit 7\n");
  EXPECT_EQ(run("model.exe"), 7);
}

TEST_F(RunAndWait, of_a_name_that_does_not_exist_is_minus_one) {
  EXPECT_EQ(run("nosuch.exe"), -1);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(RunAndWait, the_program_inherits_the_current_directory) {
  app.put_stand_in("commuter/model.exe");
  app.put_file("commuter/stand_in.txt", "directory where.txt\n");
  program.desktop.files.ChDir("commuter");
  EXPECT_EQ(run("MODEL.EXE"), 0);
  EXPECT_EQ(app.bytes("commuter/where.txt"), app.file("commuter").string());
}

using GoToAppDirectory = Module1;

TEST_F(GoToAppDirectory, comes_back_from_another_directory) {
  program.desktop.files.ChDir("results");
  shell::GoToAppDirectory(program);
  EXPECT_EQ(current(), app.path());
}

TEST_F(GoToAppDirectory, comes_back_from_a_directory_that_has_vanished) {
  fs::create_directory(app.file("brief"));
  program.desktop.files.ChDir("brief");
  fs::remove(app.file("brief"));
  shell::GoToAppDirectory(program);
  EXPECT_EQ(current(), app.path());
}

TEST_F(GoToAppDirectory, passes_over_an_application_directory_that_has_vanished) {
  forms::Program lost(app.file("nosuch").string());
  EXPECT_EQ(fault_of([&] { shell::GoToAppDirectory(lost); }), 0);
  EXPECT_EQ(current(), app.path());
}

using Menus = Module1;

TEST_F(Menus, inputs_and_run_switch_together_and_nothing_else_does) {
  shell::DisableMenus(program);
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
  EXPECT_TRUE(analyst.item_enabled("Mnu_exit"));
  EXPECT_TRUE(analyst.item_enabled("spec_timdist"));
  shell::EnableMenus(program);
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
}

class FileTransaction : public Module1 {
 protected:
  void set_zones(int count) {
    program.desktop.workspace.OpenDatabase("zelmor.mdb")
        .Execute("update zones set numzones = " + std::to_string(count));
  }
  std::vector<std::string> zones() { return app.rows("select numzones from zones"); }

  runtime::engine::Database keeps_the_file_open{program.desktop.workspace.OpenDatabase("zelmor.mdb")};
};

TEST_F(FileTransaction, to_end_one_before_the_first_was_begun_is_fault_91) {
  EXPECT_EQ(fault_of([&] { shell::CommitFileTransaction(program); }), 91);
  EXPECT_EQ(fault_of([&] { shell::RollbackFileTransaction(program); }), 91);
}

TEST_F(FileTransaction, a_commit_keeps_and_a_rollback_takes_back) {
  as_handler([&] {
    shell::BeginFileTransaction(program);
    set_zones(5);
    shell::CommitFileTransaction(program);
    shell::BeginFileTransaction(program);
    set_zones(6);
    shell::RollbackFileTransaction(program);
  });
  EXPECT_THAT(zones(), ElementsAre("5"));
}

TEST_F(FileTransaction, they_nest_and_a_rollback_takes_back_its_own_level_only) {
  as_handler([&] {
    shell::BeginFileTransaction(program);
    set_zones(5);
    shell::BeginFileTransaction(program);
    set_zones(6);
    shell::RollbackFileTransaction(program);
    shell::CommitFileTransaction(program);
  });
  EXPECT_THAT(zones(), ElementsAre("5"));
  EXPECT_EQ(program.desktop.workspace.levels(), 0);
}

TEST_F(FileTransaction, one_that_nobody_ends_stays_and_hides_no_work) {
  as_handler([&] {
    shell::BeginFileTransaction(program);
    set_zones(5);
  });
  EXPECT_THAT(zones(), ElementsAre("5"));
  EXPECT_EQ(program.desktop.workspace.levels(), 1);
}

TEST_F(FileTransaction, one_ended_twice_is_a_fault_of_the_engine) {
  shell::BeginFileTransaction(program);
  shell::CommitFileTransaction(program);
  EXPECT_EQ(fault_of([&] { shell::CommitFileTransaction(program); }), 3034);
}

class CheckFileName : public Module1 {
 protected:
  bool check(const std::string& given) {
    name = given;
    return shell::CheckFileName(program, name);
  }
  bool check_with_box(const std::string& given) {
    analyst.will_press("OK");
    return check(given);
  }
  analyst::Box box() { return analyst.last_box(); }

  std::string name;
};

TEST_F(CheckFileName, of_abcd_text_is_false_shows_abcd_and_leaves_abcd) {
  EXPECT_FALSE(check_with_box("abcd.text"));
  EXPECT_EQ(name, "abcd");
  EXPECT_EQ(box().text,
            "The following file extension is too long.\nabcd\nExtensions must have 3 characters or less.");
  EXPECT_EQ(box().title, "Error: Check Filename Extension");
  EXPECT_THAT(box().buttons, ElementsAre("OK"));
  EXPECT_EQ(box().icon, QMessageBox::NoIcon);
}

TEST_F(CheckFileName, of_a_name_with_a_blank_is_false_and_leaves_it_cut) {
  EXPECT_FALSE(check_with_box("ab cd.txt"));
  EXPECT_EQ(name, "ab cd");
  EXPECT_EQ(box().text,
            "The following file name and path contains a blank.\nab cd\nFilenames must contain no blanks.");
  EXPECT_EQ(box().title, "Error: Check Blanks in Filename");
  EXPECT_THAT(box().buttons, ElementsAre("OK"));
}

TEST_F(CheckFileName, of_abcd_txt_is_true_and_leaves_abcd) {
  EXPECT_TRUE(check("abcd.txt"));
  EXPECT_EQ(name, "abcd");
}

TEST_F(CheckFileName, leaves_a_name_without_a_dot_whole) {
  EXPECT_TRUE(check("/study/abcd"));
  EXPECT_EQ(name, "/study/abcd");
}

TEST_F(CheckFileName, looks_for_a_blank_in_a_name_without_a_dot) {
  EXPECT_FALSE(check_with_box("/my study/abcd"));
  EXPECT_EQ(name, "/my study/abcd");
}

TEST_F(CheckFileName, takes_the_first_dot_of_the_whole_path_for_the_extensions) {
  EXPECT_FALSE(check_with_box("/study.2026/abcd.txt"));
  EXPECT_EQ(name, "/study");
  EXPECT_EQ(box().title, "Error: Check Filename Extension");
}

TEST_F(CheckFileName, tells_of_the_extension_alone_when_the_name_holds_a_blank_as_well) {
  EXPECT_FALSE(check_with_box("ab cd.text"));
  EXPECT_EQ(analyst.boxes().size(), 1U);
  EXPECT_EQ(box().title, "Error: Check Filename Extension");
}

TEST_F(CheckFileName, passes_a_blank_behind_the_first_dot) {
  EXPECT_TRUE(check("abcd.t x"));
  EXPECT_EQ(name, "abcd");
}

TEST_F(CheckFileName, passes_an_empty_name_an_empty_extension_and_a_leading_dot) {
  EXPECT_TRUE(check(""));
  EXPECT_TRUE(check("abcd."));
  EXPECT_EQ(name, "abcd");
  EXPECT_TRUE(check(".txt"));
  EXPECT_EQ(name, "");
}

/// The boxes of the grid with the check on every change, as the grid has it.
class CheckIntegerKey : public Module1 {
 protected:
  CheckIntegerKey() {
    program.frmDataGrid.set_events({{"txt_zonedit", runtime::forms::Event::Change, [this](int index) {
                                       shell::CheckIntegerKey(program, text(index), index);
                                     }}});
    program.frmDataGrid.Load();
  }
  std::string text(int index) { return program.frmDataGrid->txt_zonedit(index).text(); }
  void type(int index, const std::string& keys) {
    analyst.type("txt_zonedit(" + std::to_string(index) + ")", keys);
  }
  static constexpr const char* message = "Must enter an integer number";
};

TEST_F(CheckIntegerKey, passes_a_text_that_ends_in_a_digit_or_a_dot_in_every_box) {
  for (int index = 0; index <= 4; ++index) type(index, "1.5.");
  for (int index = 0; index <= 4; ++index) EXPECT_EQ(text(index), "1.5.");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(CheckIntegerKey, empties_a_box_whose_text_ends_in_a_letter_and_says_so_twice) {
  type(2, "12");
  analyst.will_press("OK");
  analyst.will_press("OK");
  type(2, "a");
  EXPECT_THAT(analyst.texts(), ElementsAre(message, message));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::Critical);
  EXPECT_EQ(text(2), "");
}

TEST_F(CheckIntegerKey, the_fill_value_takes_a_dot_and_no_sign) {
  type(4, "0.");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
  analyst.will_press("OK");
  analyst.will_press("OK");
  type(4, "-");
  EXPECT_EQ(text(4), "");
}

TEST_F(CheckIntegerKey, shows_its_message_when_the_last_character_is_deleted) {
  type(1, "1");
  analyst.will_press("OK");
  type(1, "\b");
  EXPECT_THAT(analyst.texts(), ElementsAre(message));
  EXPECT_EQ(text(1), "");
}

TEST_F(CheckIntegerKey, empties_the_box_of_the_index_and_no_other) {
  type(0, "7");
  type(1, "8");
  analyst.will_press("OK");
  analyst.will_press("OK");
  as_handler([&] { shell::CheckIntegerKey(program, "8x", 1); });
  EXPECT_EQ(text(0), "7");
  EXPECT_EQ(text(1), "");
}

TEST_F(CheckIntegerKey, passes_a_backspace_character) {
  as_handler([&] { shell::CheckIntegerKey(program, "x\b", 0); });
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

}  // namespace
