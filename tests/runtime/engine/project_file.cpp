#include "runtime/engine/project_file.h"

#include <sqlite3.h>

#include <atomic>
#include <charconv>

namespace runtime::engine::testing {

namespace {

std::filesystem::path new_directory() {
  static std::atomic<int> count = 0;
  const auto seed = static_cast<unsigned>(::testing::UnitTest::GetInstance()->random_seed());
  std::filesystem::path directory;
  do {
    directory = std::filesystem::temp_directory_path() /
                ("quelar_engine_" + std::to_string(seed) + "_" + std::to_string(count++));
  } while (!std::filesystem::create_directory(directory));
  return directory;
}

template <typename Number>
std::string digits_of(Number number) {
  char buffer[64];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

}  // namespace

std::string ask(const std::filesystem::path& file, const std::string& sql) {
  sqlite3* handle = nullptr;
  std::string answer;
  char* error = nullptr;
  sqlite3_open(file.c_str(), &handle);
  const auto first_value = [](void* result, int, char** values, char**) {
    auto& text = *static_cast<std::string*>(result);
    if (text.empty() && values[0] != nullptr) text = values[0];
    return 0;
  };
  if (sqlite3_exec(handle, sql.c_str(), first_value, &answer, &error) != SQLITE_OK)
    answer = std::string("error: ") + (error != nullptr ? error : "");
  sqlite3_free(error);
  sqlite3_close(handle);
  return answer;
}

struct Reader {
  sqlite3* handle = nullptr;
  sqlite3_stmt* statement = nullptr;
  ~Reader() {
    sqlite3_finalize(statement);
    sqlite3_close(handle);
  }
};

std::shared_ptr<Reader> hold_for_reading(const std::filesystem::path& file) {
  auto reader = std::make_shared<Reader>();
  sqlite3_open(file.c_str(), &reader->handle);
  sqlite3_prepare_v2(reader->handle, "SELECT * FROM Commuter", -1, &reader->statement, nullptr);
  EXPECT_EQ(sqlite3_step(reader->statement), SQLITE_ROW);
  return reader;
}

ProjectFile::ProjectFile() : directory(new_directory()), file(directory / "zelmor.mdb") {
  const auto answer =
      ask("CREATE TABLE Commuter (\"index\" INTEGER, sigma REAL, wage REAL, description TEXT) STRICT;"
          "INSERT INTO Commuter VALUES (0, 11.27, 129.6, 'Production'), (1, 11.35, 120.64, 'Transport'),"
          " (7, 13.05, 125.2, 'Sales');"
          "CREATE TABLE Commercial (industry_number INTEGER, sigma REAL) STRICT;"
          "INSERT INTO Commercial VALUES (1, 14.510000228881836);"
          "CREATE TABLE empty_one (a INTEGER, b TEXT) STRICT;"
          "CREATE TABLE field_types (table_name TEXT, field_name TEXT, type TEXT) STRICT;"
          "INSERT INTO field_types VALUES ('commercial', 'Sigma', 'single')");
  if (!answer.empty()) throw std::runtime_error(answer);
}

ProjectFile::~ProjectFile() {
  std::error_code ignored;
  std::filesystem::remove_all(directory, ignored);
}

std::string text_of(const Value& value) {
  struct Writer {
    std::string operator()(std::monostate) const { return "-"; }
    std::string operator()(std::int64_t number) const { return digits_of(number); }
    std::string operator()(float number) const { return digits_of(number) + "f"; }
    std::string operator()(double number) const { return digits_of(number); }
    std::string operator()(const std::string& text) const { return text; }
  };
  return std::visit(Writer{}, value);
}

std::string rest_of(Recordset& rows) {
  std::string text;
  for (; !rows.eof(); rows.MoveNext()) {
    for (int i = 0; i < rows.field_count(); ++i) text += (i == 0 ? "" : " ") + text_of(rows.field(i));
    text += "|";
  }
  return text;
}

}  // namespace runtime::engine::testing
