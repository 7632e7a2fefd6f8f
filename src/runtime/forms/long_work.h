// Tells the analyst that long work is under way and how far it is.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "runtime/forms/rest.h"
#include "runtime/progress.h"

namespace runtime::forms {

class Desktop;

/// While it lives, what the engine tells of its progress is shown: once the work has taken half a second, the
/// status line of the main window says `words` and the percentage, and is painted now and then. Nothing that
/// the analyst does meanwhile is taken or kept for later, and no handler of a form runs. Does not touch the
/// pointer. Inside other long work it tells of its own part, and that of the other goes on afterwards.
///
/// The workspace's `progress` is set as long as any long work is under way. Whoever paints meanwhile may not
/// use the database.
class LongWork {
 public:
  LongWork(Desktop& desktop, std::string words);
  ~LongWork();
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

  /// For work that the engine does not do. Cheap enough to be called every few thousand rows. Without a
  /// `total` the words stand alone.
  void at(std::int64_t done, std::int64_t total);

 private:
  using Clock = std::chrono::steady_clock;

  Desktop& desktop_;
  const std::string words_;
  const std::string words_before_;
  Progress outer_;
  Clock::time_point next_paint_;
  const Rest rest_;
};

}  // namespace runtime::forms
