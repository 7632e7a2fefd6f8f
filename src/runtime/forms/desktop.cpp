#include "runtime/forms/desktop.h"

#include <QApplication>
#include <QMdiArea>
#include <new>
#include <utility>

#include "runtime/files/path_names.h"
#include "runtime/forms/boxes.h"
#include "runtime/forms/form.h"
#include "runtime/forms/rest.h"
#include "runtime/forms/status_line.h"
#include "runtime/process/run_and_wait.h"

namespace runtime::forms {

namespace {

/// The fault that a handler ended with. Whatever it throws must stop here: an exception that passes through
/// an event loop ends the process.
std::optional<Fault> fault_of(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const Fault& fault) {
    return fault;
  } catch (const std::bad_alloc&) {
    return Fault(7);
  } catch (const std::exception& error) {
    return Fault(51, error.what());
  }
  return std::nullopt;
}

}  // namespace

Desktop::Desktop(std::string application_directory) : app_path(std::move(application_directory)) {
  workspace.resolve_name = [](std::string_view name) { return files::resolve(name); };
  workspace.waiting = [this](bool is_waiting) { tell_of_wait(is_waiting); };
  files.held_elsewhere = [this](const std::filesystem::path& path) { return workspace.holds(path); };
}

int Desktop::MsgBox(const std::string& prompt, int style, const std::string& title) {
  return show_message(main_window, prompt, style, title.empty() ? program_title : title);
}

std::string Desktop::InputBox(const std::string& prompt, const std::string& title) {
  return ask_for_text(main_window, prompt, title.empty() ? program_title : title);
}

void Desktop::beep() {
  ++beeps_;
  QApplication::beep();
}

void Desktop::set_pointer(Pointer pointer) {
  if (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (pointer == Pointer::hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void Desktop::run_event(const std::function<void()>& handler) {
  // Painted while long work is under way, a window may change its size, or be pressed by an assistive tool:
  // nothing of the program runs inside the work.
  if (resting()) return;
  if (++depth_ == 1) workspace.handler_begins();
  const auto fault = fault_of(handler);
  std::optional<Fault> at_end;
  if (depth_ == 1) at_end = fault_of([this] { end_of_handler(); });
  if (fault) report(*fault);
  const bool is_told = at_end && fault && std::string(at_end->what()) == fault->what();
  if (at_end && !is_told) report(*at_end);
  --depth_;
  // Not before the report: in a loop that is ending no box stays.
  if (depth_ == 0 && exit_code_) QCoreApplication::exit(*exit_code_);
}

void Desktop::run_person_event(const std::function<void()>& handler) {
  if (!hears_a_person()) return;
  if (depth_ == 0) show_remark({});
  run_event(handler);
}

bool Desktop::hears_a_person() const {
  return !resting() && QApplication::activeModalWidget() == nullptr;
}

void Desktop::remark(const std::string& words) {
  show_remark(remark_.empty() ? words : remark_ + " " + words);
}

void Desktop::show_remark(const std::string& words) {
  if (status_line(main_window) == remark_) set_status_line(main_window, words);
  remark_ = words;
}

void Desktop::end_program(int exit_code) {
  exit_code_ = exit_code;
}

void Desktop::end_of_handler() {
  err.clear();
  settle([this] { workspace.handler_ended(); });
}

void Desktop::make_durable() {
  settle([this] { workspace.make_durable(); });
}

void Desktop::settle(const std::function<void()>& commit) {
  const auto tell_forms = [this](bool kept) {
    for (FormBase* form : loaded_forms) form->writes_ended(kept);
  };
  try {
    commit();
  } catch (const Fault&) {
    tell_forms(false);
    throw;
  }
  tell_forms(true);
}

void Desktop::tell_of_wait(bool is_waiting) {
  if (depth_ == 0) return;  // a window that is being painted must not be painted by that
  if (!is_waiting) return set_status_line(main_window, words_before_wait_);
  words_before_wait_ = status_line(main_window);
  set_status_line(main_window, "Waiting for another program that uses the project database");
  // The line alone: a grid that is painted would ask the very database that is waited for.
  if (mdi_area != nullptr) mdi_area->setUpdatesEnabled(false);
  paint_status_line(main_window);
  if (mdi_area != nullptr) mdi_area->setUpdatesEnabled(true);
}

void Desktop::report(const Fault& fault) {
  ++reports_;
  show_runtime_error(main_window, fault, program_title);
  set_pointer(Pointer::normal);  // the work that the hourglass stood for is over
}

void Desktop::end_with_report(const Fault& fault) {
  report(fault);
  end_program(1);
}

int Desktop::run_program(const std::string& program) {
  make_durable();
  const Rest rest(*this);
  return process::run_and_wait(program, files::native(app_path), [] { QCoreApplication::processEvents(); });
}

}  // namespace runtime::forms
