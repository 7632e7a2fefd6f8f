// Opens a market's page, and drives its run from the press of the button to its question at growing numbers
// of zones, against cp of the same files. Both markets are timed by it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "analyst/analyst.h"
#include "event_table.h"

namespace bench {

/// What differs between the markets.
struct MarketRow {
  const char* name;  // in the table of figures
  const char* menu_item;
  const char* run_button;
  std::vector<std::string> picks;  // codes, in the order of the picks
  bool picks_have_all_pairs;       // else they are as long as an occupation file of the sample study
  const char* peers_directory;     // where cp puts its copies: of the other market
};

class MarketBench {
 public:
  /// `directory` is an installation that may be changed.
  MarketBench(const std::string& directory, MarketRow row);

  /// Prints the time that the page takes to open, beside that of an empty window.
  void open_page();
  /// Prints the time from the press to the question.
  void drive(int zones);

  /// What went otherwise than planned: then the figures mean nothing.
  bool failed() const;

 private:
  void save_time_and_distance();
  void leave_page();
  void write_study(int zones);
  void write_pairs(const std::string& file, int zones) const;
  void pick_by_hand();
  double press_until_question();
  void copy_with_cp() const;

  std::filesystem::path directory_;
  MarketRow row_;
  forms::Program program_;
  analyst::Analyst analyst_;
};

/// The body of a bench program: opens the page and drives the run at 24, 400 and 3,000 zones.
int bench_market(const char* directory, const MarketRow& row);

}  // namespace bench
