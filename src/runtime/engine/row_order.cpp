#include "runtime/engine/row_order.h"

#include <algorithm>
#include <limits>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/row_counts.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

constexpr std::size_t rows_written_at_once = std::size_t{1} << 16;

std::int64_t offset_of(std::int64_t position) {
  return position * static_cast<std::int64_t>(sizeof(RowOrder::RowNumber));
}

}  // namespace

RowOrder::RowOrder(const std::filesystem::path& directory, std::int64_t first_key)
    : file_(directory), first_key_(first_key) {}

std::int64_t RowOrder::key(std::int64_t position) const {
  RowNumber number = 0;
  read(position, {&number, 1});
  return first_key_ + number;
}

void RowOrder::read(std::int64_t first, std::span<RowNumber> numbers) const {
  file_.read(offset_of(first), std::as_writable_bytes(numbers));
}

std::int64_t RowOrder::position_of(std::int64_t key) const {
  std::int64_t low = 0;
  std::int64_t high = size_;
  while (low < high) {
    const auto middle = low + (high - low) / 2;
    if (this->key(middle) < key)
      low = middle + 1;
    else
      high = middle;
  }
  return low < size_ && this->key(low) == key ? low : -1;
}

void RowOrder::add(std::int64_t key) {
  const auto number = key - first_key_;
  if (number < 0 || number > std::numeric_limits<RowNumber>::max()) throw Fault(6);
  unwritten_.push_back(static_cast<RowNumber>(number));
  end_of_numbers_ = std::max(end_of_numbers_, number + 1);
  ++size_;
  if (unwritten_.size() == rows_written_at_once) finish();
}

void RowOrder::finish() {
  const auto written = size_ - static_cast<std::int64_t>(unwritten_.size());
  file_.write(offset_of(written), std::as_bytes(std::span(unwritten_)));
  unwritten_.clear();
}

namespace {

// Piece by piece, so that the progress can be told where few rows meet the condition.
void add_in_table_order(Connection& connection, const OrderSource& source, RowOrder& order) {
  auto sql = "SELECT rowid FROM " + dialect::quoted_name(source.table) +
             " NOT INDEXED WHERE rowid BETWEEN ?1 AND ?2";
  if (!source.condition.empty()) sql += " AND (" + source.condition + ")";
  in_pieces(connection, source.table, [&](const KeyExtent& keys) {
    Statement rows(connection, sql + " ORDER BY rowid");
    rows.bind(1, keys.first).bind(2, keys.last);
    while (rows.step()) order.add(rows.whole(0));
  });
}

void add_sorted(Connection& connection, const OrderSource& source, RowOrder& order) {
  constexpr std::int64_t rows_between_news = std::int64_t{1} << 20;
  const auto extent = key_extent(connection, source.table);
  const auto all = extent ? extent->size() : 0;
  auto sql = "SELECT rowid FROM " + dialect::quoted_name(source.table) + " NOT INDEXED";
  if (!source.condition.empty()) sql += " WHERE " + source.condition;
  Statement rows(connection, sql + " ORDER BY " + source.columns + ", rowid");
  while (rows.step()) {
    order.add(rows.whole(0));
    if (order.size() % rows_between_news == 0) connection.tell_progress(order.size(), all);
  }
  connection.tell_progress(all, all);
}

}  // namespace

std::shared_ptr<const RowOrder> ordered_rows(Connection& connection, const OrderSource& source) {
  const auto extent = key_extent(connection, source.table);
  auto order =
      std::make_shared<RowOrder>(connection.file().parent_path(), extent ? extent->first : std::int64_t{0});
  const Fence fence(connection, source.table);
  (source.columns.empty() ? add_in_table_order : add_sorted)(connection, source, *order);
  order->finish();
  return order;
}

}  // namespace runtime::engine
