// Table links: tables of the project database whose rows lie in text files; for this room only.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/database.h"

namespace runtime::engine {

class Connection;

/// A link is nothing but a row of the plain table "table_links", made with the first of them, so that other
/// tools open the file as ever and a rollback takes a link along.
///
/// Puts the definition into the database. Faults: 3010 the name is taken, 3044 no such directory.
void append_link(Connection& connection, const TableDef& definition);

bool is_link(Connection& connection, std::string_view name);
void drop_link(Connection& connection, std::string_view name);

/// Serves the links among some tables as temporary tables for as long as one statement runs.
class ServedLinks {
 public:
  /// Reads each link's description. Fault 3625, 3349.
  ServedLinks(Connection& connection, std::span<const std::string> tables);
  ~ServedLinks();
  ServedLinks(const ServedLinks&) = delete;
  ServedLinks& operator=(const ServedLinks&) = delete;

  /// Sees to it that what the statement appended is in the files. Faults: 61, 57.
  void finish();

 private:
  void serve(const TableDef& link, std::int64_t rows_expected);
  void release();

  Connection& connection_;
};

}  // namespace runtime::engine
