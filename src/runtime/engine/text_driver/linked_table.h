// A text file as a table of the store, while a statement uses it; for this room only.
#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "runtime/engine/text_driver/text_layout.h"
#include "runtime/engine/text_driver/text_writer.h"
#include "runtime/progress.h"

struct sqlite3;

namespace runtime::engine {

/// What stands behind a table that the store reads and appends to.
struct LinkedTable {
  std::filesystem::path file;
  TextLayout layout;
  Progress progress;                   ///< May be empty.
  std::int64_t rows_expected = 0;      ///< How many rows will be appended; a guess.
  std::unique_ptr<TextWriter> writer;  ///< Set once something is appended.
};

/// The linked tables that the store may ask for, by name, and what went wrong while it did.
struct LinkedTables {
  std::map<std::string, LinkedTable, std::less<>> by_name;
  std::exception_ptr error;
};

/// Registers the module "text_file": CREATE VIRTUAL TABLE temp.NAME USING text_file serves the entry NAME of
/// `tables`, which must outlive the connection. Returns the store's code.
int register_text_files(sqlite3* handle, LinkedTables* tables);

}  // namespace runtime::engine
