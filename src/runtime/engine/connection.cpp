#include "runtime/engine/connection.h"

#include <sqlite3.h>

#include <cerrno>
#include <utility>

#include "runtime/engine/dialect/functions.h"
#include "runtime/engine/result_codes.h"
#include "runtime/engine/stored_value.h"
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

int wait_for_lock(void* lock_wait, int /*times_before*/) noexcept {
  return static_cast<LockWait*>(lock_wait)->wait() ? 1 : 0;
}

// The store knows one word of the system for a full disk; a quota and a limit of a file's size have their
// own.
int full_disk_or(int code, sqlite3* handle) {
  const int error = sqlite3_system_errno(handle);
  bool is_full = error == EFBIG;
#ifdef EDQUOT
  is_full = is_full || error == EDQUOT;
#endif
  return code == SQLITE_IOERR_WRITE && is_full ? SQLITE_FULL : code;
}

}  // namespace

Connection::Connection(std::filesystem::path file, std::shared_ptr<Transactions> transactions,
                       LockWait lock_wait)
    : file_(std::move(file)), transactions_(std::move(transactions)), lock_wait_(std::move(lock_wait)) {
  // What the store sorts may be larger than what the system's own place for temporary files holds.
  sqlite3_free(sqlite3_temp_directory);
  sqlite3_temp_directory = sqlite3_mprintf("%s", file_.parent_path().string().c_str());
  const auto name = file_.u8string();
  // One thread counts; a lock for each field that is read would cost a third of a long walk.
  constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  const int code = sqlite3_open_v2(reinterpret_cast<const char*>(name.c_str()), &handle_, flags, nullptr);
  try {
    check(code);
    configure();
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

void Connection::configure() {
  sqlite3_extended_result_codes(handle_, 1);
  sqlite3_busy_handler(handle_, &wait_for_lock, &lock_wait_);
  // A name that does not exist is an error, never a text.
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  check(sqlite3_set_authorizer(handle_, &authorize, &callbacks_));
  check(dialect::register_functions(handle_, &callbacks_.fault));
  check(register_row_values(handle_, &row_values_));
  check(register_stored_value(handle_, &callbacks_.fault));
  check(register_text_files(handle_, &linked_tables_));

  if (!has_pages()) throw Fault(3343, file_.string());
  run("PRAGMA secure_delete=OFF");  // overwriting what is dropped costs twenty times the drop
  run("PRAGMA cache_size=-16384");  // in KiB; a small one waits for the disk at every few hundred pages
  // The file alone must hold all when it is copied, whatever another tool has set.
  run("PRAGMA journal_mode=DELETE");
}

// An empty file opens without a word, so its size is asked for; a foreign one is told by this first read.
bool Connection::has_pages() {
  Statement pages(*this, "PRAGMA page_count");
  return pages.step() && pages.whole(0) != 0;
}

void Connection::check(int code) {
  lock_wait_.over();
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return;
  row_counts_.forget();  // a failed statement may have taken back the whole transaction
  if (const auto error = std::exchange(linked_tables_.error, nullptr)) std::rethrow_exception(error);
  const int fault = std::exchange(callbacks_.fault, 0);
  if (fault != 0) throw Fault(fault);
  throw fault_of(full_disk_or(sqlite3_extended_errcode(handle_), handle_), sqlite3_errmsg(handle_), file_);
}

void Connection::before_write() {
  row_counts_.forget();
  before_update();
}

void Connection::before_update() {
  transactions_->before_write(shared_from_this());
}

void Connection::commit_unguarded() {
  transactions_->make_durable();
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

std::int64_t Connection::all_changes() const {
  return sqlite3_total_changes64(handle_);
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

Statement& Statement::again() {
  sqlite3_reset(statement_);
  return *this;
}

int Statement::columns() const {
  return sqlite3_column_count(statement_);
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

bool Statement::is_null(int column) const {
  return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int64_t Statement::whole(int column) const {
  return sqlite3_column_int64(statement_, column);
}

double Statement::number(int column) const {
  return sqlite3_column_double(statement_, column);
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
