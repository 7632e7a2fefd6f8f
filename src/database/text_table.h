// The crossing between the staging table and text files: skeletons in, one file for each column out.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/database.h"
#include "runtime/files/files.h"
#include "runtime/progress.h"

namespace database {

inline constexpr std::string_view live_description = "schema.ini";
inline constexpr std::string_view trips_file = "trips.csv";
inline constexpr std::string_view unused_file = "timdist.csv";
/// Installed beside the program; each ends with a list of columns that the program goes on with.
inline constexpr std::string_view read_pairs_template = "schema.inp";
inline constexpr std::string_view write_pairs_template = "schema2.inp";
inline constexpr std::string_view read_zones_template = "schema3.inp";
inline constexpr std::string_view write_zones_template = "schema4.inp";

/// "COL3=distance DOUBLE": a column to be read.
std::string column_to_read(int column, std::string_view name);
/// "COL3=Mining Double Width 10": a column to be written.
std::string column_to_write(int column, std::string_view name);
/// "COL3=Sales_emp   Double Width 10": the workers beside the residents.
std::string workers_column_to_write(int column, std::string_view name);

/// An empty line, then a line for each origin and destination, the origin varying slowest.
void write_pair_skeleton(std::ostream& stream, std::int64_t zones, const runtime::Progress& progress = {});
/// An empty line, then a line for each zone.
void write_zone_skeleton(std::ostream& stream, std::int64_t zones);

/// Only that it is not there may pass: another program's lock would be waited for again at each statement
/// that follows, and then an old table be met.
void drop_if_there(runtime::engine::Database& database, const std::string& table);

/// The link to "trips.csv" in the application directory.
runtime::engine::TableDef csvtable_definition(const runtime::engine::Database& database,
                                              const std::string& app_path);

/// One text file made of the staging table.
struct ColumnExport {
  std::string_view template_file;
  std::vector<std::string> columns;  ///< The lines that go behind the template's own.
  std::string insert;                ///< Fills the link.
  std::string target;                ///< An older file of this name gives way to the whole new one.
};

/// Makes the file. The current directory is the application directory; a link left there is gone already.
void export_column(runtime::files::Files& files, runtime::engine::Database& database,
                   const std::string& app_path, const ColumnExport& column);

}  // namespace database
