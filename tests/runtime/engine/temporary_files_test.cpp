// Where the files lie that large work needs for a while.
#include <set>

#include "runtime/engine/project_file.h"

#ifdef __linux__

namespace runtime::engine {
namespace {

namespace fs = std::filesystem;

// More than is sorted in memory, and enough rows for news in the middle of them.
class TemporaryFiles : public testing::ProjectFile {
 protected:
  TemporaryFiles() {
    ask("CREATE TABLE many (number INTEGER, name TEXT) STRICT;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 1050000)"
        " INSERT INTO many SELECT i, printf('%012d', i * 7919 % 1050000) FROM n");
    fs::create_directory(directory / "truck");
    fs::current_path(directory);
  }
  ~TemporaryFiles() override { fs::current_path(before); }

  // This process's open files that no name leads to any more.
  static std::set<fs::path> nameless_files() {
    const std::string mark = " (deleted)";
    std::set<fs::path> files;
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
      std::error_code gone;
      const std::string file = fs::read_symlink(entry, gone).string();
      if (file.ends_with(mark)) files.insert(file.substr(0, file.size() - mark.size()));
    }
    return files;
  }

  const fs::path before = fs::current_path();
};

TEST_F(TemporaryFiles, of_a_sort_lie_beside_the_database_whatever_directory_is_current) {
  Workspace workspace;
  workspace.resolve_name = [](std::string_view name) { return fs::path(name); };
  auto rows = workspace.OpenDatabase("zelmor.mdb").OpenRecordset("many");
  fs::current_path(directory / "truck");
  const std::set<fs::path> inherited = nameless_files();  // from whoever has started the test
  std::set<fs::path> directories;
  std::set<std::string> kinds;
  workspace.progress = [&](std::int64_t, std::int64_t) {
    for (const fs::path& file : nameless_files()) {
      if (inherited.contains(file)) continue;
      directories.insert(file.parent_path());
      kinds.insert(file.filename().string().substr(0, 7));
    }
  };
  rows.set_Sort("name desc");
  EXPECT_EQ(rows.OpenRecordset().RecordCount(), 1050000);
  EXPECT_THAT(directories, ::testing::ElementsAre(fs::canonical(directory)));
  EXPECT_THAT(kinds, ::testing::ElementsAre(".scratc", "etilqs_"));
}

}  // namespace
}  // namespace runtime::engine

#endif
