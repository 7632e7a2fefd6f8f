#include "runtime/engine/transactions.h"

#include <algorithm>
#include <string>

#include "runtime/engine/connection.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

std::string savepoint(std::size_t level) {
  return "level_" + std::to_string(level);
}

}  // namespace

void Transactions::before_write(const std::shared_ptr<Connection>& connection) {
  end_reading();
  if (!connection->in_transaction()) {
    // At once and not at the first change of a page: a lock of another program is then told here.
    connection->run("BEGIN IMMEDIATE");
    live_.assign(live_.size(), false);
  }
  kept_ = connection;
  for (std::size_t level = 0; level < live_.size(); ++level) {
    if (live_[level]) continue;
    connection->run("SAVEPOINT " + savepoint(level));
    live_[level] = true;
  }
}

void Transactions::begin_reading(const std::shared_ptr<Connection>& connection) {
  if (kept_ || connection->in_transaction()) return;
  connection->run("BEGIN");
  reading_ = connection;
}

void Transactions::end_reading() {
  const auto connection = reading_.lock();
  reading_.reset();
  if (connection && connection->in_transaction()) connection->run("COMMIT");
}

bool Transactions::writes_pending() const {
  return kept_ && kept_->in_transaction();
}

void Transactions::commit() {
  if (levels() == 0) throw Fault(3034);
  if (live_.empty()) {
    --old_;
    return;
  }
  const bool has_savepoint = live_.back();
  live_.pop_back();
  if (has_savepoint && writes_pending()) kept_->run("RELEASE " + savepoint(live_.size()));
}

void Transactions::Rollback() {
  if (levels() == 0) throw Fault(3034);
  if (live_.empty()) {
    --old_;
    drop();
    return;
  }
  const bool has_savepoint = live_.back();
  live_.pop_back();
  if (!has_savepoint || !writes_pending()) return;
  kept_->row_counts().forget();
  kept_->run("ROLLBACK TO " + savepoint(live_.size()));
  kept_->run("RELEASE " + savepoint(live_.size()));
}

void Transactions::handler_ended() {
  end_reading();
  old_ += static_cast<int>(live_.size());
  live_.clear();
  commit_all();
}

void Transactions::make_durable() {
  end_reading();
  // A level in which nothing was written yet guards none of what waits.
  const bool is_guarded = std::find(live_.begin(), live_.end(), true) != live_.end();
  if (!is_guarded) commit_all();
}

void Transactions::commit_all() {
  try {
    if (writes_pending()) kept_->run("COMMIT");
  } catch (const Fault& fault) {
    // Another program's lock goes away: the writes stay and the next handler's end tries again.
    if (fault.number != 3260) drop();
    throw;
  }
  kept_.reset();
}

void Transactions::drop() {
  if (writes_pending()) {
    kept_->row_counts().forget();
    kept_->run("ROLLBACK");
  }
  kept_.reset();
}

}  // namespace runtime::engine
