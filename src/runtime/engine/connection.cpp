#include "runtime/engine/connection.h"

#include <sqlite3.h>

#include <utility>

#include "runtime/engine/dialect/functions.h"
#include "runtime/engine/result_codes.h"
#include "runtime/engine/transactions.h"

namespace runtime::engine {

namespace {

constexpr std::size_t most_idle_statements = 64;

// Refuses what reaches beyond the fence. The store asks while it compiles a statement.
int authorize(void* callbacks, int action, const char* object, const char* /*detail*/, const char* /*schema*/,
              const char* /*trigger*/) {
  const auto& fence = static_cast<const Callbacks*>(callbacks)->fence;
  if (fence.empty() || action == SQLITE_SELECT || action == SQLITE_FUNCTION) return SQLITE_OK;
  const bool touches_a_table = action == SQLITE_READ || action == SQLITE_UPDATE;
  return touches_a_table && sqlite3_stricmp(object, fence.c_str()) == 0 ? SQLITE_OK : SQLITE_DENY;
}

}  // namespace

Connection::Connection(std::filesystem::path file, std::shared_ptr<Transactions> transactions,
                       std::chrono::milliseconds lock_wait)
    : file_(std::move(file)), transactions_(std::move(transactions)) {
  const auto name = file_.u8string();
  const int code =
      sqlite3_open_v2(reinterpret_cast<const char*>(name.c_str()), &handle_, SQLITE_OPEN_READWRITE, nullptr);
  try {
    check(code);
    configure(lock_wait);
  } catch (...) {
    forget_statements();
    sqlite3_close(handle_);
    throw;
  }
}

Connection::~Connection() {
  forget_statements();
  sqlite3_close(handle_);
}

void Connection::configure(std::chrono::milliseconds lock_wait) {
  sqlite3_extended_result_codes(handle_, 1);
  sqlite3_busy_timeout(handle_, static_cast<int>(lock_wait.count()));
  // A name that does not exist is an error, never a text.
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  check(sqlite3_set_authorizer(handle_, &authorize, &callbacks_));
  check(dialect::register_functions(handle_, &callbacks_.fault));

  // An empty file opens without a word, so its size is asked for; a foreign one is told by this first read.
  Statement pages(*this, "PRAGMA page_count");
  if (!pages.step() || pages.whole(0) == 0) throw Fault(3343, file_.string());
  run("PRAGMA secure_delete=OFF");  // overwriting what is dropped costs twenty times the drop
  // The file alone must hold all when it is copied, whatever another tool has set.
  run("PRAGMA journal_mode=DELETE");
}

void Connection::check(int code) {
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return;
  const int fault = std::exchange(callbacks_.fault, 0);
  if (fault != 0) throw Fault(fault);
  throw fault_of(sqlite3_extended_errcode(handle_), sqlite3_errmsg(handle_), file_);
}

void Connection::before_write() {
  transactions_->before_write(shared_from_this());
}

void Connection::begin_reading() {
  transactions_->begin_reading(shared_from_this());
}
void Connection::end_reading() {
  transactions_->end_reading();
}

bool Connection::in_transaction() const {
  return sqlite3_get_autocommit(handle_) == 0;
}

void Connection::run(std::string_view sql) {
  Statement statement(*this, sql);
  while (statement.step()) continue;
}

std::int64_t Connection::last_key() const {
  return sqlite3_last_insert_rowid(handle_);
}

std::int64_t Connection::rows_changed() const {
  return sqlite3_changes64(handle_);
}

bool Connection::has_table(const std::string& name) {
  Statement find(*this,
                 "SELECT 1 FROM sqlite_schema WHERE type IN ('table', 'view') AND name = ?1 COLLATE NOCASE");
  return find.bind(1, name).step();
}

void Connection::forget_statements() {
  for (const auto& [sql, statement] : idle_) sqlite3_finalize(statement);
  idle_.clear();
}

sqlite3_stmt* Connection::take(std::string_view sql) {
  const auto kept = idle_.find(std::string(sql));
  if (kept != idle_.end()) {
    auto* const statement = kept->second;
    idle_.erase(kept);
    return statement;
  }
  sqlite3_stmt* statement = nullptr;
  check(sqlite3_prepare_v3(handle_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                           &statement, nullptr));
  return statement;
}

void Connection::give_back(std::string sql, sqlite3_stmt* statement) {
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  if (idle_.size() >= most_idle_statements) forget_statements();
  const auto [place, is_new] = idle_.emplace(std::move(sql), statement);
  if (!is_new) sqlite3_finalize(statement);
}

Statement::Statement(Connection& connection, std::string_view sql)
    : connection_(connection), sql_(sql), statement_(connection.take(sql)) {}

Statement::~Statement() {
  connection_.give_back(std::move(sql_), statement_);
}

Statement& Statement::bind(int parameter, const Value& value) {
  struct Binder {
    sqlite3_stmt* statement;
    int parameter;
    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, parameter, number); }
    int operator()(float number) const { return operator()(static_cast<double>(number)); }
    int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
    int operator()(const std::string& text) const {
      return sqlite3_bind_text64(statement, parameter, text.data(), text.size(), SQLITE_TRANSIENT,
                                 SQLITE_UTF8);
    }
  };
  connection_.check(std::visit(Binder{statement_, parameter}, value));
  return *this;
}

bool Statement::step() {
  const int code = sqlite3_step(statement_);
  connection_.check(code);
  return code == SQLITE_ROW;
}

Value Statement::value(int column) const {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return whole(column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_, column);
    default:
      return text(column);
  }
}

std::int64_t Statement::whole(int column) const {
  return sqlite3_column_int64(statement_, column);
}

std::string Statement::text(int column) const {
  const auto* const bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  if (bytes == nullptr) return {};
  return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

Fence::Fence(Connection& connection, std::string_view table) : connection_(connection) {
  connection_.callbacks_.fence = table;
}

Fence::~Fence() {
  connection_.callbacks_.fence.clear();
}

}  // namespace runtime::engine
