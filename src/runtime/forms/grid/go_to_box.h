// The box that asks for a row.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace runtime::forms::grid {

/// A row by its number, from 1, or by the keys in its leading columns.
struct RowWish {
  std::optional<std::int64_t> number;
  std::vector<std::int64_t> keys;
};

/// "GoTo": asks for a row number in "GoToRow", and for a number in "GoToKey(0)" and so on for each of
/// `key_names`. Nothing when it is cancelled or nothing was entered. Keys count when all were entered; where
/// one is missing and no row number is there, it says so by `tell` and stays.
std::optional<RowWish> ask_for_row(QWidget* parent, const std::vector<std::string>& key_names,
                                   const std::function<void(const std::string&)>& tell);

}  // namespace runtime::forms::grid
