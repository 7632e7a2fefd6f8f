// An updatable walk over the rows of a table.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/value.h"

namespace runtime::engine {

class Connection;

/// What a field can take.
enum class FieldKind { Whole, Double, Single, Text, Any };

/// A record as a walk over many reads it: the fields of a statement under way, without a copy of each.
class RecordView {
 public:
  virtual ~RecordView() = default;
  virtual bool is_null(int position) const = 0;
  virtual std::int64_t whole(int position) const = 0;
  virtual double number(int position) const = 0;
  virtual Value value(int position) const = 0;
};

/// The rows of a table, or of those that meet a condition, in table order; or a list of them, when it is
/// filtered or sorted. It holds no rows, only the key of the current one; a record's fields are those read at
/// the last move, requery or update. A record that is gone from the table is stepped over by a walk through a
/// list.
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

  /// How many rows there are now; of a filtered or sorted walk, how many there were when it was made.
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
  /// current record is the one before it, or the new one when there was none at all. A fault drops the record
  /// under way. Faults: 3020 without AddNew() or Edit(), 3021 when the row is gone, and those of a write:
  /// 3026, 3027, 3049, 3260, 1032.
  void Update();
  /// Drops the record under way. Fault 3020 when there is none.
  void CancelUpdate();

  /// Reads the fields of the current record anew, for what was taken back since; past the last row when it is
  /// gone.
  void ReadAgain();

  FieldKind field_kind(int position) const;

  /// The position of the current record in this walk, from 0; -1 without one.
  std::int64_t AbsolutePosition() const;
  /// Moves to the record at a position from 0. Fault 3021 when there is none.
  void set_AbsolutePosition(std::int64_t position);
  /// The values, by position of field, of up to `count` records from `first` on, as they are stored now; all
  /// Null for one that is gone. No move, and nothing of an edit under way. Costs no more at the end of the
  /// walk than at its beginning.
  std::vector<std::vector<Value>> GetRows(std::int64_t first, int count) const;
  /// Shows each record, from the first to the last, to `visit`. As MoveFirst() and MoveNext() until the end,
  /// at the cost of one statement; `visit` may not change the table. Tells the workspace's progress.
  void for_each(const std::function<void(const RecordView&)>& visit) const;
  /// Sets a whole-number field of the records at positions 0 to `count` - 1 to what `value` gives for the
  /// position. The outcome is that of MoveFirst() and, `count` times, Edit(), set(), Update(), MoveNext();
  /// with fewer records that ends with Fault 3021, and those that there are stay changed. Leaves the walk on
  /// the record behind the last one that was changed. Tells the workspace's progress.
  void set_each(std::string_view field, std::int64_t count,
                const std::function<std::int64_t(std::int64_t position)>& value);

  /// What the next OpenRecordset() narrows by: a condition as an analyst types it. Empty for none.
  void set_Filter(std::string_view condition);
  /// What the next OpenRecordset() orders by: "a, b desc". Empty for none.
  void set_Sort(std::string_view columns);
  /// A new recordset of the records of this one that meet its Filter, in the order of its Sort: Null first,
  /// texts without regard to case, ties in table order. What this one was narrowed by stays in force and is
  /// asked again of the fields as they are now; what it was ordered by stays in force until another Sort.
  /// Rows and order stand until a requery, whatever is changed or added meanwhile. Faults: 3075, 3061, 3085,
  /// 3464, those of evaluating the condition, 3026. Tells the workspace's progress.
  Recordset OpenRecordset() const;
  /// Another walk over the same records in the same order, on no record yet (moves start it). It outlives
  /// this one.
  Recordset Clone() const;

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
