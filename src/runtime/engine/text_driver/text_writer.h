// Appends rows to a text file; for this room only.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "runtime/engine/text_driver/text_cell.h"
#include "runtime/engine/text_driver/text_layout.h"

namespace runtime::engine {

/// Puts `number` behind `line`, right-aligned in `width` columns: in joined form where that fits, else with
/// as many digits behind the point as there is room for. False when its whole part has no room.
bool append_in_width(std::string& line, double number, std::size_t width);

/// Lines end in CR LF. Fixed columns: numbers right-aligned, texts left-aligned, Null as blanks. Else numbers
/// in joined form, texts in quotes, Null as nothing, commas between. An empty file gets the heading first.
class TextWriter {
 public:
  /// Faults: 3011 no such file, 75 it cannot be written. `layout` must outlive the writer.
  TextWriter(std::filesystem::path file, const TextLayout& layout);
  /// Without finish() the file is cut back to what it was.
  ~TextWriter();
  TextWriter(const TextWriter&) = delete;
  TextWriter& operator=(const TextWriter&) = delete;

  /// One cell for each column, each of its column's kind or Null. Faults: 3421 of another kind, 3349 no room
  /// for a value, and those of a write: 61, 57.
  void append(std::span<const TextCell> row);
  /// Sees to it that all lines are in the file. Faults: 61, 57.
  void finish();

 private:
  void append_heading();
  void append_cell(const TextColumn& column, const TextCell& cell);
  void append_whole(const TextColumn& column, std::int64_t number);
  void append_number(const TextColumn& column, double number);
  void append_text(const TextColumn& column, std::string_view text);
  void flush();
  [[noreturn]] void refuse(const TextColumn& column) const;

  std::filesystem::path file_;
  const TextLayout& layout_;
  std::ofstream stream_;
  std::uintmax_t size_before_ = 0;
  std::int64_t line_ = 0;  // that this writer has begun
  std::string lines_;      // not yet in the file
  bool is_finished_ = false;
};

}  // namespace runtime::engine
