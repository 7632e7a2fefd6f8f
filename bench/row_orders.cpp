// Row orders and bulk updates of the table of zone pairs, against the sqlite3 shell on the same kind of file.
// row_orders DIRECTORY [full]
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "figures.h"
#include "runtime/engine/workspace.h"

namespace {

namespace fs = std::filesystem;
using runtime::engine::Database;
using runtime::engine::KeyRange;
using runtime::engine::Recordset;
using runtime::engine::Workspace;

void shell(const fs::path& file, const std::string& sql) {
  const auto command = "sqlite3 '" + file.string() + "' \"PRAGMA secure_delete=OFF; " + sql + "\" >/dev/null";
  if (std::system(command.c_str()) != 0) std::exit(1);
}

// In a process of its own, so that its peak of memory is its own: milliseconds, and MiB above the start.
struct Figures {
  double milliseconds = 0;
  double mebibytes = 0;
};

template <typename Work>
Figures measured(const fs::path& file, const Work& work) {
  Workspace workspace;
  auto database = workspace.OpenDatabase(file.string());
  rusage before{};
  getrusage(RUSAGE_SELF, &before);
  Figures figures;
  figures.milliseconds = work(workspace, database);
  rusage after{};
  getrusage(RUSAGE_SELF, &after);
  figures.mebibytes = static_cast<double>(after.ru_maxrss - before.ru_maxrss) / 1024;
  return figures;
}

template <typename Work>
Figures apart(const fs::path& file, const Work& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) std::exit(1);
  const auto child = fork();
  if (child == 0) {
    const auto figures = measured(file, work);
    _exit(write(ends[1], &figures, sizeof figures) == sizeof figures ? 0 : 1);
  }
  close(ends[1]);
  Figures figures;
  const bool told = read(ends[0], &figures, sizeof figures) == sizeof figures;
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!told || status != 0) std::exit(1);
  return figures;
}

void print(const std::string& work, int zones, const std::string& peer, const Figures& ours, double peers,
           const std::string& goal) {
  const auto mebibytes = static_cast<long>(ours.mebibytes);
  bench::print_row(work + ", " + std::to_string(zones) + " zones", peer, {ours.milliseconds, peers},
                   std::to_string(mebibytes) + " MiB, goal: " + goal);
}

class Study {
 public:
  Study(const fs::path& directory, int zones)
      : zones_(zones),
        pairs_(static_cast<std::int64_t>(zones) * zones),
        ours_(directory / "ours.mdb"),
        peers_(directory / "peers.mdb") {
    for (const auto& file : {ours_, peers_}) fs::remove(file);
    shell(ours_,
          "CREATE TABLE sosec (Origin INTEGER, Destination INTEGER, Mining REAL, Food REAL) STRICT;"
          "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT " +
              std::to_string(pairs_) + ") INSERT INTO sosec SELECT i / " + number() + " + 1, i % " +
              number() + " + 1, (i * 7919) % 1000003, NULL FROM n");
    fs::copy_file(ours_, peers_);
  }
  ~Study() {
    for (const auto& file : {ours_, peers_}) fs::remove(file);
  }
  Study(const Study&) = delete;
  Study& operator=(const Study&) = delete;

  void order(const std::string& work, const std::string& filter, const std::string& sort,
             const std::string& sql) {
    const auto ours = apart(ours_, [&](Workspace&, Database& database) {
      return bench::timed([&] { opened(database, filter, sort); });
    });
    print(work, zones_, "SELECT rowid " + sql, ours, asked("SELECT rowid FROM sosec " + sql), "1.20 or less");
  }

