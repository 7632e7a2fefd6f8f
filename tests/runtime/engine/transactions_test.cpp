#include "runtime/engine/project_file.h"
#include "runtime/engine/workspace.h"

namespace runtime::engine {
namespace {

using testing::fault_of;

class TransactionsTest : public testing::ProjectFile {
 protected:
  void write(int sigma) { database.Execute("UPDATE Commuter set sigma = " + std::to_string(sigma)); }
  /// What the process itself sees.
  std::string seen() { return testing::text_of(database.OpenRecordset("Commuter").field("sigma")); }
  /// What another program sees.
  std::string durable() const { return ask("SELECT sigma FROM Commuter"); }

  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

using Level = TransactionsTest;
using OldLevel = TransactionsTest;
using Handler = TransactionsTest;

TEST_F(Handler, makes_its_writes_durable_when_it_ends) {
  write(1);
  EXPECT_EQ(seen(), "1");
  EXPECT_EQ(durable(), "11.27");
  workspace.handler_ended();
  EXPECT_EQ(durable(), "1.0");
}

TEST_F(Handler, makes_them_durable_whatever_levels_stand_open) {
  workspace.BeginTrans();
  write(1);
  workspace.BeginTrans();
  write(2);
  workspace.handler_ended();
  EXPECT_EQ(durable(), "2.0");
  EXPECT_EQ(workspace.levels(), 2);
}

TEST_F(Handler, that_wrote_nothing_may_end) {
  workspace.BeginTrans();
  workspace.handler_ended();
  EXPECT_EQ(workspace.levels(), 1);
}

TEST_F(Handler, drops_its_writes_when_the_process_ends_under_it) {
  {
    Workspace other;
    other.OpenDatabase(file.string()).Execute("UPDATE Commuter set sigma = 3");
  }
  EXPECT_EQ(durable(), "11.27");
}

TEST_F(Handler, keeps_its_writes_for_the_next_end_when_another_program_is_reading) {
  Workspace patient;
  patient.lock_wait = std::chrono::milliseconds(1);
  auto writer = patient.OpenDatabase(file.string());
  writer.Execute("UPDATE Commuter set sigma = 3");
  auto reader = testing::hold_for_reading(file);
  EXPECT_EQ(fault_of([&] { patient.handler_ended(); }), 3260);
  reader.reset();
  patient.handler_ended();
  EXPECT_EQ(durable(), "3.0");
}

TEST_F(Handler, before_a_program_makes_durable_what_no_level_guards) {
  write(1);
  workspace.make_durable();
  EXPECT_EQ(durable(), "1.0");
  workspace.BeginTrans();
  write(2);
  workspace.make_durable();
  EXPECT_EQ(durable(), "1.0");
  workspace.Rollback();
  EXPECT_EQ(seen(), "1");
}

TEST_F(Handler, before_a_program_makes_durable_what_was_written_before_a_level_began) {
  write(1);
  workspace.BeginTrans();
  workspace.make_durable();
  EXPECT_EQ(durable(), "1.0");
  write(2);
  workspace.Rollback();
  EXPECT_EQ(seen(), "1");
}

TEST_F(Handler, before_a_program_is_not_held_back_by_an_old_level) {
  workspace.BeginTrans();
  workspace.handler_ended();
  write(2);
  workspace.make_durable();
  EXPECT_EQ(durable(), "2.0");
}

TEST(LevelWithoutFile, can_be_begun_and_ended) {
  Workspace workspace;
  workspace.BeginTrans();
  workspace.BeginTrans();
  EXPECT_EQ(workspace.levels(), 2);
  workspace.CommitTrans();
  workspace.Rollback();
  EXPECT_EQ(workspace.levels(), 0);
}

TEST(LevelWithoutFile, must_have_been_begun_to_be_ended) {
  Workspace workspace;
  EXPECT_EQ(fault_of([&] { workspace.CommitTrans(); }), 3034);
  EXPECT_EQ(fault_of([&] { workspace.Rollback(); }), 3034);
}

TEST_F(Level, is_begun_before_a_file_is_opened_and_guards_it_all_the_same) {
  database.Close();
  workspace.BeginTrans();
  database = workspace.OpenDatabase(file.string());
  write(1);
  workspace.Rollback();
  EXPECT_EQ(seen(), "11.27");
}

TEST_F(Level, guards_writes_after_its_handles_are_closed) {
  workspace.BeginTrans();
  write(1);
  database.Close();
  workspace.Rollback();
  workspace.handler_ended();
  EXPECT_EQ(durable(), "11.27");
}

TEST_F(Level, takes_back_its_own_writes_only) {
  write(1);
  workspace.BeginTrans();
  write(2);
  workspace.Rollback();
  EXPECT_EQ(seen(), "1");
  workspace.handler_ended();
  EXPECT_EQ(durable(), "1.0");
}

TEST_F(Level, takes_back_the_committed_writes_of_the_levels_within) {
  workspace.BeginTrans();
  write(1);
  workspace.BeginTrans();
  write(2);
  workspace.CommitTrans();
  EXPECT_EQ(seen(), "2");
  workspace.Rollback();
  EXPECT_EQ(seen(), "11.27");
}

TEST_F(Level, keeps_its_writes_when_a_level_within_is_rolled_back) {
  workspace.BeginTrans();
  write(1);
  workspace.BeginTrans();
  write(2);
  workspace.Rollback();
  workspace.CommitTrans();
  EXPECT_EQ(seen(), "1");
}

TEST_F(Level, without_writes_takes_back_nothing) {
  write(1);
  workspace.BeginTrans();
  workspace.Rollback();
  EXPECT_EQ(seen(), "1");
}

TEST_F(Level, begun_among_writes_can_be_used_again_and_again) {
  for (int i = 1; i <= 3; ++i) {
    workspace.BeginTrans();
    write(i);
    workspace.CommitTrans();
    workspace.BeginTrans();
    write(100);
    workspace.Rollback();
  }
  EXPECT_EQ(seen(), "3");
  EXPECT_EQ(workspace.levels(), 0);
}

TEST_F(Level, takes_back_a_dropped_and_a_created_table) {
  workspace.BeginTrans();
  database.Execute("DROP TABLE Commuter");
  database.Execute("CREATE TABLE sosec (Zone integer)");
  workspace.Rollback();
  EXPECT_EQ(seen(), "11.27");
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("sosec"); }), 3078);
}

