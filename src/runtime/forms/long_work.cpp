#include "runtime/forms/long_work.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "runtime/forms/desktop.h"
#include "runtime/forms/status_line.h"

namespace runtime::forms {

namespace {

constexpr std::chrono::milliseconds unnoticed{500};
constexpr std::chrono::milliseconds between_paints{100};

std::string percentage(std::int64_t done, std::int64_t total) {
  if (total <= 0) return {};
  const auto percent = std::clamp<std::int64_t>(done * 100 / total, 0, 100);
  return ": " + std::to_string(percent) + " %";
}

}  // namespace

LongWork::LongWork(Desktop& desktop, std::string words)
    : desktop_(desktop),
      words_(std::move(words)),
      words_before_(status_line(desktop.main_window)),
      outer_(std::exchange(desktop.workspace.progress,
                           [this](std::int64_t done, std::int64_t total) { at(done, total); })),
      next_paint_(Clock::now() + unnoticed),
      rest_(desktop) {}

LongWork::~LongWork() {
  set_status_line(desktop_.main_window, words_before_);
  desktop_.workspace.progress = std::move(outer_);
}

void LongWork::at(std::int64_t done, std::int64_t total) {
  const auto now = Clock::now();
  if (now < next_paint_) return;
  set_status_line(desktop_.main_window, words_ + percentage(done, total));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  next_paint_ = Clock::now() + between_paints;
}

}  // namespace runtime::forms
