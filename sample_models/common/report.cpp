#include "common/report.h"

#include <algorithm>
#include <numeric>

namespace model {

namespace {

constexpr std::size_t gap = 2;
constexpr std::size_t label_width = 28;

std::string padded(const std::string& cell, std::size_t width, Column::Align align) {
  const std::string blanks(width - cell.size(), ' ');
  return align == Column::Align::Left ? cell + blanks : blanks + cell;
}

std::string closed(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line + '\n';
}

}  // namespace

std::vector<std::size_t> Table::widths() const {
  std::vector<std::size_t> result;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = std::max(columns_[i].top.size(), columns_[i].bottom.size());
    for (const auto& row : rows_) width = std::max(width, row.empty() ? 0 : row[i].size());
    result.push_back(width);
  }
  return result;
}

std::string Table::text() const {
  const auto width = widths();
  const auto line_of = [&](auto&& cell) {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      line += padded(cell(i), width[i], columns_[i].align) + std::string(gap, ' ');
    }
    return closed(line);
  };
  const auto whole_width = std::accumulate(width.begin(), width.end(), gap * (width.size() - 1));
  const auto rule = std::string(whole_width, '-') + '\n';
  auto text = line_of([this](std::size_t i) { return columns_[i].top; }) +
              line_of([this](std::size_t i) { return columns_[i].bottom; }) + rule;
  for (const auto& row : rows_) {
    text += row.empty() ? rule : line_of([&row](std::size_t i) { return row[i]; });
  }
  return text;
}

std::string underlined(std::string_view title, char line) {
  return std::string(title) + '\n' + std::string(title.size(), line) + '\n';
}

std::string labelled(std::string_view label, std::string_view value) {
  std::string text(label);
  if (text.size() < label_width) text.resize(label_width, ' ');
  return closed(text + std::string(value));
}

}  // namespace model
