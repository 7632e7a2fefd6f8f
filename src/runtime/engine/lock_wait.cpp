#include "runtime/engine/lock_wait.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace runtime::engine {

bool LockWait::wait() {
  constexpr Clock::duration pause = std::chrono::milliseconds(20);
  if (spent_ >= most_) return false;
  if (!std::exchange(is_waiting_, true) && told) told(true);
  const auto start = Clock::now();
  std::this_thread::sleep_for(std::min(pause, most_ - spent_));
  spent_ += Clock::now() - start;
  return true;
}

void LockWait::over() {
  if (std::exchange(is_waiting_, false) && told) told(false);
}

}  // namespace runtime::engine
