// A field of many records set at once.
#include <algorithm>
#include <limits>
#include <vector>

#include "runtime/engine/connection.h"
#include "runtime/engine/recordset.h"
#include "runtime/engine/recordset_state.h"
#include "runtime/engine/row_values.h"
#include "runtime/engine/values_by_row.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

using ValueAt = std::function<std::int64_t(std::int64_t position)>;

constexpr std::int64_t records_between_news = std::int64_t{1} << 16;

bool fits(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return value >= Limits::min() && value <= Limits::max();
}

}  // namespace

// The values of the records that there are, up to the first that its field can't take.
std::int64_t Recordset::State::set_in_list(const std::string& field, std::int64_t count,
                                           const ValueAt& value) {
  const auto end = std::min(count, order->size());
  ValuesByRow values(connection->file().parent_path(), order->end_of_numbers());
  std::vector<RowOrder::RowNumber> numbers;
  std::int64_t done = 0;
  for (bool fit = true; fit && done < end;) {
    numbers.resize(static_cast<std::size_t>(std::min<std::int64_t>(end - done, 1 << 16)));
    order->read(done, numbers);
    for (const auto number : numbers) {
      const auto wanted = value(done);
      fit = fits(wanted);
      if (!fit) break;
      values.put(number, static_cast<std::int32_t>(wanted));
      ++done;
    }
    connection->tell_progress(done, 2 * end);
  }

  std::int64_t seen = 0;
  set_rows(*connection, source.table, field, {}, [&](std::int64_t key) {
    const auto* const given = values.get(key - order->first_key());
    if (given != nullptr && ++seen % records_between_news == 0)
      connection->tell_progress(done + seen, 2 * end);
    return given;
  });
  stand_on(listed_row(done, 1), Place::PastLast);
  return done;
}

std::int64_t Recordset::State::set_in_table(const std::string& field, std::int64_t count,
                                            const ValueAt& value) {
  std::int64_t done = 0;
  std::int64_t given = 0;
  std::int64_t last_key = 0;
  bool fit = true;
  set_rows(*connection, source.table, field, rows.condition(), [&](std::int64_t key) -> const std::int64_t* {
    if (!fit || done == count) return nullptr;
    given = value(done);
    fit = fits(given);
    if (!fit) return nullptr;
    last_key = key;
    if (++done % records_between_news == 0) connection->tell_progress(done, count);
    return &given;
  });
  stand_on(done == 0 ? rows.first(*connection) : rows.after(*connection, last_key), Place::PastLast);
  return done;
}

void Recordset::set_each(std::string_view field, std::int64_t count, const ValueAt& value) {
  auto& s = state();
  MoveFirst();
  if (count <= 0) return;
  const auto place = static_cast<std::size_t>(s.position_of(field));
  const Field target = s.rows.fields()[place];
  if (target.kind != FieldKind::Whole) throw Fault(3421, target.name);
  s.connection->before_update();
  const auto done =
      s.order ? s.set_in_list(target.name, count, value) : s.set_in_table(target.name, count, value);
  if (done == count) return;
  if (s.place == State::Place::OnRow) throw Fault(3421, target.name);
  throw Fault(3021);
}

}  // namespace runtime::engine
