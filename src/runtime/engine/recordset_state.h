// What a recordset consists of; for this room only.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/dialect/statement.h"
#include "runtime/engine/key_order.h"
#include "runtime/engine/recordset.h"
#include "runtime/engine/row_order.h"
#include "runtime/engine/table_positions.h"

namespace runtime::engine {

struct Recordset::State {
  enum class Place { BeforeFirst, OnRow, PastLast };
  enum class Pending { None, Change, New };

  std::shared_ptr<Connection> connection;
  dialect::Selection source;
  std::vector<std::string> filters;  // all in force, as typed
  std::string sort;                  // in force, as typed
  std::string next_filter;
  std::string next_sort;

  KeyOrder rows;
  std::shared_ptr<const RowOrder> order;  // of what is filtered or sorted; else the walk is in table order
  TablePositions positions;               // of a walk in table order

  Place place = Place::PastLast;
  bool is_empty = true;  // no row was found at all: both before the first and past the last
  Row current;
  std::int64_t position = -1;  // in `order`, of the current row
  int steps = 0;

  Pending pending = Pending::None;
  std::vector<std::optional<Value>> changes;

  /// Reads the table anew and stands on the first row.
  void load();

  std::optional<Row> first_row();
  std::optional<Row> last_row();
  std::optional<Row> row_after();
  std::optional<Row> row_before();

  std::int64_t size();
  /// Nothing where no row is.
  std::optional<std::int64_t> key_at(std::int64_t wanted);

  /// `otherwise`: where the walk stands when there is no such row.
  void stand_on(std::optional<Row> row, Place otherwise);
  void go_to_end(std::optional<Row> row);

  int position_of(std::string_view name) const;
  std::size_t checked(int field) const;

  void begin_edit(Pending kind);
  void insert() const;
  void change() const;

  /// Set a field of the first `count` records and stand behind the last one that was set. They give how many
  /// there were before the end or before a value that the field can't take.
  std::int64_t set_in_list(const std::string& field, std::int64_t count,
                           const std::function<std::int64_t(std::int64_t)>& value);
  std::int64_t set_in_table(const std::string& field, std::int64_t count,
                            const std::function<std::int64_t(std::int64_t)>& value);

 private:
  std::optional<Row> listed_row(std::int64_t from, int step);
};

}  // namespace runtime::engine
