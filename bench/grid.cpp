// bench_grid DIRECTORY ZONES...: shows the grid on a table of all pairs of zones, jumps about in it, and
// tells how much memory that took above the idle program. DIRECTORY is an installation that may be changed.
#include <sqlite3.h>

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "event_table.h"
#include "figures.h"
#include "runtime/engine/database.h"

namespace {

namespace rf = runtime::forms;

constexpr int jumps = 200;

struct BenchControls : rf::ControlSet {
  rf::One<rf::DataControl> Data1{*this, "Data1"};
  rf::One<rf::DBGrid> DBGrid1{*this, "DBGrid1"};
};

constexpr std::array rows{
    rf::ControlDesign{"Data1", rf::no_index, rf::Kind::Data, nullptr, "", {0, 0, 300, 300}, rf::hidden},
    rf::ControlDesign{"DBGrid1",
                      rf::no_index,
                      rf::Kind::DBGrid,
                      nullptr,
                      "",
                      {0, 0, 11400, 6000},
                      rf::shown,
                      rf::enabled,
                      {"Data1"},
                      "Pairs"},
};
constexpr rf::FormDesign bench_design{"Bench", "Bench", 11400, 6120, true, true, rows};

class BenchForm : public rf::Form<BenchControls> {
 public:
  explicit BenchForm(rf::Desktop& desktop) : Form(desktop, bench_design) {}
};

/// Kibibytes: "VmRSS" what is in memory, "VmHWM" the most there was.
long memory(const std::string& what) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(what)) return std::stol(line.substr(what.size() + 1));
  }
  return -1;
}

/// Made by another connection with a small cache, so that the memory of the making does not count.
void make_pairs(const std::string& directory, int zones) {
  sqlite3* file = nullptr;
  if (sqlite3_open((directory + "/zelmor.mdb").c_str(), &file) != SQLITE_OK) std::abort();
  const std::string numbers = "with recursive z(i) as (select 1 union all select i + 1 from z where i < " +
                              std::to_string(zones) + ") ";
  const std::string statements =
      "pragma cache_size = -2000; pragma secure_delete = off; drop table if exists pairs;"
      "create table pairs (Origin integer, Destination integer, distance real, Base_Travel_Times real,"
      " Improvement_Travel_Times real) strict;" +
      numbers + "insert into pairs select o.i, d.i, o.i + d.i, null, null from z o cross join z d";
  if (sqlite3_exec(file, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
  sqlite3_close(file);
}

void print(const std::string& work, double figure, const char* unit, const char* goal) {
  std::printf("%-44s %9.2f %s  %s\n", work.c_str(), figure, unit, goal);
  std::fflush(stdout);
}

void measure(forms::Program& program, const std::string& directory, int zones) {
  make_pairs(directory, zones);
  const long idle = memory("VmRSS");
  BenchForm form(program.desktop);
  form.Show();
  QWidget& view = *form->DBGrid1.widget();
  auto database = program.desktop.workspace.OpenDatabase("zelmor.mdb");
  // Rows that the program loads are counted by the load.
  const std::int64_t count = database.OpenRecordset("pairs").RecordCount();
  const double first = bench::timed([&] {
    form->Data1.set_recordset(database.OpenRecordset("pairs"));
    view.repaint();
  });
  std::mt19937_64 random(1);
  std::vector<double> times;
  for (int jump = 0; jump < jumps; ++jump) {
    const auto row = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count));
    times.push_back(bench::timed([&] {
      form->DBGrid1.set_current_row(row);
      view.repaint();
    }));
  }
  const std::string of = ", " + std::to_string(zones) + " zones";
  print("first rows of the grid" + of, first, "ms ", "goal: 50 or less");
  std::sort(times.begin(), times.end());
  print("a jump, the middle one of 200" + of, times[times.size() / 2], "ms ", "goal: 20 or less");
  print("longest of 200 jumps" + of, times.back(), "ms ", "goal: 20 or less");
  print("memory above the idle program" + of, static_cast<double>(memory("VmHWM") - idle) / 1024, "MiB",
        "goal: under 64 at 9999 zones");
  form.unload_without_storing();
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  const std::string directory = argv[1];
  forms::Program program(directory);
  quelar::tie_events(program);
  quelar::start(program);
  if (!QTest::qWaitForWindowExposed(&program.mdiform1.window())) return 1;
  for (int i = 2; i < argc; ++i) measure(program, directory, std::atoi(argv[i]));
  return 0;
}
