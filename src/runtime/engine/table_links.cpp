#include "runtime/engine/table_links.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/table_shape.h"
#include "runtime/engine/text_driver/linked_table.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

namespace fs = std::filesystem;

constexpr const char* links_table = "table_links";

// What stands behind "database=": all of it, because a directory's name may hold a semicolon.
std::string directory_in(std::string_view connect) {
  constexpr std::string_view key = "database=";
  for (std::size_t place = 0; place < connect.size();) {
    auto part = connect.substr(place);
    part.remove_prefix(std::min(part.find_first_not_of(' '), part.size()));
    if (same_name(part.substr(0, key.size()), key)) return std::string(part.substr(key.size()));
    place = std::min(connect.find(';', place), connect.size()) + 1;
  }
  return {};
}

fs::path found(const Connection& connection, const std::string& name) {
  return connection.resolve_name ? connection.resolve_name(name) : fs::path(name);
}

std::optional<TableDef> link_named(Connection& connection, std::string_view name) {
  if (!connection.has_table(links_table)) return std::nullopt;
  Statement find(connection, "SELECT name, connect, source FROM table_links WHERE name = ?1 COLLATE NOCASE");
  if (!find.bind(1, std::string(name)).step()) return std::nullopt;
  return TableDef{find.text(0), find.text(1), find.text(2)};
}

// As many as the store has given keys to: counting them would take a tenth of the time of the work itself.
std::int64_t most_rows_in(Connection& connection, std::span<const std::string> tables) {
  std::int64_t most = 0;
  for (const auto& table : tables) {
    if (!connection.has_table(table)) continue;
    Statement last(connection, "SELECT max(rowid) FROM " + dialect::quoted_name(table));
    if (last.step()) most = std::max(most, last.whole(0));
  }
  return most;
}

}  // namespace

void append_link(Connection& connection, const TableDef& definition) {
  if (connection.has_table(definition.Name) || is_link(connection, definition.Name))
    throw Fault(3010, definition.Name);
  const auto directory = directory_in(definition.Connect);
  std::error_code ignored;
  if (!fs::is_directory(found(connection, directory), ignored)) throw Fault(3044, directory);

  connection.before_write();
  connection.run(
      "CREATE TABLE IF NOT EXISTS table_links (name TEXT NOT NULL, connect TEXT NOT NULL, source TEXT NOT "
      "NULL) "
      "STRICT");
  Statement insert(connection, "INSERT INTO table_links VALUES (?1, ?2, ?3)");
  insert.bind(1, definition.Name).bind(2, definition.Connect).bind(3, definition.SourceTableName).step();
}

bool is_link(Connection& connection, std::string_view name) {
  return link_named(connection, name).has_value();
}

void drop_link(Connection& connection, std::string_view name) {
  connection.before_write();
  Statement(connection, "DELETE FROM table_links WHERE name = ?1 COLLATE NOCASE")
      .bind(1, std::string(name))
      .step();
}

ServedLinks::ServedLinks(Connection& connection, std::span<const std::string> tables)
    : connection_(connection) {
  if (!connection.has_table(links_table)) return;
  try {
    for (const auto& table : tables)
      if (const auto link = link_named(connection, table)) serve(*link, most_rows_in(connection, tables));
  } catch (...) {
    release();
    throw;
  }
}

void ServedLinks::serve(const TableDef& link, std::int64_t rows_expected) {
  if (connection_.linked_tables().by_name.contains(link.Name)) return;
  const auto directory = directory_in(link.Connect);
  auto layout = read_layout(found(connection_, directory + "/schema.ini"), link.SourceTableName);
  auto& served = connection_.linked_tables().by_name[link.Name];
  served = {found(connection_, directory + "/" + link.SourceTableName), std::move(layout),
            connection_.progress, rows_expected, nullptr};
  connection_.run("CREATE VIRTUAL TABLE temp." + dialect::quoted_name(link.Name) + " USING text_file");
}

ServedLinks::~ServedLinks() {
  release();
}

void ServedLinks::release() {
  auto& served = connection_.linked_tables().by_name;
  for (const auto& [name, table] : served)
    ignoring_faults([&] { connection_.run("DROP TABLE IF EXISTS temp." + dialect::quoted_name(name)); });
  served.clear();
}

void ServedLinks::finish() {
  for (auto& [name, table] : connection_.linked_tables().by_name)
    if (table.writer) table.writer->finish();
}

}  // namespace runtime::engine
