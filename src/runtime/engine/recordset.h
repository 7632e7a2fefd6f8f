// An updatable walk over the rows of a table.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "runtime/value.h"

namespace runtime::engine {

class Connection;

/// The rows of a table, or of those that meet a condition, in table order. It holds no rows, only the key of
/// the current one; a record's fields are those read at the last move, requery or update.
///
/// Opens on the first row when there is one. Movable; one that is not set, or closed, faults with 91 at every
/// use. Field names are matched without regard to case, positions count from 0; a name or position that does
/// not exist is Fault 3265.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;

  bool is_set() const { return state_ != nullptr; }
  bool eof() const;  ///< Past the last row, or there is none.
  bool bof() const;  ///< Before the first row, or there is none.

  /// Moves drop an edit under way. Fault 3021 when there is no row, or when already past that end.
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();

  /// How many rows there are; counts them at each call.
  std::int64_t RecordCount();

  int field_count() const;
  const std::string& field_name(int position) const;

  /// The field of the current record; in an edit, what was set. Fault 3021 without a current record.
  Value field(std::string_view name) const;
  Value field(int position) const;

  /// Begins a new record, all Null.
  void AddNew();
  /// Begins a change of the current record. Fault 3021 without one.
  void Edit();
  /// Sets a field of the record under way. Faults: 3020 without AddNew() or Edit(), 3421 when the field
  /// cannot take the value: a word or an infinity in a number field, a fraction in a whole-number field, a
  /// number out of range.
  void set(std::string_view name, const Value& value);
  void set(int position, const Value& value);
  /// Stores the fields that were set, no others. After an edit the fields are as stored; after AddNew() the
  /// current record is the one before it, or the new one when there was none at all. Faults: 3020 without
  /// AddNew() or Edit(), 3021 when the row is gone, and those of a write: 3026, 3027, 3049, 3260, 1032.
  void Update();
  /// Drops the record under way. Fault 3020 when there is none.
  void CancelUpdate();

  /// Reads the table anew and moves to the first row.
  void Requery();
  void Close();

 private:
  friend class Database;
  struct State;
  explicit Recordset(std::unique_ptr<State> state);
  static Recordset open(const std::shared_ptr<Connection>& connection, std::string_view source);

  State& state() const;

  std::unique_ptr<State> state_;
};

}  // namespace runtime::engine
