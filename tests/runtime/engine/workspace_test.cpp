#include "runtime/engine/workspace.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

namespace fs = std::filesystem;
using testing::fault_of;

class OpenDatabase : public testing::ProjectFile {
 protected:
  int fault_of_opening(const fs::path& name) {
    return fault_of([&] { workspace.OpenDatabase(name.string()); });
  }

  void overwrite(const fs::path& name, std::streamoff place, const std::string& bytes) {
    std::fstream stream(name, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(place);
    stream << bytes;
  }

  Workspace workspace;
};

using OpenFile = OpenDatabase;

TEST(UnsetDatabase, faults_at_every_use) {
  Database database;
  EXPECT_FALSE(database.is_set());
  EXPECT_EQ(fault_of([&] { database.Execute("DELETE * from Commuter"); }), 91);
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("Commuter"); }), 91);
  EXPECT_EQ(fault_of([&] { database.Close(); }), 91);
}

TEST_F(OpenDatabase, never_makes_a_file) {
  EXPECT_EQ(fault_of_opening(directory / "other.mdb"), 3024);
  EXPECT_FALSE(fs::exists(directory / "other.mdb"));
}

TEST_F(OpenDatabase, tells_where_it_has_looked_for_a_bare_name) {
  const auto before = fs::current_path();
  fs::create_directory(directory / "truck");
  fs::current_path(directory / "truck");
  const std::string place = (fs::current_path() / "zelmor.mdb").string();
  try {
    workspace.OpenDatabase("zelmor.mdb");
    ADD_FAILURE();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.what(), "The project database was not found: " + place);
  }
  fs::current_path(before);
}

TEST_F(OpenDatabase, finds_a_name_as_it_was_told_to) {
  workspace.resolve_name = [this](std::string_view name) { return directory / name; };
  EXPECT_TRUE(workspace.OpenDatabase("zelmor.mdb").is_set());
}

TEST_F(OpenDatabase, finds_a_bare_name_in_the_current_directory) {
  const auto before = fs::current_path();
  fs::current_path(directory);
  EXPECT_TRUE(workspace.OpenDatabase("zelmor.mdb").is_set());
  fs::current_path(before);
}

TEST_F(OpenDatabase, takes_a_file_that_another_tool_has_set_to_a_log_back_to_one_file) {
  ASSERT_EQ(ask("PRAGMA journal_mode=WAL"), "wal");
  auto database = workspace.OpenDatabase(file.string());
  database.Execute("UPDATE Commuter set sigma = 4");
  workspace.handler_ended();
  EXPECT_EQ(ask("PRAGMA journal_mode"), "delete");
  EXPECT_EQ(ask("SELECT sum(sigma) FROM Commuter"), "12.0");
}

TEST_F(OpenDatabase, tells_a_log_that_another_program_holds_as_a_file_in_use) {
  ASSERT_EQ(ask("PRAGMA journal_mode=WAL"), "wal");
  const auto reader = testing::hold_for_reading(file);
  workspace.lock_wait = std::chrono::milliseconds(1);
  EXPECT_EQ(fault_of_opening(file), 3260);
}

TEST_F(OpenDatabase, refuses_an_empty_file) {
  std::ofstream(directory / "empty.mdb").close();
  EXPECT_EQ(fault_of_opening(directory / "empty.mdb"), 3343);
}

TEST_F(OpenDatabase, refuses_a_file_of_another_kind_with_its_name) {
  std::ofstream(directory / "foreign.mdb") << std::string(4096, 'x');
  try {
    workspace.OpenDatabase((directory / "foreign.mdb").string());
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, 3343);
    EXPECT_EQ(fault.what(), "This file is not a project database: " + (directory / "foreign.mdb").string());
  }
}

TEST_F(OpenDatabase, refuses_a_file_without_a_required_table) {
  workspace.required_tables = {"COMMUTER", "zones"};
  EXPECT_EQ(fault_of_opening(file), 3343);
  ask("CREATE TABLE zones (numzones INTEGER)");
  EXPECT_EQ(fault_of_opening(file), 0);
}

TEST_F(OpenDatabase, refuses_a_damaged_file) {
  overwrite(file, 100, std::string(300, '\xff'));
  EXPECT_EQ(fault_of_opening(file), 3049);
}

TEST_F(OpenDatabase, refuses_a_directory) {
  EXPECT_EQ(fault_of_opening(directory), 75);
}

