// bench_commercial DIRECTORY: the commercial page and its run, and the writers of its files against fprintf
// of the same lines. DIRECTORY is an installation that may be changed.
#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "commercial/model_files.h"
#include "figures.h"
#include "market_bench.h"

namespace {

constexpr int lines = 200000;

/// One line of a writer, and the same line by fprintf; `i` makes lines differ.
struct WriterRow {
  const char* name;
  void (*ours)(std::ostream& stream, int i);
  void (*peers)(std::FILE* file, int i);
};

const WriterRow writers[] = {
    {"cost lines",
     [](std::ostream& stream, int i) {
       commercial::write_costs(stream, {i * 1.0, 25.07, 430.0, 1.0, 90.0});
     },
     [](std::FILE* file, int i) {
       std::fprintf(file, " %-13.7g %-13.7g %-13.7g %-13.7g %.7g \r\n", i * 1.0, 25.07, 430.0, 1.0, 90.0);
     }},
    {"variation lines",
     [](std::ostream& stream, int i) { commercial::write_variation(stream, i * 0.37, 0.42); },
     [](std::FILE* file, int i) { std::fprintf(file, " %.15g  %.15g \r\n", i * 0.37, 0.42); }},
    {"conversion rows",
     [](std::ostream& stream, int i) {
       commercial::write_conversion_row(stream, {std::int64_t{i}, 16.5, 0.88, 300.0});
     },
     [](std::FILE* file, int i) {
       std::fprintf(file, "  %d  %.15g  %.15g  %.15g\r\n", i, 16.5, 0.88, 300.0);
     }},
};

void bench_writer(const WriterRow& writer, const std::string& path) {
  const auto ours = [&] {
    return bench::timed([&] {
      std::ofstream stream(path, std::ios::binary);
      for (int i = 0; i < lines; ++i) writer.ours(stream, i);
    });
  };
  const auto peers = [&] {
    return bench::timed([&] {
      std::FILE* file = std::fopen(path.c_str(), "wb");
      if (file == nullptr) std::abort();
      for (int i = 0; i < lines; ++i) writer.peers(file, i);
      std::fclose(file);
    });
  };
  bench::print_row(std::string("write 200,000 ") + writer.name, "fprintf of the same",
                   bench::in_turns(7, ours, peers));
  std::filesystem::remove(path);
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  const int result = bench::bench_market(argv[1], {.name = "commercial",
                                                   .menu_item = "Spec_commercial",
                                                   .run_button = "Command2",
                                                   .picks = {"2", "9"},
                                                   .picks_have_all_pairs = true,
                                                   .peers_directory = "commuter"});
  for (const WriterRow& writer : writers) bench_writer(writer, std::string(argv[1]) + "/lines.txt");
  return result;
}
