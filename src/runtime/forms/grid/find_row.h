// Finding the row of a sheet by the whole numbers in its leading columns.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "runtime/forms/grid/sheet.h"

namespace runtime::forms::grid {

/// How many of the leading columns are keys: both of two whole-number columns, else the first one if it is a
/// whole number.
int key_columns(const Sheet& sheet);

struct Found {
  std::optional<std::int64_t> row;
  /// Without a row: how many rows were looked at one by one before the time was up.
  std::int64_t looked_at = 0;
};

/// The row with these keys. In a table of all pairs in their order the place is known; in any ascending order
/// it is soon found; in another order rows are looked at one by one for some two seconds.
Found find_row(Sheet& sheet, const std::vector<std::int64_t>& keys);

}  // namespace runtime::forms::grid
