// The levels of the workspace and the writes that they gather; for this room only.
#pragma once

#include <memory>
#include <vector>

namespace runtime::engine {

class Connection;

/// Begins lazily: a level costs nothing until something is written, and needs no open file.
class Transactions {
 public:
  void begin() { live_.push_back(false); }
  void commit();
  void Rollback();
  int levels() const { return old_ + static_cast<int>(live_.size()); }

  void handler_ended();
  void make_durable();
  /// Drops what is not durable.
  void drop();

  /// Opens a transaction, and a savepoint for each level of this handler that has none yet.
  void before_write(const std::shared_ptr<Connection>& connection);

  /// Holds the file for reading, so that not every single read asks the system for a lock. Ends with
  /// end_reading(), the first write, the handler or the start of a program.
  void begin_reading(const std::shared_ptr<Connection>& connection);
  void end_reading();

 private:
  bool writes_pending() const;
  void commit_all();

  int old_ = 0;                       // levels whose handler has ended
  std::vector<bool> live_;            // levels of the present handler: whether a savepoint stands for it
  std::shared_ptr<Connection> kept_;  // keeps the file open while something waits to be made durable
  std::weak_ptr<Connection> reading_;
};

}  // namespace runtime::engine
