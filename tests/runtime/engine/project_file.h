// A project database of a test's own, and a look at it from outside the engine.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "runtime/engine/workspace.h"
#include "runtime/fault.h"

namespace runtime::engine::testing {

/// The number of the fault that `action` throws; 0 for none.
template <typename Action>
int fault_of(Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

/// Runs SQL on a file through a connection of its own, made if need be. Gives the first value, as text; ""
/// for Null or no row, "error: " and the words when it fails.
std::string ask(const std::filesystem::path& file, const std::string& sql);

/// Another program that reads the file and holds its lock until let go.
struct Reader;
std::shared_ptr<Reader> hold_for_reading(const std::filesystem::path& file);

/// A directory with a database "zelmor.mdb", removed at the end.
class ProjectFile : public ::testing::Test {
 protected:
  ProjectFile();
  ~ProjectFile() override;

  std::string ask(const std::string& sql) const { return testing::ask(file, sql); }

  std::filesystem::path directory;
  std::filesystem::path file;
};

/// Walks from the present record to the end: "a b|c d|" with "-" for Null.
std::string rest_of(Recordset& rows);
std::string text_of(const Value& value);

}  // namespace runtime::engine::testing
