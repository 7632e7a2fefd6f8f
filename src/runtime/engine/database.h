// A handle on the open project database.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "runtime/engine/recordset.h"

namespace runtime::engine {

class Connection;

/// The definition of a table whose rows lie in a text file.
struct TableDef {
  std::string Name;
  /// "text; database=" and the directory that holds the file and the "schema.ini" that describes it.
  std::string Connect;
  /// The file's name.
  std::string SourceTableName;
};

/// A range of whole numbers that a key column is walked through.
struct KeyRange {
  std::string_view column;
  std::int64_t from = 0;
  std::int64_t to = 0;
};

/// Cheap to copy. The file is closed with the last handle on it and the last recordset opened from one.
/// A handle that is not set faults with 91 at every use.
class Database {
 public:
  Database() = default;

  /// Runs one statement that gives no rows: DELETE, DROP TABLE, CREATE TABLE, INSERT INTO .. SELECT, UPDATE.
  /// Faults: 3075, 3144, 3129 (syntax), 3061 (unknown name), 3078 (unknown table), 3010 (table exists),
  /// 3421 (wrong type), and those of a write: 3026, 3027, 3049, 3260, 1032.
  void Execute(std::string_view sql);

  /// As execute(), for a statement that holds what a person typed: nothing but `table` may be read or
  /// written.
  void ExecuteOn(std::string_view table, std::string_view sql);

  /// A definition without connect string or source yet; nothing of it is in the database.
  TableDef CreateTableDef(std::string_view name) const;
  /// Puts the definition into the database. From here on Execute() reads the table and appends to it like any
  /// other, as "schema.ini" tells at that moment; "DROP TABLE" removes the definition and leaves the file.
  /// Faults: 3010 the name is taken, 3044 no such directory. A file or description that does not fit is told
  /// when the table is used: 3011 no such file, 3625 no description, 3349 a line that does not fit, with file
  /// and line. A statement that faults leaves the file as it was.
  void AppendTableDef(const TableDef& definition);

  /// As "update `table` set `field` = `value` where `keys[0].column` = .. and `keys[1].column` = ..", a
  /// statement for each combination of the keys, the first key outermost, at the cost of one statement.
  /// `value` is an expression as an analyst types it, and may name the table's fields; `field` is none of the
  /// keys. When it faults for a combination, those before it are done. Faults: 3144 no single expression,
  /// 3061, 3085, those of working it out, 3421 and those of a write; a full disk changes nothing. Tells the
  /// workspace's progress.
  void Fill(std::string_view table, std::string_view field, std::string_view value,
            std::span<const KeyRange> keys);

  /// Opens a table by its name, or "select * from T [where ...]". Faults: 3078, 3061, 3075.
  Recordset OpenRecordset(std::string_view source);

  void Close();
  bool is_set() const { return connection_ != nullptr; }

 private:
  friend class Workspace;
  explicit Database(std::shared_ptr<Connection> connection);

  const std::shared_ptr<Connection>& connection() const;

  std::shared_ptr<Connection> connection_;
};

}  // namespace runtime::engine
