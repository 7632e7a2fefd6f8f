// How long the lock of another program is waited for; for this room only.
#pragma once

#include <chrono>
#include <functional>

namespace runtime::engine {

/// Waits no longer than `most` in all until it may begin anew: a handler that goes on after it has met a lock
/// would wait as long again at each of its statements.
class LockWait {
 public:
  explicit LockWait(std::chrono::milliseconds most) : most_(most) {}

  /// Told true when a wait begins and false when it is over. At true it may not use the connection.
  std::function<void(bool)> told;

  /// Waits a little; false when no time is left.
  bool wait();
  /// The statement that waited has ended, one way or the other.
  void over();
  void begin_anew() { spent_ = {}; }

 private:
  using Clock = std::chrono::steady_clock;

  Clock::duration most_;
  Clock::duration spent_{};
  bool is_waiting_ = false;
};

}  // namespace runtime::engine