TEST_F(OpenDatabase, refuses_a_second_file_beside_the_open_one) {
  const auto database = workspace.OpenDatabase(file.string());
  fs::copy_file(file, directory / "other.mdb");
  EXPECT_EQ(fault_of_opening(directory / "other.mdb"), 75);
}

TEST_F(OpenDatabase, opens_another_file_when_the_first_is_closed) {
  fs::copy_file(file, directory / "other.mdb");
  workspace.OpenDatabase(file.string());
  EXPECT_EQ(fault_of_opening(directory / "other.mdb"), 0);
}

TEST_F(OpenDatabase, tells_that_another_program_holds_the_file) {
  Workspace other;
  auto holder = other.OpenDatabase(file.string());
  holder.Execute("UPDATE Commuter set sigma = 1");
  workspace.lock_wait = std::chrono::milliseconds(1);
  auto database = workspace.OpenDatabase(file.string());
  EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set sigma = 2"); }), 3260);
  other.handler_ended();
  EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set sigma = 2"); }), 0);
}

TEST_F(OpenFile, is_held_with_its_journal_until_the_last_handle_goes) {
  auto first = workspace.OpenDatabase(file.string());
  auto second = first;
  EXPECT_TRUE(workspace.holds(file));
  EXPECT_TRUE(workspace.holds(directory / "." / "zelmor.mdb-journal"));
  EXPECT_FALSE(workspace.holds(directory / "trips.csv"));
  first.Close();
  EXPECT_TRUE(workspace.holds(file));
  second.Close();
  EXPECT_FALSE(workspace.holds(file));
}

TEST_F(OpenFile, by_its_bare_name_stays_where_it_is_when_the_directory_changes) {
  workspace.resolve_name = [](std::string_view name) { return fs::path(name); };
  const auto before = fs::current_path();
  fs::current_path(directory);
  auto database = workspace.OpenDatabase("zelmor.mdb");
  fs::create_directory("truck");
  fs::copy_file("zelmor.mdb", "truck/zelmor.mdb");
  fs::current_path("truck");
  EXPECT_TRUE(workspace.holds(file));
  EXPECT_TRUE(workspace.holds("../zelmor.mdb-journal"));
  EXPECT_FALSE(workspace.holds("zelmor.mdb"));
  fs::current_path(before);
}

TEST_F(OpenFile, is_one_whether_its_name_is_bare_or_whole) {
  const auto before = fs::current_path();
  fs::create_directory(directory / "truck");
  fs::create_directory_symlink(directory, directory / "linked");
  fs::current_path(directory);
  auto bare = workspace.OpenDatabase("zelmor.mdb");
  bare.Execute("UPDATE Commuter set sigma = 7");  // not durable yet, so that nobody else sees it
  fs::current_path("truck");
  for (const fs::path& name : {file, fs::path("../zelmor.mdb"), directory / "truck/../zelmor.mdb",
                               directory / "linked/zelmor.mdb"}) {
    auto whole = workspace.OpenDatabase(name.string());
    EXPECT_EQ(std::get<double>(whole.OpenRecordset("Commuter").field("sigma")), 7) << name;
  }
  fs::current_path(before);
}

TEST_F(OpenFile, waits_for_another_program_once_in_a_handler) {
  Workspace other;
  auto holder = other.OpenDatabase(file.string());
  holder.Execute("UPDATE Commuter set sigma = 1");
  std::string told;
  workspace.waiting = [&told](bool is_waiting) { told += is_waiting ? "waits " : "is over "; };
  workspace.lock_wait = std::chrono::milliseconds(40);
  auto database = workspace.OpenDatabase(file.string());
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set sigma = 2"); }), 3260);
  EXPECT_EQ(told, "waits is over ");
  workspace.handler_ended();
  EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set sigma = 2"); }), 3260);
  EXPECT_EQ(told, "waits is over waits is over ");
  other.handler_ended();
}

// The other program lets go while it is waited for.
TEST_F(OpenFile, goes_on_when_another_program_lets_go) {
  Workspace other;
  auto holder = other.OpenDatabase(file.string());
  holder.Execute("UPDATE Commuter set sigma = 1");
  workspace.waiting = [&other](bool is_waiting) {
    if (is_waiting) other.handler_ended();
  };
  auto database = workspace.OpenDatabase(file.string());
  EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set wage = 2"); }), 0);
  workspace.handler_ended();
  EXPECT_EQ(ask("SELECT sum(sigma + wage) FROM Commuter"), "9.0");
}

