// A handle on the open project database.
#pragma once

#include <memory>
#include <string_view>

#include "runtime/engine/recordset.h"

namespace runtime::engine {

class Connection;

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
