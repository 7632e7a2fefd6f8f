// The data control: a recordset on one table, and the boxes that show and store the fields of its record.
#pragma once

#include <string>
#include <vector>

#include "runtime/engine/database.h"
#include "runtime/engine/recordset.h"
#include "runtime/forms/control.h"
#include "runtime/value.h"

namespace runtime::forms {

/// A control that shows a field of a data control's record.
class Bound {
 public:
  virtual ~Bound() = default;
  /// Shows the stored value; the box counts as unchanged afterwards.
  virtual void show_value(const Value& value) = 0;
  /// What the box would store.
  virtual Value held_value() const = 0;
  /// A box stores by its own flag and never by comparing: several boxes may show one field.
  bool changed = false;
};

class DBGrid;

class DataControl : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::Data; }

  void attach(Bound& box, const char* field) { boxes_.push_back({&box, field}); }
  void attach(DBGrid& grid);
  /// Opens the project database by its bare name, so the current directory decides, and fills boxes and
  /// grids.
  void open();
  /// Stores the edits of its grids, then the boxes that were changed, and only their fields. Without a record
  /// there is nowhere to store.
  void post();
  /// What it stored in the handler that has ended was kept, or taken back. Then its record and grids are as
  /// the table is, and the boxes hold what they would still store.
  void writes_ended(bool kept);
  /// Stores the edits of its grids, reads the table anew and puts the stored values back into the boxes. One
  /// that was handed its recordset keeps it as it is.
  void Refresh();
  /// Stores what the boxes hold, moves to the first record and fills the boxes from it.
  void MoveFirst();

  /// A field of the current record, as it was read at the last move or refresh.
  Value field(const char* name) const { return recordset_.field(name); }
  Value field(int position) const { return recordset_.field(position); }
  int field_count() const { return recordset_.field_count(); }
  /// For code that moves or changes the records; the grids follow.
  engine::Recordset& recordset();
  /// Hands over other records; the grids store their edits into the old ones before, and show the new ones,
  /// as the boxes do.
  void set_recordset(engine::Recordset recordset);
  /// 0 table, 1 dynaset. Nothing makes it another than a dynaset.
  int recordset_type() const { return 1; }
  void close_database();

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void created(const ControlDesign& design) override {
    if (design.binding.source != nullptr) table_ = design.binding.source;
  }

 private:
  struct BoundField {
    Bound* box;
    const char* field;
  };

  bool has_record() const;
  void post_grids();
  void fill();
  void store_changed();

  std::string table_;
  engine::Database database_;
  engine::Recordset recordset_;
  std::vector<BoundField> boxes_;
  std::vector<DBGrid*> grids_;
  std::vector<Bound*> stored_;  // by the handler under way
};

}  // namespace runtime::forms
