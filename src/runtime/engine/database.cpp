#include "runtime/engine/database.h"

#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/statement.h"
#include "runtime/engine/fill.h"
#include "runtime/engine/table_links.h"
#include "runtime/fault.h"

namespace runtime::engine {

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

const std::shared_ptr<Connection>& Database::connection() const {
  if (!connection_) throw Fault(91);
  return connection_;
}

void Database::Execute(std::string_view sql) {
  auto& open = *connection();
  const auto statement = dialect::translated(sql);
  open.before_write();
  const auto& changed = statement.tables.front();
  if (statement.verb == dialect::Verb::Drop && is_link(open, changed)) return drop_link(open, changed);
  if (statement.verb == dialect::Verb::Create && is_link(open, changed)) throw Fault(3010, changed);
  ServedLinks links(open, statement.tables);
  open.run(statement.sql);
  if (statement.verb == dialect::Verb::Insert) open.row_counts().note_insertion(changed);
  links.finish();
  // Room that was freed in a transaction still under way goes to the journal page by page before its next
  // use, which would double the time of filling the table that takes the place of a full one.
  if (statement.verb == dialect::Verb::Drop) open.commit_unguarded();
}

void Database::ExecuteOn(std::string_view table, std::string_view sql) {
  auto& open = *connection();
  const auto statement = dialect::statement_to_sql(sql);
  open.before_write();
  open.forget_statements();  // an idle one was compiled without the fence
  const Fence fence(open, table);
  open.run(statement);
}

TableDef Database::CreateTableDef(std::string_view name) const {
  connection();
  return {std::string(name), {}, {}};
}

void Database::AppendTableDef(const TableDef& definition) {
  append_link(*connection(), definition);
}

void Database::Fill(std::string_view table, std::string_view field, std::string_view value,
                    std::span<const KeyRange> keys) {
  fill(*connection(), std::string(table), field, value, keys);
}

Recordset Database::OpenRecordset(std::string_view source) {
  return Recordset::open(connection(), source);
}

void Database::Close() {
  connection();
  connection_.reset();
}

}  // namespace runtime::engine
