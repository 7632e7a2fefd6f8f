#include "runtime/engine/key_order.h"

#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/row_walk.h"

namespace runtime::engine {

KeyOrder::KeyOrder(const std::string& table, const std::string& condition, std::vector<Field> fields)
    : condition_(condition), fields_(std::move(fields)) {
  std::string columns = "rowid";
  for (const auto& field : fields_) columns += ", " + dialect::quoted_name(field.name);
  const auto from = " FROM " + dialect::quoted_name(table) + " WHERE ";
  const auto rows = "SELECT " + columns + from;
  const auto matching = condition.empty() ? "1" : "(" + condition + ")";

  first_ = rows + matching + " ORDER BY rowid LIMIT 1";
  last_ = rows + matching + " ORDER BY rowid DESC LIMIT 1";
  after_ = rows + "rowid > ?1 AND " + matching + " ORDER BY rowid LIMIT 1";
  before_ = rows + "rowid < ?1 AND " + matching + " ORDER BY rowid DESC LIMIT 1";
  at_ = rows + "rowid = ?1";
  all_ = rows + matching + " ORDER BY rowid";
  last_key_ = "SELECT max(rowid) FROM " + dialect::quoted_name(table);
  // Without a condition the store counts faster than with one that always holds.
  count_ = "SELECT count(*) FROM " + dialect::quoted_name(table);
  if (!condition.empty()) count_ += " WHERE " + matching;
}

std::optional<Row> KeyOrder::first(Connection& connection) const {
  return find(connection, first_, {});
}
std::optional<Row> KeyOrder::last(Connection& connection) const {
  return find(connection, last_, {});
}
std::optional<Row> KeyOrder::after(Connection& connection, std::int64_t key) const {
  return find(connection, after_, key);
}
std::optional<Row> KeyOrder::before(Connection& connection, std::int64_t key) const {
  return find(connection, before_, key);
}
std::optional<Row> KeyOrder::at(Connection& connection, std::int64_t key) const {
  return find(connection, at_, key);
}

std::optional<Row> KeyOrder::find(Connection& connection, const std::string& sql,
                                  std::optional<std::int64_t> key) const {
  Statement statement(connection, sql);
  if (key) statement.bind(1, *key);
  if (!statement.step()) return std::nullopt;
  Row row{statement.whole(0), {}};
  row.values.reserve(fields_.size());
  int column = 0;
  for (const auto& field : fields_) row.values.push_back(as_read(field, statement.value(++column)));
  return row;
}

std::int64_t KeyOrder::count(Connection& connection) const {
  Statement statement(connection, count_);
  statement.step();
  return statement.whole(0);
}

void KeyOrder::for_each(Connection& connection, const std::function<void(const RecordView&)>& visit) const {
  // The last key instead of a count, which would take a while itself.
  std::int64_t total = 0;
  {
    Statement last(connection, last_key_);
    if (last.step()) total = last.whole(0);
  }
  walk_rows(connection, all_, fields_, total, visit);
}

void KeyOrder::for_each(Connection& connection, const RowOrder& order,
                        const std::function<void(const RecordView&)>& visit) const {
  walk_list(connection, at_, fields_, order, visit);
}

}  // namespace runtime::engine
