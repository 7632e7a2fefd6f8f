// The connection to the open file and its statements; for this room only.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "runtime/engine/lock_wait.h"
#include "runtime/engine/row_counts.h"
#include "runtime/engine/row_values.h"
#include "runtime/engine/text_driver/linked_table.h"
#include "runtime/progress.h"
#include "runtime/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace runtime::engine {

class Transactions;

/// What the functions and the authorizer that the connection registers share with it.
struct Callbacks {
  int fault = 0;      ///< The number with which a function stopped a statement; 0 for none.
  std::string fence;  ///< The only table that may be touched; empty for all.
};

/// The open file. Lives as long as a handle, a recordset or a write not yet durable needs it.
class Connection : public std::enable_shared_from_this<Connection> {
 public:
  /// Opens `file`, which must exist, by its absolute name. Faults: 3343, 3049, 3260, 75.
  Connection(std::filesystem::path file, std::shared_ptr<Transactions> transactions, LockWait lock_wait);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  const std::filesystem::path& file() const { return file_; }
  LockWait& lock_wait() { return lock_wait_; }

  /// What the workspace lends while it lives; either may be empty.
  Progress progress;
  std::function<std::filesystem::path(std::string_view)> resolve_name;
  void tell_progress(std::int64_t done, std::int64_t total) const {
    if (progress) progress(done, total);
  }

  /// Must go before every statement that writes.
  void before_write();
  /// Instead of before_write() where rows neither come nor go.
  void before_update();
  /// Makes durable what was written, unless a level guards some of it.
  void commit_unguarded();
  bool in_transaction() const;
  /// Spare a long walk the lock of each single read.
  void begin_reading();
  void end_reading();

  /// Runs a statement without parameters, in the store's own language.
  void run(std::string_view sql);

  std::int64_t last_key() const;
  std::int64_t rows_changed() const;
  /// How many rows this connection has ever changed.
  std::int64_t all_changes() const;
  RowCounts& row_counts() { return row_counts_; }
  RowValues& row_values() { return row_values_; }
  bool has_table(const std::string& name);

  /// What the module of linked text files serves.
  LinkedTables& linked_tables() { return linked_tables_; }

  /// Drops the prepared statements that are kept for their next use.
  void forget_statements();

 private:
  friend class Statement;
  friend class Fence;

  void configure();
  bool has_pages();
  void check(int code);
  sqlite3_stmt* take(std::string_view sql);
  void give_back(std::string sql, sqlite3_stmt* statement);

  std::filesystem::path file_;
  std::shared_ptr<Transactions> transactions_;
  LockWait lock_wait_;
  sqlite3* handle_ = nullptr;
  Callbacks callbacks_;
  RowValues row_values_{&callbacks_.fault, {}};
  RowCounts row_counts_{*this};
  LinkedTables linked_tables_;
  std::unordered_map<std::string, sqlite3_stmt*> idle_;
};

/// A prepared statement, reset and given back at the end of its scope, so that none is ever under way.
class Statement {
 public:
  Statement(Connection& connection, std::string_view sql);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Parameters count from 1.
  Statement& bind(int parameter, const Value& value);
  /// True: there is a row. False: the statement is done.
  bool step();
  /// Ready for other values and the first step.
  Statement& again();
  int columns() const;
  /// Columns count from 0.
  Value value(int column) const;
  bool is_null(int column) const;
  std::int64_t whole(int column) const;
  double number(int column) const;
  std::string text(int column) const;

 private:
  Connection& connection_;
  std::string sql_;
  sqlite3_stmt* statement_;
};

/// While it stands, statements may touch one table only.
class Fence {
 public:
  Fence(Connection& connection, std::string_view table);
  ~Fence();
  Fence(const Fence&) = delete;
  Fence& operator=(const Fence&) = delete;

 private:
  Connection& connection_;
};

}  // namespace runtime::engine
