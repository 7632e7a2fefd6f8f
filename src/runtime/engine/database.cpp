#include "runtime/engine/database.h"

#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/statement.h"
#include "runtime/fault.h"

namespace runtime::engine {

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

const std::shared_ptr<Connection>& Database::connection() const {
  if (!connection_) throw Fault(91);
  return connection_;
}

void Database::Execute(std::string_view sql) {
  auto& open = *connection();
  const auto statement = dialect::statement_to_sql(sql);
  open.before_write();
  open.run(statement);
}

void Database::ExecuteOn(std::string_view table, std::string_view sql) {
  auto& open = *connection();
  const auto statement = dialect::statement_to_sql(sql);
  open.before_write();
  open.forget_statements();  // an idle one was compiled without the fence
  const Fence fence(open, table);
  open.run(statement);
}

Recordset Database::OpenRecordset(std::string_view source) {
  return Recordset::open(connection(), source);
}

void Database::Close() {
  connection();
  connection_.reset();
}

}  // namespace runtime::engine
