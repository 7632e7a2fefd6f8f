// Rows in an order of their own, kept in a temporary file; for this room only.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "runtime/files/scratch_file.h"

namespace runtime::engine {

class Connection;

/// Row numbers of 4 bytes, read by position, so that it costs memory for none of them. A row number is the
/// distance of the row's key from the table's least one.
class RowOrder {
 public:
  using RowNumber = std::uint32_t;

  RowOrder(const std::filesystem::path& directory, std::int64_t first_key);

  std::int64_t size() const { return size_; }
  std::int64_t first_key() const { return first_key_; }
  /// All row numbers are below this.
  std::int64_t end_of_numbers() const { return end_of_numbers_; }
  std::int64_t key(std::int64_t position) const;
  /// The row numbers at the positions from `first` on; all of them must be there.
  void read(std::int64_t first, std::span<RowNumber> numbers) const;
  /// Of an order in which keys ascend; -1 when the key is not in it.
  std::int64_t position_of(std::int64_t key) const;

  /// Puts a row behind the last one. Fault 3026 when the disk is full, 6 when the keys lie too far apart.
  void add(std::int64_t key);
  /// Must follow the last add().
  void finish();

 private:
  files::ScratchFile file_;
  std::int64_t first_key_;
  std::int64_t size_ = 0;
  std::int64_t end_of_numbers_ = 0;
  std::vector<RowNumber> unwritten_;
};

/// What an order is made of.
struct OrderSource {
  std::string table;
  std::string condition;  ///< In the store's language; empty for all rows.
  std::string columns;    ///< What stands behind ORDER BY; empty for table order.
};

/// The rows that meet the condition in the order of the columns, ties in table order. Tells the progress.
std::shared_ptr<const RowOrder> ordered_rows(Connection& connection, const OrderSource& source);

}  // namespace runtime::engine
