// A data grid without its screen: the records, the current cell, the edit under way, and when it is stored.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "runtime/engine/recordset.h"
#include "runtime/forms/grid/cell_text.h"
#include "runtime/forms/grid/row_window.h"
#include "runtime/value.h"

namespace runtime::forms::grid {

struct Cell {
  std::int64_t row = 0;
  int column = 0;
  bool operator==(const Cell&) const = default;
};

/// Rows and columns count from 0. An edit goes from the open cell to the row's buffer when the current cell
/// moves on, and from the buffer to the table when the current row changes. What can't be stored, a cell's
/// text or a row, stays as it is and where it is: the call faults and nothing has moved.
class Sheet {
 public:
  Sheet();
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;

  /// `records` stay the caller's, and may be closed or replaced as long as records_changed() is told.
  void attach(engine::Recordset& records) { records_ = &records; }
  /// There are other records, or the same were read anew: drops the edit, counts them, stands on the current
  /// one.
  void records_changed();
  /// The records are gone for good.
  void forget_records();
  /// What is shown is read anew; the edit stays.
  void read_anew() { window_.forget(); }

  std::int64_t rows() const { return rows_; }
  int columns() const { return static_cast<int>(headings_.size()); }
  const std::string& heading(int column) const { return headings_[static_cast<std::size_t>(column)]; }
  engine::FieldKind kind(int column) const { return kinds_[static_cast<std::size_t>(column)]; }

  /// A cell as the table has it, in the current row as the buffer has it. Null where there is no such cell.
  Value value(Cell cell);
  /// As value(), but in the open cell what is typed there; a text that the column can't take as a text.
  Value value_with_edit(int column);

  Cell current() const { return current_; }
  /// Makes another cell the current one. Faults: Refusal of the typed text, and those of post().
  void go_to(Cell cell);

  bool editing() const { return edit_.has_value(); }
  bool modified() const { return edit_ && edit_->modified; }
  const std::string& edit_text() const { return edit_->text; }
  bool row_changed() const { return !changes_.empty(); }
  /// Opens the current cell with what it shows; nothing when it is open already or there is none.
  void open_edit();
  /// What is now typed in the open cell.
  void type(const std::string& text);
  void set_modified(bool modified);
  /// Why what is typed in the open cell can't be stored; nothing when it can.
  std::optional<Refusal> refusal() const;

  /// Moves an open edit into the row's buffer and closes it. Throws Refusal.
  void keep_edit();
  /// Stores the open edit and the row's buffer. Faults: Refusal, and those of Recordset::Update().
  void post();
  /// Closes the cell as it was; where none is open drops the row's buffer.
  void step_back();
  void drop_edit();
  /// What the handler has posted is durable, or was taken back: then the row that was posted last is edited
  /// again, unless another edit is under way.
  void writes_ended(bool kept);

  /// Code has moved the records or written to them: reads anew, and stands on their current row unless a
  /// row is being edited.
  void follow_records();
  /// The records were moved or written to on the grid's own behalf: puts them back on the current row.
  void stand_on_current();
  /// Only where there are rows.
  engine::Recordset& records() { return *records_; }

 private:
  struct Edit {
    std::string text;
    bool modified = false;
  };

  engine::Recordset* records_ = nullptr;
  RowWindow window_;
  std::int64_t rows_ = 0;
  std::vector<std::string> headings_;
  std::vector<engine::FieldKind> kinds_;
  Cell current_;
  std::optional<Edit> edit_;
  std::map<int, Value> changes_;  // of the current row, by column
  struct Posted {
    Cell at;
    std::map<int, Value> changes;
  };
  std::optional<Posted> posted_;  // by the handler under way
};

}  // namespace runtime::forms::grid
