// A forward walk over many rows; for this room only.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "runtime/engine/row_order.h"
#include "runtime/engine/table_shape.h"

namespace runtime::engine {

/// Shows each row of a query to `visit`, and tells the connection's progress by `total`, a guess of how many
/// they are. `query` gives the key, which is passed over, and then the fields.
void walk_rows(Connection& connection, const std::string& query, const std::vector<Field>& fields,
               std::int64_t total, const std::function<void(const RecordView&)>& visit);

/// As walk_rows(), for the rows of a list; `query` gives the row of a key. What is gone is passed over.
void walk_list(Connection& connection, const std::string& query, const std::vector<Field>& fields,
               const RowOrder& order, const std::function<void(const RecordView&)>& visit);

}  // namespace runtime::engine
