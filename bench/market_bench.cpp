#include "market_bench.h"

#include <sys/resource.h>

#include <QTest>
#include <cstdlib>
#include <fstream>

#include "figures.h"
#include "runtime/engine/database.h"

namespace bench {

namespace {

double empty_window() {
  return timed([] {
    QWidget window;
    window.resize(700, 500);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) std::abort();
  });
}

/// Each pick has a file of its own, so that one cp can copy them all.
std::string picked_file(const std::string& code) {
  return "picked" + code + ".txt";
}

long peak_mib() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

}  // namespace

MarketBench::MarketBench(const std::string& directory, MarketRow row)
    : directory_(directory), row_(std::move(row)), program_(directory), analyst_(program_.mdiform1.window()) {
  quelar::tie_events(program_);
  quelar::start(program_);
  if (!QTest::qWaitForWindowExposed(&program_.mdiform1.window())) std::abort();
}

bool MarketBench::failed() const {
  for (const std::string& complaint : analyst_.complaints()) std::fprintf(stderr, "%s\n", complaint.c_str());
  return !analyst_.complaints().empty();
}

void MarketBench::open_page() {
  const auto opening = [this] {
    save_time_and_distance();
    const double time = timed([this] {
      analyst_.choose(row_.menu_item);
      program_.mdiform1.window().repaint();
    });
    leave_page();
    return time;
  };
  print_row(std::string("open the ") + row_.name + " page", "open an empty window",
            in_turns(9, opening, empty_window));
}

void MarketBench::drive(int zones) {
  write_study(zones);
  const auto ours = [this] {
    save_time_and_distance();
    analyst_.choose(row_.menu_item);
    pick_by_hand();
    const double time = press_until_question();
    leave_page();
    return time;
  };
  const auto peers = [this] { return timed([this] { copy_with_cp(); }); };
  const auto figures = in_turns(zones > 1000 ? 5 : 9, ours, peers);
  const double over = figures.ours - 1.3 * figures.peers;
  char note[100];
  std::snprintf(note, sizeof note, "over 1.3 cp: %.1f ms (goal 50), peak %ld MiB", over, peak_mib());
  print_row(std::string(row_.name) + " press to question, " + std::to_string(zones) + " zones",
            "cp of the same files", figures, note);
}

void MarketBench::save_time_and_distance() {
  analyst_.choose("spec_timdist");
  analyst_.will_press("Yes");
  analyst_.click("Command8");
}

/// The answer No has closed the commercial page already.
void MarketBench::leave_page() {
  if (analyst_.sees("Command3")) analyst_.click("Command3");
}

/// The bytes of the files need not mean anything here.
void MarketBench::write_study(int zones) {
  for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) write_pairs(name, zones);
  for (const std::string& code : row_.picks) {
    if (row_.picks_have_all_pairs) {
      write_pairs(picked_file(code), zones);
    } else {
      std::filesystem::copy_file(directory_ / "sample/commute_Sales.txt",
                                 directory_ / "sample" / picked_file(code),
                                 std::filesystem::copy_options::overwrite_existing);
    }
  }
  auto database = program_.desktop.workspace.OpenDatabase((directory_ / "zelmor.mdb").string());
  database.Execute("UPDATE zones set numzones = " + std::to_string(zones) + " where numzones > 0");
  program_.desktop.workspace.handler_ended();
}

void MarketBench::write_pairs(const std::string& file, int zones) const {
  std::ofstream stream(directory_ / "sample" / file, std::ios::binary);
  for (int origin = 1; origin <= zones; ++origin) {
    for (int destination = 1; destination <= zones; ++destination) {
      stream << origin << ' ' << destination << " 12.5\r\n";
    }
  }
}

/// The picks as the dialogs would leave them.
void MarketBench::pick_by_hand() {
  auto& form3 = program_.form3;
  for (const std::string& code : row_.picks) {
    ++form3.PickCount;
    form3.PickCode(form3.PickCount) = code;
    form3.PickPath(form3.PickCount) = (directory_ / "sample" / picked_file(code)).string();
  }
  form3.OutputFile = (directory_ / "results/bench.txt").string();
  form3->Command2.set_enabled(true);
}

double MarketBench::press_until_question() {
  double time = 0;
  const auto start = std::chrono::steady_clock::now();
  analyst_.when_box_shows = [&](const analyst::Box&) {
    time = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  };
  analyst_.will_press("No");
  analyst_.click(row_.run_button);
  analyst_.when_box_shows = nullptr;
  return time;
}

void MarketBench::copy_with_cp() const {
  std::string command =
      "cd '" + directory_.string() + "/sample' && cp distance.txt base_time.txt imp_time.txt";
  for (const std::string& code : row_.picks) command += " " + picked_file(code);
  command += std::string(" ../") + row_.peers_directory + "/";
  if (std::system(command.c_str()) != 0) std::abort();
}

int bench_market(const char* directory, const MarketRow& row) {
  MarketBench bench(directory, row);
  bench.open_page();
  for (const int zones : {24, 400, 3000}) bench.drive(zones);
  return bench.failed() ? 1 : 0;
}

}  // namespace bench
