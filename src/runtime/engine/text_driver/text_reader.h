// Reads the rows of a text file one after the other; for this room only.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/text_driver/text_cell.h"
#include "runtime/engine/text_driver/text_layout.h"

namespace runtime::engine {

/// Lines end in LF or CR LF, the last one perhaps in nothing. An empty first line is passed over, and so is
/// then the heading. Blanks around a field count for nothing; a field that is blank or that the line does not
/// hold is Null. Memory does not grow with the file: a line may have 65,535 bytes.
class TextReader {
 public:
  /// Fault 3011 when there is no such file. `layout` must outlive the reader.
  TextReader(std::filesystem::path file, const TextLayout& layout);

  /// Reads the next row; false at the end. Fault 3349: a line that does not fit.
  bool next();
  /// A field of the row read last, by its position from 0. A text lives until the next row.
  const TextCell& cell(std::size_t column) const { return cells_[column]; }
  /// The number of the line read last, from 1.
  std::int64_t line() const { return line_; }

  /// How far the reader is, in bytes.
  std::int64_t done() const { return passed_ + static_cast<std::int64_t>(begin_); }
  std::int64_t total() const { return total_; }

 private:
  bool next_line();
  bool fill();
  void split_fixed();
  void split_at_commas();
  void read_quoted(std::size_t& place, std::string& text) const;
  TextCell cell_of(const TextColumn& column, std::string_view field) const;
  [[noreturn]] void fault(const std::string& what) const;

  std::filesystem::path file_;
  const TextLayout& layout_;
  std::ifstream stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // what is read and not yet handed out
  std::size_t end_ = 0;
  std::int64_t passed_ = 0;  // bytes of the file before the buffer
  std::int64_t total_ = 0;
  std::int64_t line_ = 0;
  std::string_view text_;  // the line without its end
  std::vector<TextCell> cells_;
  std::vector<std::string> unquoted_;  // texts in which quotes were doubled
};

}  // namespace runtime::engine
