// bench_text_tables DIRECTORY [ZONES...]: the road of the zone pairs through text files, each stretch against
// the database shell on the same disk. DIRECTORY is an installation that may be changed.
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "database/text_table.h"
#include "database/value_lines.h"
#include "figures.h"
#include "memory.h"
#include "runtime/engine/workspace.h"
#include "runtime/fault.h"

namespace {

namespace fs = std::filesystem;

void run(const std::string& command) {
  if (std::system(command.c_str()) != 0) {
    std::fprintf(stderr, "failed: %s\n", command.c_str());
    std::abort();
  }
}

void expect_same(const std::string& one, const std::string& other) {
  run("cmp " + one + " " + other);
}

/// Runs SQL on the database through the shell.
double shell_time(const std::string& commands) {
  std::ofstream("bench.sql") << commands;
  return bench::timed([] { run("sqlite3 -batch zelmor.mdb <bench.sql 2>/dev/null"); });
}

class TextTables {
 public:
  TextTables(std::string directory, int zones) : app_path_(std::move(directory)), zones_(zones) {
    files_.write_file("trips.csv", [this](std::ostream& out) { database::write_pair_skeleton(out, zones_); });
  }

  void skeleton() {
    const auto peers = [this] { return bench::timed([this] { write_same_bytes(); }); };
    const auto ours = [this] {
      return timed([this] {
        files_.write_file("trips.csv",
                          [this](std::ostream& out) { database::write_pair_skeleton(out, zones_); });
      });
    };
    print("skeleton", "the same bytes from one buffer", ours, peers, "goal 2.00, 16 MiB");
  }

  void load() {
    fs::copy_file("schema.inp", "schema.ini", fs::copy_options::overwrite_existing);
    std::ofstream("schema.ini", std::ios::app | std::ios::binary)
        << "COL3=distance DOUBLE\r\nCOL4=Base_Travel_Times DOUBLE\r\nCOL5=Improvement_Travel_Times "
           "DOUBLE\r\n";
    const auto peers = [] {
      return shell_time(
          "DROP TABLE IF EXISTS sosec;\nCREATE TABLE sosec (Origin INTEGER, Destination INTEGER, distance "
          "REAL, Base_Travel_Times REAL, Improvement_Travel_Times REAL) STRICT;\n.mode csv\n.import --skip 1 "
          "trips.csv sosec\n");
    };
    const auto ours = [this] { return timed([this] { pour(); }); };
    print("load into sosec, over a full one", "the shell's .import", ours, peers, "goal 0.17, 48 MiB");
  }

  void export_trips() {
    shell_time(
        "UPDATE sosec SET distance = (rowid % 997) / 10.0, Base_Travel_Times = rowid % 61, "
        "Improvement_Travel_Times = (rowid % 7919) / 100.0;");
    const auto peers = [] {
      return shell_time(
          ".mode list\n.separator \"\" \"\\r\\n\"\n.output peer.txt\n"
          "SELECT printf('%10d%10d%10.15g', Origin, Destination, distance) FROM sosec;\n");
    };
    const auto ours = [this] { return timed([this] { pour_out(); }); };
    print("export of one industry's trips", "the shell's printf", ours, peers, "goal 0.33");
    expect_same("trips_distance.txt", "peer.txt");
  }

  void three_files() {
    const auto peers = [] {
      std::string commands = ".mode list\n.separator \"\" \"\\r\\n\"\n";
      for (const std::string column : {"distance", "Base_Travel_Times", "Improvement_Travel_Times"}) {
        commands += ".output peer_" + column + ".txt\nSELECT printf('%d %d %.15g', Origin, Destination, " +
                    column + ") FROM sosec;\n";
      }
      return shell_time(commands);
    };
    const auto ours = [this] { return timed([this] { save_three(); }); };
    print("the three files of time and distance", "three queries in the shell", ours, peers, "goal 0.25");
    expect_same("distance.txt", "peer_distance.txt");
    expect_same("imp_time.txt", "peer_Improvement_Travel_Times.txt");
  }

 private:
  double timed(const std::function<void()>& work) {
    bench::forget_peak();
    const double before = bench::present_mib();
    const double time = bench::timed(work);
    growth_ = std::max(growth_, bench::peak_mib() - before);
    return time;
  }

  void print(const std::string& work, const std::string& peer, const std::function<double()>& ours,
             const std::function<double()>& peers, const std::string& goal) {
    growth_ = 0;
    const int runs = zones_ <= 1000 ? 5 : zones_ <= 2000 ? 3 : 1;
    const auto figures = bench::in_turns(runs, ours, peers);
    char note[120];
    std::snprintf(note, sizeof note, "%6.1f ns a pair, %5.1f MiB, %s", figures.ours * 1e6 / zones_ / zones_,
                  growth_, goal.c_str());
    bench::print_row(work + ", " + std::to_string(zones_), peer, figures, note);
  }

  void write_same_bytes() const {
    const auto size = fs::file_size("trips.csv");
    std::vector<char> block(std::min<std::size_t>(size, std::size_t{1} << 20));
    std::ifstream("trips.csv", std::ios::binary)
        .read(block.data(), static_cast<std::streamsize>(block.size()));
    std::ofstream out("peer.txt", std::ios::binary);
    for (std::uintmax_t left = size; left > 0;) {
      const auto piece = std::min<std::uintmax_t>(left, block.size());
      out.write(block.data(), static_cast<std::streamsize>(piece));
      left -= piece;
    }
  }

  /// As the grid's load does.
  void pour() {
    auto data = workspace_.OpenDatabase("zelmor.mdb");
    runtime::ignoring_faults([&] { data.Execute("DROP TABLE sosec"); });
    runtime::ignoring_faults([&] { data.Execute("DROP TABLE csvtable"); });
    data.AppendTableDef(database::csvtable_definition(data, app_path_));
    data.Execute(
        "CREATE TABLE sosec (Origin integer, Destination integer, distance DOUBLE,Base_Travel_Times "
        "DOUBLE,Improvement_Travel_Times DOUBLE)");
    data.Execute("insert into sosec select * from csvtable");
    data.Execute("DROP TABLE csvtable");
    workspace_.handler_ended();
  }

  void pour_out() {
    auto data = workspace_.OpenDatabase("zelmor.mdb");
    database::export_column(files_, data, app_path_,
                            {database::write_pairs_template,
                             {database::column_to_write(3, "distance")},
                             "INSERT INTO csvtable SELECT origin, destination, distance from sosec",
                             app_path_ + "/trips_distance.txt"});
    workspace_.handler_ended();
  }

  void save_three() {
    auto data = workspace_.OpenDatabase("zelmor.mdb");
    const auto rows = data.OpenRecordset("sosec");
    int number = 0;
    std::deque<database::ValueLines> lines;
    for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) {
      files_.open_for_output(++number, name);
      lines.emplace_back(files_.out(number), name, number + 1);
    }
    database::write_value_lines(lines, rows);
    files_.close_all();
  }

  std::string app_path_;
  int zones_;
  double growth_ = 0;
  runtime::files::Files files_;
  runtime::engine::Workspace workspace_;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) return 2;
  fs::current_path(argv[1]);
  std::vector<int> sizes;
  for (int i = 2; i < argc; ++i) sizes.push_back(std::atoi(argv[i]));
  for (const int zones : sizes) {
    TextTables bench(fs::current_path().string(), zones);
    bench.skeleton();
    bench.load();
    bench.export_trips();
    bench.three_files();
  }
}
