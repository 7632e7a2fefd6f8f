// bench_window empty | quelar DIRECTORY: shows a main window, waits until it is painted, and ends. The caller
// times the whole process. With "quelar idle DIRECTORY" it prints the memory of the idle program in KiB.
#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

#include "event_table.h"

namespace {

int wait_until_painted(QWidget& window) {
  const bool exposed = QTest::qWaitForWindowExposed(&window);
  window.repaint();
  return exposed ? 0 : 1;
}

long resident_kib() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
  }
  return -1;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc == 2) {
    QMainWindow window;
    window.resize(1000, 700);
    window.show();
    return wait_until_painted(window);
  }
  forms::Program program(argv[argc - 1]);
  quelar::tie_events(program);
  quelar::start(program);
  const int result = wait_until_painted(program.mdiform1.window());
  if (argc == 4) std::printf("%ld\n", resident_kib());
  return result;
}
