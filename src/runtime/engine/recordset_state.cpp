#include "runtime/engine/recordset_state.h"

#include <algorithm>
#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

std::string all_of(const std::vector<std::string>& conditions, const dialect::Names& names) {
  std::string sql;
  for (const auto& condition : conditions)
    sql += (sql.empty() ? "" : " AND ") + dialect::condition_to_sql(condition, names);
  return sql;
}

}  // namespace

void Recordset::State::load() {
  auto fields = fields_of(*connection, source.table);
  const auto names = names_of(fields);
  auto conditions = filters;
  if (!source.condition.empty()) conditions.insert(conditions.begin(), source.condition);
  const auto condition = all_of(conditions, names);

  const bool is_listed = !filters.empty() || !sort.empty();
  if (is_listed)
    order = ordered_rows(*connection,
                         {source.table, condition, sort.empty() ? "" : dialect::sort_to_sql(sort, names)});
  positions = TablePositions(source.table, condition);
  rows = KeyOrder(source.table, condition, std::move(fields));
  stand_on(first_row(), Place::PastLast);
  is_empty = place != Place::OnRow;
}

// A row of the list that is gone from the table is stepped over.
std::optional<Row> Recordset::State::listed_row(std::int64_t from, int step) {
  for (auto wanted = from; wanted >= 0 && wanted < order->size(); wanted += step) {
    auto row = rows.at(*connection, order->key(wanted));
    if (!row) continue;
    position = wanted;
    return row;
  }
  return std::nullopt;
}

std::optional<Row> Recordset::State::first_row() {
  return order ? listed_row(0, 1) : rows.first(*connection);
}
std::optional<Row> Recordset::State::last_row() {
  return order ? listed_row(order->size() - 1, -1) : rows.last(*connection);
}
std::optional<Row> Recordset::State::row_after() {
  if (place == Place::BeforeFirst) return first_row();
  return order ? listed_row(position + 1, 1) : rows.after(*connection, current.key);
}
std::optional<Row> Recordset::State::row_before() {
  if (place == Place::PastLast) return last_row();
  return order ? listed_row(position - 1, -1) : rows.before(*connection, current.key);
}

std::int64_t Recordset::State::size() {
  return order ? order->size() : positions.size(*connection);
}

std::optional<std::int64_t> Recordset::State::key_at(std::int64_t wanted) {
  if (!order) return positions.key_at(*connection, wanted);
  return wanted >= 0 && wanted < order->size() ? std::optional(order->key(wanted)) : std::nullopt;
}

void Recordset::State::stand_on(std::optional<Row> row, Place otherwise) {
  pending = Pending::None;
  place = row ? Place::OnRow : otherwise;
  current = row ? std::move(*row) : Row{};
}

void Recordset::State::go_to_end(std::optional<Row> row) {
  is_empty = !row;
  stand_on(std::move(row), Place::PastLast);
  if (is_empty) throw Fault(3021);
}

int Recordset::State::position_of(std::string_view name) const {
  const auto& fields = rows.fields();
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [name](const Field& field) { return same_name(field.name, name); });
  if (found == fields.end()) throw Fault(3265, std::string(name));
  return static_cast<int>(found - fields.begin());
}

std::size_t Recordset::State::checked(int field) const {
  if (field < 0 || static_cast<std::size_t>(field) >= rows.fields().size())
    throw Fault(3265, std::to_string(field));
  return static_cast<std::size_t>(field);
}

void Recordset::State::begin_edit(Pending kind) {
  pending = kind;
  changes.assign(rows.fields().size(), std::nullopt);
}

void Recordset::State::insert() const {
  std::string columns;
  std::string parameters;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (!changes[i]) continue;
    columns += (columns.empty() ? "" : ", ") + dialect::quoted_name(rows.fields()[i].name);
    parameters += (parameters.empty() ? "?" : ", ?") + std::to_string(i + 1);
  }
  const auto into = "INSERT INTO " + dialect::quoted_name(source.table);
  Statement statement(*connection, columns.empty() ? into + " DEFAULT VALUES"
                                                   : into + " (" + columns + ") VALUES (" + parameters + ")");
  for (std::size_t i = 0; i < changes.size(); ++i)
    if (changes[i]) statement.bind(static_cast<int>(i + 1), *changes[i]);
  statement.step();
}

void Recordset::State::change() const {
  std::string assignments;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (!changes[i]) continue;
    assignments += (assignments.empty() ? "" : ", ") + dialect::quoted_name(rows.fields()[i].name) + " = ?" +
                   std::to_string(i + 2);
  }
  if (assignments.empty()) return;
  Statement statement(*connection, "UPDATE " + dialect::quoted_name(source.table) + " SET " + assignments +
                                       " WHERE rowid = ?1");
  statement.bind(1, current.key);
  for (std::size_t i = 0; i < changes.size(); ++i)
    if (changes[i]) statement.bind(static_cast<int>(i + 2), *changes[i]);
  statement.step();
  if (connection->rows_changed() == 0) throw Fault(3021);
}

}  // namespace runtime::engine
