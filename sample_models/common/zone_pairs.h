// Files with one value for every pair of zones.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/line_reader.h"

namespace model {

/// How the lines of a file of pairs look: `Blanks` is "origin destination value" with one blank between;
/// in `Columns` each of the three stands in 10 columns, and an empty value is 0.
enum class PairLayout { Blanks, Columns };

/// Reads a file of N times N lines, ordered by origin and within it by destination. It is read row by row,
/// so that a study of thousands of zones needs the memory of one row. Whatever stands in another order,
/// twice or not at all is a Refusal.
class ZonePairs {
 public:
  ZonePairs(const std::string& name, int zones, PairLayout layout = PairLayout::Blanks)
      : file_(name), zones_(zones), layout_(layout) {}

  /// The values from the next origin to the destinations 1 to N. `values` has N places.
  void read_row(std::span<double> values);

  /// Refuses what stands behind the last pair.
  void finish() { file_.expect_end(); }

 private:
  double next_between_blanks(int destination);
  double next_in_columns(int destination);
  void expect(int origin, int destination, int expected) const;
  [[noreturn]] void refuse_order(int origin, int destination, int expected) const;

  LineReader file_;
  int zones_;
  PairLayout layout_;
  int origin_ = 0;
};

}  // namespace model
