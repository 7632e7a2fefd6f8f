#include "runtime/engine/table_positions.h"

#include <utility>

#include "runtime/engine/connection.h"

namespace runtime::engine {

TablePositions::TablePositions(std::string table, std::string condition)
    : source_{std::move(table), std::move(condition), {}} {}

// Without a condition the fields don't matter; with one every change of a field may.
const RowOrder& TablePositions::list(Connection& connection) {
  const auto version = connection.row_counts().version();
  const auto changes = source_.condition.empty() ? 0 : connection.all_changes();
  if (!list_ || version != version_ || changes != changes_) list_ = ordered_rows(connection, source_);
  version_ = version;
  changes_ = changes;
  return *list_;
}

std::optional<KeyExtent> TablePositions::gapless(Connection& connection) {
  if (!source_.condition.empty()) return std::nullopt;
  const auto extent = key_extent(connection, source_.table);
  if (extent && connection.row_counts().of(source_.table) == extent->size()) return extent;
  return std::nullopt;
}

std::int64_t TablePositions::size(Connection& connection) {
  return source_.condition.empty() ? connection.row_counts().of(source_.table) : list(connection).size();
}

std::optional<std::int64_t> TablePositions::key_at(Connection& connection, std::int64_t position) {
  if (position < 0) return std::nullopt;
  if (const auto keys = gapless(connection))
    return position < keys->size() ? std::optional(keys->first + position) : std::nullopt;
  const auto& keys = list(connection);
  return position < keys.size() ? std::optional(keys.key(position)) : std::nullopt;
}

std::int64_t TablePositions::position_of(Connection& connection, std::int64_t key) {
  if (const auto keys = gapless(connection))
    return key >= keys->first && key <= keys->last ? key - keys->first : -1;
  return list(connection).position_of(key);
}

}  // namespace runtime::engine
