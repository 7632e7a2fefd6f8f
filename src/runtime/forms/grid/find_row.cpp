#include "runtime/forms/grid/find_row.h"

#include <chrono>

namespace runtime::forms::grid {

namespace {

using Keys = std::vector<std::int64_t>;

constexpr int rows_at_once = 4096;
constexpr auto longest_search = std::chrono::seconds(2);
// So many are looked at however slow the machine is.
constexpr std::int64_t rows_in_any_case = 100000;

std::int64_t whole(const Value& value) {
  const auto* number = std::get_if<std::int64_t>(&value);
  return number == nullptr ? 0 : *number;
}

Keys keys_at(Sheet& sheet, std::int64_t row, std::size_t count) {
  Keys keys;
  for (std::size_t column = 0; column < count; ++column) {
    keys.push_back(whole(sheet.value({row, static_cast<int>(column)})));
  }
  return keys;
}

/// Where the keys stand when every combination has a row, counted from 1 and the last key fastest. None when
/// a key lies beyond the last row's.
std::int64_t place_among_all(const Keys& keys, const Keys& last) {
  std::int64_t place = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (keys[i] < 1 || keys[i] > last[i]) return -1;
    place = place * last[i] + keys[i] - 1;
  }
  return place;
}

std::int64_t place_in_ascending_order(Sheet& sheet, const Keys& keys) {
  std::int64_t low = 0;
  std::int64_t high = sheet.rows();
  while (low < high) {
    const std::int64_t middle = low + (high - low) / 2;
    if (keys_at(sheet, middle, keys.size()) < keys) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

Found looked_for(Sheet& sheet, const Keys& keys) {
  const auto start = std::chrono::steady_clock::now();
  std::int64_t first = 0;
  while (first < sheet.rows() &&
         (first < rows_in_any_case || std::chrono::steady_clock::now() - start < longest_search)) {
    for (const Row& row : sheet.records().GetRows(first, rows_at_once)) {
      bool same = true;
      for (std::size_t i = 0; same && i < keys.size(); ++i) same = whole(row[i]) == keys[i];
      if (same) return {first, 0};
      ++first;
    }
  }
  return {std::nullopt, first};
}

}  // namespace

int key_columns(const Sheet& sheet) {
  const auto is_key = [&sheet](int column) {
    return column < sheet.columns() && sheet.kind(column) == engine::FieldKind::Whole;
  };
  if (!is_key(0)) return 0;
  return is_key(1) ? 2 : 1;
}

Found find_row(Sheet& sheet, const Keys& keys) {
  if (sheet.rows() == 0) return {};
  const Keys last = keys_at(sheet, sheet.rows() - 1, keys.size());
  const auto is_at = [&](std::int64_t row) {
    return row >= 0 && row < sheet.rows() && keys_at(sheet, row, keys.size()) == keys;
  };
  const std::int64_t guess = place_among_all(keys, last);
  if (is_at(guess)) return {guess, 0};
  const std::int64_t place = place_in_ascending_order(sheet, keys);
  if (is_at(place)) return {place, 0};
  return looked_for(sheet, keys);
}

}  // namespace runtime::forms::grid
