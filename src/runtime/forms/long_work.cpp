#include "runtime/forms/long_work.h"

#include <QApplication>
#include <QMdiArea>
#include <algorithm>
#include <utility>
#include <vector>

#include "runtime/forms/desktop.h"
#include "runtime/forms/form.h"
#include "runtime/forms/form_size.h"
#include "runtime/forms/form_window.h"
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

QSize room_of(const Desktop& desktop) {
  return desktop.mdi_area == nullptr ? QSize() : desktop.mdi_area->size();
}

}  // namespace

LongWork::LongWork(Desktop& desktop, std::string words)
    : desktop_(desktop),
      words_(std::move(words)),
      words_before_(status_line(desktop.main_window)),
      size_before_(room_of(desktop)),
      outer_(std::exchange(desktop.workspace.progress,
                           [this](std::int64_t done, std::int64_t total) { at(done, total); })),
      next_paint_(Clock::now() + unnoticed) {
  guard_.emplace();
}

LongWork::~LongWork() {
  guard_.reset();  // takes the last input away, while handlers still rest
  set_status_line(desktop_.main_window, words_before_);
  desktop_.workspace.progress = std::move(outer_);
  if (!desktop_.workspace.progress) tell_of_a_changed_size();
}

void LongWork::at(std::int64_t done, std::int64_t total) {
  const auto now = Clock::now();
  if (now < next_paint_) return;
  set_status_line(desktop_.main_window, words_ + percentage(done, total));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  next_paint_ = Clock::now() + between_paints;
}

/// The forms lay themselves out for the size that their windows got meanwhile.
void LongWork::tell_of_a_changed_size() const {
  if (room_of(desktop_) == size_before_) return;
  const std::vector<FormBase*> forms = desktop_.loaded_forms;
  for (const FormBase* form : forms) {
    emit window_of(*form).resized();
  }
}

}  // namespace runtime::forms
