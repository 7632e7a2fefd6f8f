// The positions of a walk in table order; for this room only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/engine/row_counts.h"
#include "runtime/engine/row_order.h"

namespace runtime::engine {

/// Maps positions to keys and back: by arithmetic where every key between the first and the last is there,
/// else by a list of the keys, which is made anew after rows may have come or gone.
class TablePositions {
 public:
  TablePositions() = default;
  /// `condition` is in the store's language; empty for all rows.
  TablePositions(std::string table, std::string condition);

  std::int64_t size(Connection& connection);
  /// Nothing where no row is.
  std::optional<std::int64_t> key_at(Connection& connection, std::int64_t position);
  /// -1 when the key is not in the walk.
  std::int64_t position_of(Connection& connection, std::int64_t key);

 private:
  const RowOrder& list(Connection& connection);
  /// The keys when no one between the first and the last is missing.
  std::optional<KeyExtent> gapless(Connection& connection);

  OrderSource source_;
  std::shared_ptr<const RowOrder> list_;
  std::int64_t version_ = -1;
  std::int64_t changes_ = -1;
};

}  // namespace runtime::engine
