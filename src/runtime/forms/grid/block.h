// Blocks of cells as tab-separated text, as spreadsheets copy and paste them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/workspace.h"
#include "runtime/forms/grid/sheet.h"

namespace runtime::forms::grid {

/// A block with more cells is refused: it would fill the memory.
inline constexpr std::int64_t most_cells = 1'000'000;

/// Throws Refusal when a block has too many cells.
void refuse_too_many(std::int64_t rows, std::int64_t columns);

/// Cells as texts, row by row.
using Texts = std::vector<std::vector<std::string>>;

/// The cells of rows `first` to `last` in `columns`, with all digits: cells parted by tabs, rows by line
/// feeds. Throws Refusal when there are too many.
std::string copied_block(Sheet& sheet, std::int64_t first, std::int64_t last, std::span<const int> columns);

/// The cells of a copied text. One line end at its end is no row.
Texts cells_of(std::string_view text);

/// Stores a block from row `first` on, its columns in the first ones of `columns`: all of it or nothing, in a
/// transaction level of its own. What was being edited is stored before. Throws Refusal when the block does
/// not fit or holds what a column can't take, and the faults of Sheet::post().
void paste_block(Sheet& sheet, engine::Workspace& workspace, const Texts& texts, std::int64_t first,
                 std::span<const int> columns);

}  // namespace runtime::forms::grid
