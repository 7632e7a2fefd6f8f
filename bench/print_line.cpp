// The line writer against fprintf: the same lines of two values into the same kind of file.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>

#include "figures.h"
#include "runtime/text/print_line.h"

namespace {

constexpr int lines = 400000;

void with_print_line(const char* path) {
  std::ofstream stream(path, std::ios::binary);
  for (int i = 0; i < lines; ++i)
    runtime::text::print_line(stream, {i % 9999, runtime::text::zone, i * 0.37});
}

void with_fprintf(const char* path) {
  std::FILE* file = std::fopen(path, "wb");
  for (int i = 0; i < lines; ++i) {
    std::fprintf(file, " %-13d %.15g \r\n", i % 9999, i * 0.37);
  }
  std::fclose(file);
}

}  // namespace

int main(int argc, char* argv[]) {
  const char* path = argc > 1 ? argv[1] : "lines.txt";
  const auto figures = bench::in_turns(
      7, [&] { return bench::timed([&] { with_print_line(path); }); },
      [&] { return bench::timed([&] { with_fprintf(path); }); });
  std::remove(path);
  bench::print_row("print 400,000 lines", "fprintf of the same", figures, "goal: 1.00 or less");
}
