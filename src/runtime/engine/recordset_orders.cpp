// Positions, filters, sorts and clones.
#include "runtime/engine/connection.h"
#include "runtime/engine/recordset.h"
#include "runtime/engine/recordset_state.h"
#include "runtime/fault.h"

namespace runtime::engine {

std::int64_t Recordset::AbsolutePosition() const {
  auto& s = state();
  if (s.place != State::Place::OnRow) return -1;
  return s.order ? s.position : s.positions.position_of(*s.connection, s.current.key);
}

void Recordset::set_AbsolutePosition(std::int64_t position) {
  auto& s = state();
  const auto key = s.key_at(position);
  auto row = key ? s.rows.at(*s.connection, *key) : std::nullopt;
  if (!row) throw Fault(3021);
  s.position = position;
  s.is_empty = false;
  s.stand_on(std::move(row), State::Place::OnRow);
}

std::vector<std::vector<Value>> Recordset::GetRows(std::int64_t first, int count) const {
  auto& s = state();
  std::vector<std::vector<Value>> rows;
  for (auto position = first; position < first + count; ++position) {
    const auto key = s.key_at(position);
    if (!key) break;
    auto row = s.rows.at(*s.connection, *key);
    rows.push_back(row ? std::move(row->values) : std::vector<Value>(s.rows.fields().size()));
  }
  return rows;
}

void Recordset::for_each(const std::function<void(const RecordView&)>& visit) const {
  auto& s = state();
  if (s.order)
    s.rows.for_each(*s.connection, *s.order, visit);
  else
    s.rows.for_each(*s.connection, visit);
}

void Recordset::set_Filter(std::string_view condition) {
  state().next_filter = condition;
}

void Recordset::set_Sort(std::string_view columns) {
  state().next_sort = columns;
}

Recordset Recordset::OpenRecordset() const {
  const auto& s = state();
  auto opened = std::make_unique<State>();
  opened->connection = s.connection;
  opened->source = s.source;
  opened->filters = s.filters;
  if (!s.next_filter.empty()) opened->filters.push_back(s.next_filter);
  opened->sort = s.next_sort.empty() ? s.sort : s.next_sort;
  opened->load();
  return Recordset(std::move(opened));
}

Recordset Recordset::Clone() const {
  auto clone = std::make_unique<State>(state());
  clone->next_filter.clear();
  clone->next_sort.clear();
  clone->stand_on(std::nullopt, State::Place::BeforeFirst);
  return Recordset(std::move(clone));
}

}  // namespace runtime::engine
