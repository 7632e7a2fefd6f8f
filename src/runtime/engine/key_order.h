// A walk over rows by key alone; for this room only.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/row_order.h"
#include "runtime/engine/table_shape.h"

namespace runtime::engine {

struct Row {
  std::int64_t key = 0;
  std::vector<Value> values;
};

/// Finds rows of a table in table order. Each search is a statement of its own that ends at once, so that
/// nothing is under way while the table is changed or dropped.
class KeyOrder {
 public:
  KeyOrder() = default;
  /// `condition` is in the store's language; empty for all rows.
  KeyOrder(const std::string& table, const std::string& condition, std::vector<Field> fields);

  const std::vector<Field>& fields() const { return fields_; }
  const std::string& condition() const { return condition_; }

  std::optional<Row> first(Connection& connection) const;
  std::optional<Row> last(Connection& connection) const;
  std::optional<Row> after(Connection& connection, std::int64_t key) const;
  std::optional<Row> before(Connection& connection, std::int64_t key) const;
  /// The row of a key, whether it meets the condition or not.
  std::optional<Row> at(Connection& connection, std::int64_t key) const;
  std::int64_t count(Connection& connection) const;
  /// Shows each row. Tells the progress.
  void for_each(Connection& connection, const std::function<void(const RecordView&)>& visit) const;
  void for_each(Connection& connection, const RowOrder& order,
                const std::function<void(const RecordView&)>& visit) const;

 private:
  std::optional<Row> find(Connection& connection, const std::string& sql,
                          std::optional<std::int64_t> key) const;

  std::string condition_;
  std::vector<Field> fields_;
  std::string first_, last_, after_, before_, at_, count_, all_, last_key_;
};

}  // namespace runtime::engine
