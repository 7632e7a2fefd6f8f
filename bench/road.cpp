// bench_road DIRECTORY ZONES: enters the times and distances of a study through the real windows, from the
// menu item to the three written files, with one fill of all pairs. DIRECTORY is an installation that may be
// changed.
#include <sys/resource.h>

#include <QApplication>
#include <QTest>
#include <cstdlib>
#include <filesystem>

#include "analyst/analyst.h"
#include "event_table.h"
#include "figures.h"
#include "inputs/frmdatagrid.h"
#include "runtime/engine/database.h"

namespace {

class Road {
 public:
  Road(const std::string& directory, const std::string& zones)
      : directory_(directory), zones_(zones), program_(directory), analyst_(program_.mdiform1.window()) {
    quelar::tie_events(program_);
    quelar::start(program_);
    if (!QTest::qWaitForWindowExposed(&program_.mdiform1.window())) std::abort();
    auto database = program_.desktop.workspace.OpenDatabase((directory_ / "zelmor.mdb").string());
    database.Execute("UPDATE zones set numzones = " + zones);
    program_.desktop.workspace.handler_ended();
    std::filesystem::create_directories(directory_ / "road");
  }

  bool go() {
    double total = 0;
    total += step("skeleton, load and first rows", [this] {
      analyst_.choose("Times");
      program_.mdiform1.window().repaint();
    });
    total += step("fill of one column, all pairs", [this] {
      inputs::frmdatagrid::grdDataGrid_HeadClick(program_, 2);
      for (const char* box : {"txt_zonedit(0)", "txt_zonedit(2)"}) analyst_.type(box, "1");
      for (const char* box : {"txt_zonedit(1)", "txt_zonedit(3)"}) analyst_.type(box, zones_);
      analyst_.type("txt_zonedit(4)", "12.5");
      analyst_.click("cmd_zonedit(0)");
    });
    total += step("three files", [this] {
      analyst_.click("cmdClose");
      program_.frmdirget->dirList.set_path((directory_ / "road").string());
      analyst_.click("cmdExit");
    });
    std::printf("%-44s %9.2f ms\n", "the whole road", total);
    for (const std::string& complaint : analyst_.complaints())
      std::fprintf(stderr, "%s\n", complaint.c_str());
    for (const std::string& text : analyst_.texts()) std::fprintf(stderr, "box: %s\n", text.c_str());
    return analyst_.complaints().empty();
  }

 private:
  double step(const char* work, const std::function<void()>& action) const {
    const double time = bench::timed(action);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-44s %9.2f ms   peak %ld MiB\n", (zones_ + " zones: " + work).c_str(), time,
                usage.ru_maxrss / 1024);
    std::fflush(stdout);
    return time;
  }

  std::filesystem::path directory_;
  std::string zones_;
  forms::Program program_;
  analyst::Analyst analyst_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  return Road(argv[1], argv[2]).go() ? 0 : 1;
}
