// A full disk and a killed process in the middle of bulk work.
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "runtime/engine/project_file.h"
#include "small_disk.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing_aids::SmallDisk;

// More pages than the store keeps in memory, so that the file itself is changed midway.
class Interruption : public testing::ProjectFile {
 protected:
  static constexpr std::int64_t pairs = 800000;

  Interruption() {
    ask("CREATE TABLE pairs (Origin INTEGER, Destination INTEGER, trips REAL) STRICT;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT " +
        std::to_string(pairs) +
        ")"
        " INSERT INTO pairs (Origin, Destination) SELECT i / 500, i % 500 FROM n");
  }

  static void fill(Database& database) {
    const std::array keys{KeyRange{"origin", 0, 1600}, KeyRange{"destination", 0, 500}};
    database.Fill("pairs", "trips", "12.25", keys);
  }
  static void renumber(Database& database) {
    auto rows = database.OpenRecordset("pairs");
    rows.set_Sort("destination desc");
    rows.OpenRecordset().set_each("origin", pairs, [](std::int64_t position) { return -position; });
  }
  std::string state() const {
    return ask(
        "SELECT (SELECT integrity_check FROM pragma_integrity_check) || ' ' || count(trips) || ' ' ||"
        " sum(origin) FROM pairs");
  }
  // In the second half of the step that has so much to tell of.
  void kill_in(void (*work)(Database&), std::int64_t whole) const {
    const auto child = fork();
    if (child == 0) {
      Workspace workspace;
      auto database = workspace.OpenDatabase(file.string());
      workspace.progress = [whole](std::int64_t done, std::int64_t total) {
        if (total == whole && done > whole / 2) std::raise(SIGKILL);
      };
      work(database);
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
  }
};

constexpr const char* as_it_was = "ok 0 639600000";

TEST_F(Interruption, of_a_fill_by_a_full_disk_changes_nothing) {
  Workspace workspace;
  auto database = workspace.OpenDatabase(file.string());
  {
    const SmallDisk disk(std::filesystem::file_size(file) + 1000);
    EXPECT_EQ(fault_of([&] { fill(database); }), 3026);
    workspace.handler_ended();
  }
  EXPECT_EQ(state(), as_it_was);
  EXPECT_EQ(fault_of([&] { fill(database); }), 0);
  workspace.handler_ended();
  EXPECT_EQ(state(), "ok 800000 639600000");
}

TEST_F(Interruption, of_a_sort_by_a_full_disk_gives_no_order_at_all) {
  Workspace workspace;
  auto rows = workspace.OpenDatabase(file.string()).OpenRecordset("pairs");
  rows.set_Filter("origin >= 0");
  const SmallDisk disk(100001);
  EXPECT_EQ(fault_of([&] { rows.OpenRecordset(); }), 3026);
}

TEST_F(Interruption, of_a_fill_by_a_kill_leaves_the_rows_as_they_were) {
  kill_in(fill, pairs);
  EXPECT_EQ(state(), as_it_was);
}

TEST_F(Interruption, of_a_renumbering_by_a_kill_leaves_the_rows_as_they_were) {
  kill_in(renumber, 2 * pairs);
  EXPECT_EQ(state(), as_it_was);
}

}  // namespace
}  // namespace runtime::engine
