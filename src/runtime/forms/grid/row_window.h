// The few rows of a large table that a screen needs, read by position and kept for a while.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "runtime/value.h"

namespace runtime::forms::grid {

using Row = std::vector<Value>;

/// Reads rows in blocks and keeps the blocks that were asked for last. What it holds has an upper bound,
/// however many rows there are.
class RowWindow {
 public:
  static constexpr int block_rows = 64;
  static constexpr int most_blocks = 8;

  /// Gives up to `count` rows from position `first` on; fewer at the end.
  using Reader = std::function<std::vector<Row>(std::int64_t first, int count)>;

  explicit RowWindow(Reader read) : read_(std::move(read)) {}

  /// The row at a position from 0, good until the next call; nullptr where there is none. Faults: those of
  /// the reader.
  const Row* row(std::int64_t position);
  /// The next call reads anew.
  void forget() { blocks_.clear(); }
  /// How many rows are held.
  int held() const;

 private:
  struct Block {
    std::int64_t number;
    std::vector<Row> rows;
  };

  Reader read_;
  std::vector<Block> blocks_;  // the one asked for last comes last
};

}  // namespace runtime::forms::grid
