// Values given in one order and asked for in that of the table; for this room only.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "runtime/engine/row_order.h"
#include "runtime/files/scratch_file.h"

namespace runtime::engine {

/// A temporary file of one drawer for each million row numbers. A drawer is sorted in memory when it is asked
/// for, so a hundred million values need the memory of one million.
class ValuesByRow {
 public:
  /// Holds row numbers below `end`. The file lies in `directory`.
  ValuesByRow(const std::filesystem::path& directory, std::int64_t end);

  /// One value for each row number at most. Fault 3026 when the disk is full.
  void put(RowOrder::RowNumber row, std::int32_t value);
  /// Nothing when none was put. Rows should be asked for in ascending order. Valid until the next call.
  const std::int64_t* get(std::int64_t row);

 private:
  struct Entry {
    std::uint32_t row;  // in its drawer
    std::int32_t value;
  };
  struct Drawer {
    std::int64_t written = 0;
    std::vector<Entry> unwritten;
  };

  static std::int64_t offset_of(std::size_t drawer, std::int64_t entry);
  void write_out(std::size_t drawer);
  void open(std::size_t drawer);

  files::ScratchFile file_;
  std::vector<Drawer> drawers_;
  std::size_t most_unwritten_;
  std::size_t opened_ = static_cast<std::size_t>(-1);
  std::vector<std::int32_t> values_;  // of the drawer that is open
  std::vector<bool> is_there_;
  std::int64_t value_ = 0;
};

}  // namespace runtime::engine
