#include "runtime/engine/workspace.h"

#include <system_error>
#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/transactions.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

namespace fs = std::filesystem;

// By name as well: the journal may not be there, and a file that was replaced has another identity.
bool same_file(const fs::path& one, const fs::path& other) {
  std::error_code ignored;
  if (fs::absolute(one, ignored).lexically_normal() == fs::absolute(other, ignored).lexically_normal())
    return true;
  return fs::equivalent(one, other, ignored);
}

fs::path journal_of(const fs::path& file) {
  fs::path journal = file;
  journal += "-journal";
  return journal;
}

void check_tables(Connection& connection, const std::vector<std::string>& required) {
  for (const auto& table : required)
    if (!connection.has_table(table)) throw Fault(3343, connection.file().string());
}

}  // namespace

Workspace::Workspace()
    : resolve_name([](std::string_view name) {
        return fs::absolute(fs::path(std::u8string(name.begin(), name.end())));
      }),
      transactions_(std::make_shared<Transactions>()) {}

Workspace::~Workspace() {
  ignoring_faults([this] { transactions_->drop(); });
  // A handle that outlives the workspace keeps the connection, which has nobody to ask or to tell then.
  if (const auto connection = open_.lock()) {
    connection->progress = {};
    connection->resolve_name = {};
    connection->lock_wait().told = {};
  }
}

Database Workspace::OpenDatabase(std::string_view name) {
  std::error_code ignored;
  // The current directory changes while the file is open; its temporary files must not.
  const fs::path file = fs::absolute(resolve_name(name), ignored);
  if (!fs::exists(file, ignored)) throw Fault(3024, file.string());

  auto connection = open_.lock();
  if (connection && !same_file(connection->file(), file)) throw Fault(75, file.string());
  if (!connection) {
    LockWait wait(lock_wait);
    wait.told = [this](bool is_waiting) {
      if (waiting) waiting(is_waiting);
    };
    connection = std::make_shared<Connection>(file, transactions_, std::move(wait));
    check_tables(*connection, required_tables);
    connection->progress = [this](std::int64_t done, std::int64_t total) {
      if (progress) progress(done, total);
    };
    connection->resolve_name = [this](std::string_view wanted) { return resolve_name(wanted); };
    open_ = connection;
  }
  return Database(std::move(connection));
}

void Workspace::BeginTrans() {
  transactions_->begin();
}
void Workspace::CommitTrans() {
  transactions_->commit();
}
void Workspace::Rollback() {
  transactions_->Rollback();
}
int Workspace::levels() const {
  return transactions_->levels();
}
void Workspace::handler_begins() {
  if (const auto connection = open_.lock()) connection->lock_wait().begin_anew();
}
void Workspace::handler_ended() {
  struct Anew {
    Workspace& workspace;
    ~Anew() { workspace.handler_begins(); }
  };
  const Anew next_handler{*this};
  transactions_->handler_ended();
}
void Workspace::take_back() {
  transactions_->drop();
}
void Workspace::make_durable() {
  transactions_->make_durable();
}

bool Workspace::holds(const fs::path& file) const {
  const auto connection = open_.lock();
  return connection &&
         (same_file(file, connection->file()) || same_file(file, journal_of(connection->file())));
}

}  // namespace runtime::engine
