// Plain-text tables for reports.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace model {

/// A column's heading of two lines; words stand at the left, numbers at the right.
struct Column {
  enum class Align { Left, Right };

  std::string top;
  std::string bottom;
  Align align = Align::Right;
};

/// A table whose columns are as wide as their longest text, two blanks apart.
class Table {
 public:
  explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// `cells` has one text for each column.
  void add_row(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

  /// A rule across the table, as before a row of totals.
  void add_rule() { rows_.emplace_back(); }

  /// The heading, a rule and the rows; every line ends in "\n" and in no blank.
  std::string text() const;

 private:
  std::vector<std::size_t> widths() const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

/// "title" and a line of `line` as long as it.
std::string underlined(std::string_view title, char line);

/// "label" filled up to the values' column, then `value`.
std::string labelled(std::string_view label, std::string_view value);

}  // namespace model
