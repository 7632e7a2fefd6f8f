#include "runtime/forms/grid/block.h"

#include "runtime/forms/grid/cell_text.h"

namespace runtime::forms::grid {

namespace {

std::string counted(std::int64_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

void refuse_what_does_not_fit(const Sheet& sheet, const Texts& texts, std::int64_t first,
                              std::span<const int> columns) {
  const auto rows = static_cast<std::int64_t>(texts.size());
  if (rows == 0) throw Refusal("There is nothing to paste.");
  if (rows > sheet.rows() - first) {
    throw Refusal("Nothing was pasted. The block has " + counted(rows, "row") +
                  ", but from the current row on there " + (sheet.rows() - first == 1 ? "is " : "are ") +
                  counted(sheet.rows() - first, "row") + ".");
  }
  const std::size_t width = texts.front().size();
  if (width > columns.size()) {
    throw Refusal("Nothing was pasted. The block has " + counted(static_cast<std::int64_t>(width), "column") +
                  ", but from the current column on there " + (columns.size() == 1 ? "is " : "are ") +
                  counted(static_cast<std::int64_t>(columns.size()), "column") + ".");
  }
  for (const auto& row : texts) {
    if (row.size() != width) throw Refusal("Nothing was pasted. The rows of the block are not equally long.");
  }
  refuse_too_many(rows, static_cast<std::int64_t>(width));
}

std::vector<Row> values_of(const Sheet& sheet, const Texts& texts, std::int64_t first,
                           std::span<const int> columns) {
  std::vector<Row> rows;
  rows.reserve(texts.size());
  for (const auto& texts_of_row : texts) {
    Row row;
    for (std::size_t i = 0; i < texts_of_row.size(); ++i) {
      const int column = columns[i];
      try {
        row.push_back(typed_value(texts_of_row[i], sheet.kind(column), sheet.heading(column)));
      } catch (const Refusal& refusal) {
        const auto number = first + static_cast<std::int64_t>(rows.size()) + 1;
        throw Refusal("Nothing was pasted. Row " + std::to_string(number) + ": " + refusal.words);
      }
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

void store(engine::Recordset& records, const std::vector<Row>& rows, std::int64_t first,
           std::span<const int> columns) {
  for (const Row& row : rows) {
    records.set_AbsolutePosition(first++);
    records.Edit();
    for (std::size_t i = 0; i < row.size(); ++i) records.set(columns[i], row[i]);
    records.Update();
  }
}

}  // namespace

void refuse_too_many(std::int64_t rows, std::int64_t columns) {
  if (columns == 0 || rows <= most_cells / columns) return;
  throw Refusal("The block has " + counted(rows, "row") + " and " + counted(columns, "column") +
                ". At most " + std::to_string(most_cells) + " cells can be taken at once.");
}

std::string copied_block(Sheet& sheet, std::int64_t first, std::int64_t last, std::span<const int> columns) {
  refuse_too_many(last - first + 1, static_cast<std::int64_t>(columns.size()));
  std::string text;
  for (std::int64_t row = first; row <= last; ++row) {
    if (row > first) text += '\n';
    for (const int column : columns) {
      if (column != columns.front()) text += '\t';
      text += full_text(sheet.value({row, column}));
    }
  }
  return text;
}

Texts cells_of(std::string_view text) {
  Texts rows;
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    std::vector<std::string> row;
    for (auto tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t')) {
      row.emplace_back(line.substr(0, tab));
      line.remove_prefix(tab + 1);
    }
    row.emplace_back(line);
    rows.push_back(std::move(row));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return rows;
}

void paste_block(Sheet& sheet, engine::Workspace& workspace, const Texts& texts, std::int64_t first,
                 std::span<const int> columns) {
  // A refused block changes nothing, not even what the edited row's buffer holds.
  refuse_what_does_not_fit(sheet, texts, first, columns);
  const auto rows = values_of(sheet, texts, first, columns);
  sheet.post();
  workspace.BeginTrans();
  try {
    store(sheet.records(), rows, first, columns);
  } catch (...) {
    workspace.Rollback();
    sheet.stand_on_current();
    throw;
  }
  workspace.CommitTrans();
  sheet.stand_on_current();
}

}  // namespace runtime::forms::grid
