// A complete application directory of a test's own: the project database as installed, the sample study and
// the sample models, or stand-ins that a test tells what to do.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "temporary_directory.h"

namespace testing_aids {

class Installation {
 public:
  /// Lays out the directory as it is installed. Model programs are the sample models.
  Installation();

  std::string path() const { return directory_.path().string(); }
  std::filesystem::path file(const std::string& name) const { return directory_.path() / name; }
  std::string bytes(const std::string& name) const { return bytes_of(file(name)); }
  void put_file(const std::string& name, const std::string& bytes) const { put(file(name), bytes); }
  /// The names in a directory, sorted.
  std::vector<std::string> names_in(const std::string& directory) const;

  /// Runs statements on the project database from outside the program.
  void sql(const std::string& statements) const;
  /// The rows of a query, fields joined by "|", Null as "null".
  std::vector<std::string> rows(const std::string& query) const;

  /// Puts a stand-in in the place of a model program. What it does stands in `stand_in.txt` beside it.
  void put_stand_in(const std::string& program) const;

 private:
  TemporaryDirectory directory_;
};

}  // namespace testing_aids
