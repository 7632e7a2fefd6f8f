#include "runtime/forms/grid/row_window.h"

#include <algorithm>

namespace runtime::forms::grid {

const Row* RowWindow::row(std::int64_t position) {
  if (position < 0) return nullptr;
  const std::int64_t number = position / block_rows;
  const auto known = std::find_if(blocks_.begin(), blocks_.end(),
                                  [number](const Block& block) { return block.number == number; });
  if (known != blocks_.end()) {
    std::rotate(known, known + 1, blocks_.end());
  } else {
    Block block{number, read_(number * block_rows, block_rows)};
    if (blocks_.size() == most_blocks) blocks_.erase(blocks_.begin());
    blocks_.push_back(std::move(block));
  }
  const auto& rows = blocks_.back().rows;
  const auto place = static_cast<std::size_t>(position % block_rows);
  return place < rows.size() ? &rows[place] : nullptr;
}

int RowWindow::held() const {
  std::size_t rows = 0;
  for (const Block& block : blocks_) rows += block.rows.size();
  return static_cast<int>(rows);
}

}  // namespace runtime::forms::grid
