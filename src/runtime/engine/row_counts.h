// What the connection knows about the number of rows of its tables; for this room only.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

namespace runtime::engine {

class Connection;

/// The keys between which all rows of a table lie.
struct KeyExtent {
  std::int64_t first = 0;
  std::int64_t last = 0;
  std::int64_t size() const { return last - first + 1; }
};

/// Nothing for a table without rows.
std::optional<KeyExtent> key_extent(Connection& connection, const std::string& table);

/// Shows the keys of a table to `work` in pieces of up to a million, and tells the progress after each.
void in_pieces(Connection& connection, const std::string& table,
               const std::function<void(const KeyExtent&)>& work);

/// Counts a table once. A hundred million rows take seconds to count, so what an insertion tells is noted.
class RowCounts {
 public:
  explicit RowCounts(Connection& connection) : connection_(connection) {}

  std::int64_t of(const std::string& table);
  /// Rows were inserted into the table by the last statement.
  void note_insertion(const std::string& table);
  /// Rows may have come or gone.
  void forget();
  /// Changes whenever rows may have come or gone in any table, by this program or another.
  std::int64_t version();

 private:
  Connection& connection_;
  std::unordered_map<std::string, std::int64_t> known_;
  std::int64_t version_ = 0;
  std::int64_t seen_of_others_ = 0;
};

}  // namespace runtime::engine
