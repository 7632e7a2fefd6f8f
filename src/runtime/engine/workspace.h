// The workspace: the one connection that all database objects of the process share, and its transactions.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/database.h"
#include "runtime/progress.h"

namespace runtime::engine {

class Transactions;

/// Opens the project database and brackets what is written to it.
///
/// Levels nest. What a handler writes is gathered and made durable when the outermost handler ends, whatever
/// levels stand open by then; a level that outlives its handler is "old" and guards nothing any more.
class Workspace {
 public:
  Workspace();
  ~Workspace();  ///< Drops what the handler under way has written.
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  /// How the file of a name is found. Default: relative to the current directory.
  std::function<std::filesystem::path(std::string_view)> resolve_name;

  /// The tables that a project database must hold, looked at when a file is opened.
  std::vector<std::string> required_tables;

  /// How long locks of other programs are waited for, in all that a handler does. As it stands when a file is
  /// opened.
  std::chrono::milliseconds lock_wait{5000};

  /// Told true when a wait for another program begins, false when it is over. At true it may not use the
  /// database.
  std::function<void(bool)> waiting;

  /// Told by long statements how many rows of how many are done.
  Progress progress;

  /// A handle on the file; every handle of this workspace is on the same connection. The file is never made.
  /// Faults: 3024 missing, 3343 not a project database (foreign, empty, a required table missing),
  /// 3049 damaged, 3260 in use by another program, 75 not readable, or another file is open already.
  Database OpenDatabase(std::string_view name);

  /// Begins a level. Needs no open file.
  void BeginTrans();
  /// Ends the innermost level and keeps its writes. Does nothing to an old one. Fault 3034: no level stands.
  void CommitTrans();
  /// Ends the innermost level and takes back its writes; of an old one, all that the present handler has
  /// written. Fault 3034: no level stands.
  void Rollback();
  /// How many levels stand, old ones included.
  int levels() const;

  /// The outermost handler begins: it has the whole time for the locks of other programs.
  void handler_begins();
  /// It ended: makes durable all that it wrote; its open levels become old ones.
  void handler_ended();
  /// Makes durable what was written so far, unless a level of this handler holds some of it.
  void make_durable();
  /// Takes back all that is not durable, whatever levels stand.
  void take_back();

  /// Whether `file` is the database file or its journal, while that is open.
  bool holds(const std::filesystem::path& file) const;

 private:
  std::shared_ptr<Transactions> transactions_;
  std::weak_ptr<Connection> open_;
};

}  // namespace runtime::engine