TEST_F(OldLevel, is_ended_by_a_commit_that_does_nothing) {
  workspace.BeginTrans();
  write(1);
  workspace.handler_ended();
  write(2);
  workspace.CommitTrans();
  EXPECT_EQ(workspace.levels(), 0);
  EXPECT_EQ(durable(), "1.0");
  workspace.handler_ended();
  EXPECT_EQ(durable(), "2.0");
}

TEST_F(OldLevel, takes_back_the_writes_of_the_present_handler_only) {
  workspace.BeginTrans();
  write(1);
  workspace.handler_ended();
  write(2);
  workspace.Rollback();
  EXPECT_EQ(workspace.levels(), 0);
  EXPECT_EQ(seen(), "1");
}

TEST_F(OldLevel, lies_beneath_the_levels_of_the_present_handler) {
  workspace.BeginTrans();
  workspace.handler_ended();
  write(1);
  workspace.BeginTrans();
  write(2);
  workspace.Rollback();
  EXPECT_EQ(seen(), "1");
  workspace.Rollback();
  EXPECT_EQ(seen(), "11.27");
}

TEST_F(OldLevel, piles_up_without_limit_and_costs_nothing) {
  for (int i = 0; i < 1000; ++i) {
    workspace.BeginTrans();
    workspace.handler_ended();
  }
  write(1);
  workspace.handler_ended();
  EXPECT_EQ(workspace.levels(), 1000);
  EXPECT_EQ(durable(), "1.0");
}

}  // namespace
}  // namespace runtime::engine