  void fill(const std::string& work) {
    const auto ours = apart(ours_, [&](Workspace& workspace, Database& database) {
      const std::array keys{KeyRange{"origin", 1, zones_}, KeyRange{"destination", 1, zones_}};
      return bench::timed([&] {
        database.Fill("sosec", "Food", "12.5", keys);
        workspace.handler_ended();
      });
    });
    const auto range = " BETWEEN 1 AND " + number();
    const auto update = "UPDATE sosec SET Food = 12.5 WHERE Origin" + range + " AND Destination" + range;
    print(work, zones_, "UPDATE of the same range", ours, asked(update), "1.00 or less");
  }

  void renumber(const std::string& work, const std::string& sort, const std::string& goal) {
    const auto ours = apart(ours_, [&](Workspace& workspace, Database& database) {
      auto rows = opened(database, "", sort);
      return bench::timed([&] {
        rows.set_each("origin", pairs_, [this](std::int64_t position) { return position / zones_ + 1; });
        workspace.handler_ended();
      });
    });
    print(work, zones_, "UPDATE of one column", ours, asked("UPDATE sosec SET Origin = Origin + 1"), goal);
  }

  // The table as the grid finds it: just filled by an insertion, which is taken back at the end.
  void rows(const std::string& work, double goal, const std::function<double(Database&)>& slowest) {
    const auto ours = apart(ours_, [&](Workspace&, Database& database) {
      database.Execute(
          "CREATE TABLE fresh (Origin integer, Destination integer, Mining double, Food double)");
      database.Execute("INSERT INTO fresh SELECT * FROM sosec");
      return slowest(database);
    });
    print(work, zones_, "the goal", ours, goal, "1.00 or less");
  }

  static double opening(Database& database) {
    return bench::timed([&] { database.OpenRecordset("fresh").GetRows(0, 60); });
  }

  double jumps(Database& database) const {
    const auto table = database.OpenRecordset("fresh");
    const auto sorted = opened(database, "", "mining");
    double slowest = 0;
    for (std::int64_t i = 0; i < 50; ++i) {
      const auto place = (i * 7368787) % pairs_;
      slowest = std::max(slowest, bench::timed([&] { table.GetRows(place, 60); }));
      slowest = std::max(slowest, bench::timed([&] { sorted.GetRows(place, 60); }));
    }
    return slowest;
  }

  void drop() {
    const auto ours = apart(ours_, [&](Workspace& workspace, Database& database) {
      return bench::timed([&] {
        database.Execute("DROP TABLE sosec");
        workspace.handler_ended();
      });
    });
    print("drop of the table", zones_, "DROP TABLE", ours, asked("DROP TABLE sosec"), "under 2 s");
  }

 private:
  std::string number() const { return std::to_string(zones_); }

  static Recordset opened(Database& database, const std::string& filter, const std::string& sort) {
    auto rows = database.OpenRecordset("sosec");
    rows.set_Filter(filter);
    rows.set_Sort(sort);
    return rows.OpenRecordset();
  }

  double asked(const std::string& sql) {
    return bench::timed([&] { shell(peers_, sql); });
  }

  int zones_;
  std::int64_t pairs_;
  fs::path ours_;
  fs::path peers_;
};

void measure(const fs::path& directory, int zones) {
  Study study(directory, zones);
  study.rows("opening and the first 60 rows", 50, Study::opening);
  study.rows("slowest of 100 jumps to 60 rows", 20,
             [&](Database& database) { return study.jumps(database); });
  study.order("sort by one column", "", "mining", "ORDER BY mining");
  study.order("filter", "mining > 500000", "", "WHERE mining > 500000");
  study.fill("first fill of one column");
  study.fill("the same again");
  study.renumber("renumbering in table order", "", "0.30 or less");
  study.renumber("renumbering in sorted order", "mining", "2.00 or less");
  study.drop();
}

}  // namespace

int main(int argc, char* argv[]) {
  const fs::path directory = argc > 1 ? argv[1] : ".";
  const bool full = argc > 2 && std::string(argv[2]) == "full";
  for (const int zones : {500, 1000, 2000, 4000}) measure(directory, zones);
  if (full) measure(directory, 9999);
}
