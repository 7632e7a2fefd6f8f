// Files with one value for every pair of zones.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/line_reader.h"

namespace model {

/// Reads a file of N times N lines "origin destination value", one blank between, ordered by origin and
/// within it by destination. It is read row by row, so that a study of thousands of zones needs the memory
/// of one row. Whatever stands in another order, twice or not at all is a Refusal.
class ZonePairs {
 public:
  ZonePairs(const std::string& name, int zones) : file_(name), zones_(zones) {}

  /// The values from the next origin to the destinations 1 to N. `values` has N places.
  void read_row(std::span<double> values);

  /// Refuses what stands behind the last pair.
  void finish() { file_.expect_end(); }

 private:
  double value_of_pair(std::string_view line, int destination) const;
  [[noreturn]] void refuse_order(int origin, int destination, int expected) const;

  LineReader file_;
  int zones_;
  int origin_ = 0;
};

}  // namespace model
