#include "runtime/engine/row_counts.h"

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/quoting.h"

namespace runtime::engine {

namespace {

std::int64_t one_number(Connection& connection, const std::string& sql) {
  Statement statement(connection, sql);
  statement.step();
  return statement.whole(0);
}

}  // namespace

std::optional<KeyExtent> key_extent(Connection& connection, const std::string& table) {
  // Asked for in one go, the store would read every row.
  const auto from = " FROM " + dialect::quoted_name(table) + ")";
  Statement ends(connection, "SELECT (SELECT min(rowid)" + from + ", (SELECT max(rowid)" + from);
  ends.step();
  if (is_null(ends.value(0))) return std::nullopt;
  return KeyExtent{ends.whole(0), ends.whole(1)};
}

// A gap between two keys may be wider than all the rows together.
void in_pieces(Connection& connection, const std::string& table,
               const std::function<void(const KeyExtent&)>& work) {
  constexpr std::int64_t keys_in_a_piece = std::int64_t{1} << 20;
  const auto behind = "SELECT min(rowid) FROM " + dialect::quoted_name(table) + " WHERE rowid > ?1";
  const auto all = key_extent(connection, table);
  if (!all) return;
  for (auto first = all->first;;) {
    const auto last = all->last - first < keys_in_a_piece ? all->last : first + keys_in_a_piece - 1;
    work({first, last});
    connection.tell_progress(last - all->first + 1, all->size());
    if (last == all->last) return;
    Statement next(connection, behind);
    next.bind(1, last).step();
    first = next.whole(0);
  }
}

std::int64_t RowCounts::version() {
  const auto others = one_number(connection_, "PRAGMA data_version");
  if (others != seen_of_others_) forget();
  seen_of_others_ = others;
  return version_;
}

void RowCounts::forget() {
  known_.clear();
  ++version_;
}

std::int64_t RowCounts::of(const std::string& table) {
  version();
  const auto known = known_.find(table);
  if (known != known_.end()) return known->second;
  return known_[table] = one_number(connection_, "SELECT count(*) FROM " + dialect::quoted_name(table));
}

void RowCounts::note_insertion(const std::string& table) {
  const auto inserted = connection_.rows_changed();
  version();
  if (!connection_.has_table(table)) return;
  // No key can lie between those of the new rows when there is room for no other row.
  const auto extent = key_extent(connection_, table);
  if (extent && extent->size() == inserted) known_[table] = inserted;
}

}  // namespace runtime::engine
