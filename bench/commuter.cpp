// bench_commuter DIRECTORY: opens the commuter page, and drives the run from the press of the button to its
// question at growing numbers of zones, against cp of the same files. DIRECTORY is an installation that may
// be changed.
#include <sys/resource.h>

#include <QApplication>
#include <QTest>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "analyst/analyst.h"
#include "event_table.h"
#include "figures.h"
#include "runtime/engine/database.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* occupations[] = {"7", "0", "2"};

class CommuterBench {
 public:
  explicit CommuterBench(const std::string& directory)
      : directory_(directory), program_(directory), analyst_(program_.mdiform1.window()) {
    quelar::tie_events(program_);
    quelar::start(program_);
    if (!QTest::qWaitForWindowExposed(&program_.mdiform1.window())) std::abort();
  }

  /// What went otherwise than planned: then the figures mean nothing.
  bool failed() const {
    for (const std::string& complaint : analyst_.complaints())
      std::fprintf(stderr, "%s\n", complaint.c_str());
    return !analyst_.complaints().empty();
  }

  void open_page() {
    const auto opening = [this] {
      save_time_and_distance();
      const double time = bench::timed([this] {
        analyst_.choose("spec_comm");
        program_.mdiform1.window().repaint();
      });
      analyst_.click("Command3");
      return time;
    };
    const auto empty = [] {
      return bench::timed([] {
        QWidget window;
        window.resize(700, 500);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) std::abort();
      });
    };
    bench::print_row("open the commuter page", "open an empty window", bench::in_turns(9, opening, empty));
  }

  void drive(int zones) {
    write_study(zones);
    save_time_and_distance();
    analyst_.choose("spec_comm");
    pick_by_hand();
    const auto ours = [this] { return press_until_question(); };
    const auto peers = [this] { return bench::timed([this] { copy_with_cp(); }); };
    const auto figures = bench::in_turns(zones > 1000 ? 5 : 9, ours, peers);
    const double over = figures.ours - 1.3 * figures.peers;
    char note[100];
    std::snprintf(note, sizeof note, "over 1.3 cp: %.1f ms (goal 50), peak %ld MiB", over, peak_mib());
    bench::print_row("press to question, " + std::to_string(zones) + " zones", "cp of the same files",
                     figures, note);
    analyst_.click("Command3");
  }

 private:
  void save_time_and_distance() {
    analyst_.choose("spec_timdist");
    analyst_.will_press("Yes");
    analyst_.click("Command8");
  }

  /// Three files of all zone pairs, and an occupation file; their bytes need not mean anything here.
  void write_study(int zones) {
    for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) {
      std::ofstream file(directory_ / "sample" / name, std::ios::binary);
      for (int origin = 1; origin <= zones; ++origin) {
        for (int destination = 1; destination <= zones; ++destination) {
          file << origin << ' ' << destination << " 12.5\r\n";
        }
      }
    }
    auto database = program_.desktop.workspace.OpenDatabase((directory_ / "zelmor.mdb").string());
    database.Execute("UPDATE zones set numzones = " + std::to_string(zones) + " where numzones > 0");
    program_.desktop.workspace.handler_ended();
  }

  /// The picks as the dialogs would leave them.
  void pick_by_hand() {
    auto& form3 = program_.form3;
    for (const char* code : occupations) {
      ++form3.PickCount;
      form3.PickCode(form3.PickCount) = code;
      form3.PickPath(form3.PickCount) = (directory_ / "sample/commute_Sales.txt").string();
    }
    form3.OutputFile = (directory_ / "results/bench.txt").string();
  }

  double press_until_question() {
    double time = 0;
    const auto start = std::chrono::steady_clock::now();
    analyst_.when_box_shows = [&](const analyst::Box&) {
      time = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    analyst_.will_press("No");
    analyst_.click("Command11");
    analyst_.when_box_shows = nullptr;
    return time;
  }

  void copy_with_cp() const {
    const std::string command =
        "cd '" + directory_.string() +
        "/sample' && cp distance.txt base_time.txt imp_time.txt commute_Sales.txt ../truck/";
    if (std::system(command.c_str()) != 0) std::abort();
  }

  static long peak_mib() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
  }

  fs::path directory_;
  forms::Program program_;
  analyst::Analyst analyst_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  CommuterBench bench(argv[1]);
  bench.open_page();
  for (const int zones : {24, 400, 3000}) bench.drive(zones);
  return bench.failed() ? 1 : 0;
}
