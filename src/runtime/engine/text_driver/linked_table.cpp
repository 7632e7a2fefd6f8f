#include "runtime/engine/text_driver/linked_table.h"

#include <sqlite3.h>

#include <vector>

#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/text_driver/text_reader.h"

namespace runtime::engine {

namespace {

// Rows between two tellings of the progress.
constexpr std::int64_t stride = 8192;

struct Table : sqlite3_vtab {
  LinkedTables* all = nullptr;
  LinkedTable* table = nullptr;
  std::vector<TextCell> row;
  std::int64_t appended = 0;
};

struct Cursor : sqlite3_vtab_cursor {
  std::unique_ptr<TextReader> reader;
  std::int64_t row = 0;
  bool at_end = false;
};

Table& table_of(sqlite3_vtab* handle) {
  return *static_cast<Table*>(handle);
}
Cursor& cursor_of(sqlite3_vtab_cursor* handle) {
  return *static_cast<Cursor*>(handle);
}

// The store's code knows no exceptions: what is thrown waits beside until the statement has stopped.
template <typename Work>
int guarded(LinkedTables& tables, Work&& work) noexcept {
  try {
    work();
    return SQLITE_OK;
  } catch (...) {
    tables.error = std::current_exception();
    return SQLITE_ERROR;
  }
}

std::string declaration(const TextLayout& layout) {
  std::string columns;
  for (const auto& column : layout.columns) {
    const char* const type = column.kind == FieldKind::Text    ? " TEXT"
                             : column.kind == FieldKind::Whole ? " INTEGER"
                                                               : " REAL";
    columns += (columns.empty() ? "" : ", ") + dialect::quoted_name(column.name) + type;
  }
  return "CREATE TABLE text_file (" + columns + ")";
}

int connect(sqlite3* handle, void* tables, int /*count*/, const char* const* words, sqlite3_vtab** result,
            char** /*error*/) {
  auto& all = *static_cast<LinkedTables*>(tables);
  return guarded(all, [&] {
    const auto found = all.by_name.find(words[2]);
    if (found == all.by_name.end()) throw Fault(3078, words[2]);
    auto table = std::make_unique<Table>();
    table->all = &all;
    table->table = &found->second;
    table->row.resize(found->second.layout.columns.size());
    if (sqlite3_declare_vtab(handle, declaration(found->second.layout).c_str()) != SQLITE_OK)
      throw Fault(3625, words[2]);
    *result = table.release();
  });
}

int disconnect(sqlite3_vtab* handle) {
  delete &table_of(handle);
  return SQLITE_OK;
}

// A text file has one order and no keys, so it is always read from its beginning to its end.
int best_index(sqlite3_vtab* /*handle*/, sqlite3_index_info* /*plan*/) {
  return SQLITE_OK;
}

int open(sqlite3_vtab* handle, sqlite3_vtab_cursor** result) {
  return guarded(*table_of(handle).all, [&] { *result = std::make_unique<Cursor>().release(); });
}

int close(sqlite3_vtab_cursor* handle) {
  delete &cursor_of(handle);
  return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* handle) {
  auto& cursor = cursor_of(handle);
  const auto& table = table_of(cursor.pVtab);
  return guarded(*table.all, [&] {
    cursor.at_end = !cursor.reader->next();
    ++cursor.row;
    if (cursor.row % stride == 0 && table.table->progress)
      table.table->progress(cursor.reader->done(), cursor.reader->total());
  });
}

int filter(sqlite3_vtab_cursor* handle, int /*number*/, const char* /*plan*/, int /*count*/,
           sqlite3_value** /*values*/) {
  auto& cursor = cursor_of(handle);
  const auto& table = table_of(cursor.pVtab);
  const int code = guarded(*table.all, [&] {
    cursor.reader = std::make_unique<TextReader>(table.table->file, table.table->layout);
    cursor.row = 0;
  });
  return code == SQLITE_OK ? next(handle) : code;
}

int at_end(sqlite3_vtab_cursor* handle) {
  return cursor_of(handle).at_end ? 1 : 0;
}

struct Result {
  sqlite3_context* context;
  void operator()(std::monostate) const { sqlite3_result_null(context); }
  void operator()(std::int64_t number) const { sqlite3_result_int64(context, number); }
  void operator()(double number) const { sqlite3_result_double(context, number); }
  void operator()(std::string_view text) const {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
};

int column(sqlite3_vtab_cursor* handle, sqlite3_context* context, int position) {
  std::visit(Result{context}, cursor_of(handle).reader->cell(static_cast<std::size_t>(position)));
  return SQLITE_OK;
}

int row_id(sqlite3_vtab_cursor* handle, sqlite3_int64* result) {
  *result = cursor_of(handle).row;
  return SQLITE_OK;
}

TextCell cell_of(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_value_int64(value)};
    case SQLITE_FLOAT:
      return sqlite3_value_double(value);
    default: {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
      return std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
  }
}

void append(Table& table, sqlite3_value** values) {
  auto& linked = *table.table;
  if (!linked.writer) linked.writer = std::make_unique<TextWriter>(linked.file, linked.layout);
  for (std::size_t i = 0; i < table.row.size(); ++i) table.row[i] = cell_of(values[i]);
  linked.writer->append(table.row);
  if (++table.appended % stride == 0 && linked.progress)
    linked.progress(table.appended, std::max(table.appended, linked.rows_expected));
}

// `values`: the old key (Null for a new row), the new key, the fields. Without the last two a row is to go.
int update(sqlite3_vtab* handle, int count, sqlite3_value** values, sqlite3_int64* key) {
  auto& table = table_of(handle);
  return guarded(*table.all, [&] {
    if (count == 1 || sqlite3_value_type(values[0]) != SQLITE_NULL) throw Fault(3251);
    append(table, values + 2);
    *key = table.appended;
  });
}

constexpr sqlite3_module text_file_module() {
  sqlite3_module module{};
  module.xCreate = connect;
  module.xConnect = connect;
  module.xBestIndex = best_index;
  module.xDisconnect = disconnect;
  module.xDestroy = disconnect;
  module.xOpen = open;
  module.xClose = close;
  module.xFilter = filter;
  module.xNext = next;
  module.xEof = at_end;
  module.xColumn = column;
  module.xRowid = row_id;
  module.xUpdate = update;
  return module;
}

}  // namespace

int register_text_files(sqlite3* handle, LinkedTables* tables) {
  static constexpr sqlite3_module text_file = text_file_module();
  return sqlite3_create_module_v2(handle, "text_file", &text_file, tables, nullptr);
}

}  // namespace runtime::engine
