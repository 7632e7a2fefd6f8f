#include "installation.h"

#include <sqlite3.h>

#include <algorithm>
#include <stdexcept>

namespace testing_aids {

namespace fs = std::filesystem;

namespace {

struct OpenDatabase {
  explicit OpenDatabase(const fs::path& path) {
    if (sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
      throw std::runtime_error("no database at " + path.string());
    }
  }
  OpenDatabase(const OpenDatabase&) = delete;
  OpenDatabase& operator=(const OpenDatabase&) = delete;
  ~OpenDatabase() { sqlite3_close(handle); }

  void run(const std::string& statements, sqlite3_callback each_row, void* rows) const {
    char* error = nullptr;
    if (sqlite3_exec(handle, statements.c_str(), each_row, rows, &error) != SQLITE_OK) {
      const std::string words = error;
      sqlite3_free(error);
      throw std::runtime_error(words);
    }
  }

  sqlite3* handle = nullptr;
};

int add_row(void* rows, int count, char** fields, char**) {
  std::string row;
  for (int i = 0; i < count; ++i) {
    if (i > 0) row += '|';
    row += fields[i] == nullptr ? "null" : fields[i];
  }
  static_cast<std::vector<std::string>*>(rows)->push_back(row);
  return 0;
}

}  // namespace

Installation::Installation() {
  fs::copy_file(PROJECT_DATABASE, file("zelmor.mdb"));
  fs::copy(TEMPLATES, directory_.path());
  fs::copy(SAMPLE_STUDY, file("sample"), fs::copy_options::recursive);
  for (const char* name : {"commuter", "truck", "results"}) fs::create_directory(file(name));
  for (const char* market : {"commuter", "truck"}) {
    for (const auto& model : fs::directory_iterator(fs::path(SAMPLE_MODELS) / market)) {
      fs::create_symlink(model.path(), file(market) / model.path().filename());
    }
  }
}

std::vector<std::string> Installation::names_in(const std::string& directory) const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(file(directory))) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void Installation::sql(const std::string& statements) const {
  OpenDatabase(file("zelmor.mdb")).run(statements, nullptr, nullptr);
}

std::vector<std::string> Installation::rows(const std::string& query) const {
  std::vector<std::string> rows;
  OpenDatabase(file("zelmor.mdb")).run(query, add_row, &rows);
  return rows;
}

void Installation::put_stand_in(const std::string& program) const {
  fs::remove(file(program));
  fs::create_symlink(STAND_IN, file(program));
}

}  // namespace testing_aids