TEST_F(OpenFile, is_held_while_writes_wait) {
  workspace.OpenDatabase(file.string()).Execute("UPDATE Commuter set sigma = 1");
  EXPECT_TRUE(workspace.holds(file));
  workspace.handler_ended();
  EXPECT_FALSE(workspace.holds(file));
  EXPECT_EQ(ask("SELECT sigma FROM Commuter"), "1.0");
}

TEST_F(OpenFile, outlives_its_workspace_as_long_as_a_handle_is_on_it) {
  Database database;
  {
    Workspace brief;
    database = brief.OpenDatabase(file.string());
  }
  EXPECT_EQ(database.OpenRecordset("Commuter").RecordCount(), 3);
}

TEST_F(OpenFile, that_was_replaced_is_told_at_the_first_write) {
  auto database = workspace.OpenDatabase(file.string());
  fs::rename(file, directory / "old.mdb");
  testing::ask(file, "CREATE TABLE Commuter (sigma REAL)");
  EXPECT_EQ(fault_of([&] { database.Execute("UPDATE Commuter set sigma = 1"); }), 1032);
}

TEST_F(OpenFile, is_readable_as_a_copy_of_the_one_file) {
  auto database = workspace.OpenDatabase(file.string());
  database.Execute("UPDATE Commuter set sigma = 4");
  workspace.handler_ended();
  const auto copy = directory / "copy.mdb";
  // In a process of its own: to open the file by any other way drops this process's locks on it.
  const pid_t child = fork();
  if (child == 0) {
    std::error_code error;
    fs::copy_file(file, copy, error);
    _exit(error ? 1 : 0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(testing::ask(copy, "SELECT sum(sigma) FROM Commuter"), "12.0");
}

class OpenFileDeathTest : public OpenDatabase {
 protected:
  /// Ends the process with 0 when the file can be read and the first write is refused as it should be.
  void read_then_write_as_an_ordinary_user() {
    if (geteuid() == 0 && seteuid(65534) != 0) _exit(1);  // modes are nothing to the superuser
    auto database = workspace.OpenDatabase(file.string());
    if (database.OpenRecordset("Commuter").RecordCount() != 3) _exit(2);
    const auto write = [&] {
      database.Execute("UPDATE Commuter set sigma = 1");
      workspace.handler_ended();
    };
    _exit(fault_of(write) == 3027 ? 0 : 3);
  }

  static constexpr auto all_write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
};

TEST_F(OpenFileDeathTest, that_is_read_only_is_told_at_the_first_write) {
  fs::permissions(file, all_write, fs::perm_options::remove);
  EXPECT_EXIT(read_then_write_as_an_ordinary_user(), ::testing::ExitedWithCode(0), "");
}

TEST_F(OpenFileDeathTest, in_a_read_only_directory_is_told_at_the_first_write) {
  fs::permissions(file, all_write, fs::perm_options::add);
  fs::permissions(directory, all_write, fs::perm_options::remove);
  EXPECT_EXIT(read_then_write_as_an_ordinary_user(), ::testing::ExitedWithCode(0), "");
  fs::permissions(directory, fs::perms::owner_all);
}

TEST_F(OpenFileDeathTest, keeps_what_was_durable_when_its_process_is_killed_between_writes) {
  const auto write_until_killed = [this] {
    auto database = workspace.OpenDatabase(file.string());
    database.Execute("UPDATE Commuter set sigma = 4");
    workspace.handler_ended();
    database.Execute("UPDATE Commuter set sigma = 5");
    // More than memory keeps back, so that the file itself is changed when the end comes.
    for (int i = 0; i < 16; ++i) database.Execute("insert into Commuter select * from Commuter");
    kill(getpid(), SIGKILL);
  };
  EXPECT_EXIT(write_until_killed(), ::testing::KilledBySignal(SIGKILL), "");
  EXPECT_TRUE(fs::exists(directory / "zelmor.mdb-journal"));
  EXPECT_EQ(workspace.OpenDatabase(file.string()).OpenRecordset("Commuter").RecordCount(), 3);
  EXPECT_EQ(ask("SELECT sum(sigma) FROM Commuter"), "12.0");
}

}  // namespace
}  // namespace runtime::engine
