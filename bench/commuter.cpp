// bench_commuter DIRECTORY: the commuter page and its run. DIRECTORY is an installation that may be changed.
#include <QApplication>

#include "market_bench.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  return bench::bench_market(argv[1], {.name = "commuter",
                                       .menu_item = "spec_comm",
                                       .run_button = "Command11",
                                       .picks = {"7", "0", "2"},
                                       .picks_have_all_pairs = false,
                                       .peers_directory = "truck"});
}
