#include "runtime/engine/fill.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/dialect/tokens.h"
#include "runtime/engine/row_counts.h"
#include "runtime/engine/stored_value.h"
#include "runtime/engine/table_shape.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

constexpr int syntax_fault = 3144;

// What a value can fault with when it is worked out, as against what a write can.
bool is_of_the_value(const Fault& fault) {
  constexpr std::array numbers{5, 6, 11, 13, 94, 3421};
  return std::find(numbers.begin(), numbers.end(), fault.number) != numbers.end();
}

const Field& field_named(const std::vector<Field>& fields, std::string_view written) {
  dialect::Tokens tokens(written, syntax_fault);
  const auto name = tokens.need_name();
  if (!tokens.at_end()) tokens.fault();
  const auto found =
      std::find_if(fields.begin(), fields.end(), [&](const Field& f) { return same_name(f.name, name); });
  if (found == fields.end()) throw Fault(3061, name);
  return *found;
}

bool names_no_field(std::string_view value) {
  try {
    dialect::expression_to_sql(value, {});
    return true;
  } catch (const Fault&) {
    return false;
  }
}

/// A combination of keys, as a list in the store's language, and what the value faults with there.
struct Stop {
  std::string keys;
  Fault fault;
};

class Filling {
 public:
  Filling(Connection& connection, const std::string& table, std::string_view field, std::string_view value,
          std::span<const KeyRange> keys);

  /// Fills the combinations before that of `stop`, or all. All of them or, with a fault, none.
  void fill_until(const std::optional<Stop>& stop);
  /// The first combination for which the value faults.
  std::optional<Stop> first_stop();

 private:
  /// The rows to fill, of the combinations before that of `stop`.
  std::string rows_before(const std::optional<Stop>& stop) const;
  void fill_rows(const std::string& rows);
  /// The next row behind `key` among `rows` for which the value faults; moves `key` to it.
  std::optional<Stop> next_stop(const std::string& rows, std::int64_t& key);

  Connection& connection_;
  std::string table_;
  std::string quoted_table_;
  std::string field_;
  std::string value_;
  std::string key_columns_;
  std::string ranges_;
  std::string unless_held_;
};

Filling::Filling(Connection& connection, const std::string& table, std::string_view field,
                 std::string_view value, std::span<const KeyRange> keys)
    : connection_(connection), table_(table), quoted_table_(dialect::quoted_name(table)) {
  const auto fields = fields_of(connection, table);
  const auto& target = field_named(fields, field);
  field_ = target.name;
  value_ = stored_sql(target, dialect::expression_to_sql(value, names_of(fields), syntax_fault));
  // Where it is the same for all, rows that hold it already need not be written.
  if (names_no_field(value)) unless_held_ = " AND " + dialect::quoted_name(field_) + " IS NOT " + value_;
  for (const auto& key : keys) {
    const auto column = dialect::quoted_name(field_named(fields, key.column).name);
    key_columns_ += (key_columns_.empty() ? "" : ", ") + column;
    ranges_ += " AND " + column + " BETWEEN " + std::to_string(key.from) + " AND " + std::to_string(key.to);
  }
}

std::string Filling::rows_before(const std::optional<Stop>& stop) const {
  return ranges_ + (stop ? " AND (" + key_columns_ + ") < (" + stop->keys + ")" : "");
}

void Filling::fill_until(const std::optional<Stop>& stop) {
  connection_.run("SAVEPOINT filling");
  try {
    fill_rows(rows_before(stop));
    connection_.run("RELEASE filling");
  } catch (const Fault&) {
    // The store itself has taken back all when the disk is full.
    if (connection_.in_transaction()) {
      connection_.run("ROLLBACK TO filling");
      connection_.run("RELEASE filling");
    }
    throw;
  }
}

void Filling::fill_rows(const std::string& rows) {
  const auto sql = "UPDATE " + quoted_table_ + " NOT INDEXED SET " + dialect::quoted_name(field_) + " = " +
                   value_ + " WHERE rowid BETWEEN ?1 AND ?2" + rows + unless_held_;
  const Fence fence(connection_, table_);
  in_pieces(connection_, table_, [&](const KeyExtent& keys) {
    Statement update(connection_, sql);
    update.bind(1, keys.first).bind(2, keys.last);
    update.step();
  });
}

std::optional<Stop> Filling::next_stop(const std::string& rows, std::int64_t& key) {
  const auto among = " FROM " + quoted_table_ + " NOT INDEXED WHERE rowid > ?1" + rows + " ORDER BY rowid";
  try {
    Statement values(connection_, "SELECT rowid, " + value_ + among);
    values.bind(1, key);
    while (values.step()) key = values.whole(0);
    return std::nullopt;
  } catch (const Fault& fault) {
    if (!is_of_the_value(fault)) throw;
    Statement row(connection_, "SELECT rowid, " + key_columns_ + among + " LIMIT 1");
    row.bind(1, key);
    if (!row.step()) return std::nullopt;  // a value without fields is worked out before any row is met
    key = row.whole(0);
    std::string keys;
    for (int column = 1; column < row.columns(); ++column)
      keys += (keys.empty() ? "" : ", ") + std::to_string(row.whole(column));
    return Stop{keys, Fault(fault.number, field_)};
  }
}

// Rows may lie in any order, so after a stop those of the combinations before it are searched further.
std::optional<Stop> Filling::first_stop() {
  std::optional<Stop> first;
  const auto extent = key_extent(connection_, table_);
  if (!extent) return first;
  const Fence fence(connection_, table_);
  auto key = extent->first - 1;
  while (auto stop = next_stop(rows_before(first), key)) first.emplace(std::move(*stop));
  return first;
}

}  // namespace

void fill(Connection& connection, const std::string& table, std::string_view field, std::string_view value,
          std::span<const KeyRange> keys) {
  if (std::any_of(keys.begin(), keys.end(), [](const KeyRange& key) { return key.from > key.to; })) return;
  Filling filling(connection, table, field, value, keys);
  connection.before_update();
  connection.forget_statements();  // an idle one was compiled without the fence
  try {
    filling.fill_until({});
  } catch (const Fault& fault) {
    if (!is_of_the_value(fault)) throw;
    const auto stop = filling.first_stop();
    if (!stop) return;
    filling.fill_until(stop);
    throw Fault(stop->fault);
  }
}

}  // namespace runtime::engine
