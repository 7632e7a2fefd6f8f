// The lines of the distance and time files: a pair of zones and one value.
#pragma once

#include <deque>
#include <ostream>
#include <string>
#include <string_view>

#include "runtime/engine/recordset.h"

namespace database {

/// One file of a value column. Lines are gathered and written in large pieces. A stream that could not take
/// one is Fault 61 or 57 with the name.
class ValueLines {
 public:
  /// `position`: the value's field in a record.
  ValueLines(std::ostream& stream, std::string name, int position);

  /// "1 2 0.5" and a line end. `pair` is what stands before the value, with its blank. A Null is nothing.
  void add(std::string_view pair, const runtime::engine::RecordView& record);
  /// Writes what is still gathered. Called once, at the end.
  void finish();

 private:
  std::ostream& stream_;
  std::string name_;
  int position_;
  std::string gathered_;
};

/// Puts "1 2 " for the first two fields of a record in the place of `line`.
void set_zone_pair(std::string& line, const runtime::engine::RecordView& record);

/// Adds every row to every file, in one walk, and finishes the files.
void write_value_lines(std::deque<ValueLines>& files, const runtime::engine::Recordset& rows);

}  // namespace database
