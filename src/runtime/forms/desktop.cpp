#include "runtime/forms/desktop.h"

#include <QApplication>
#include <new>
#include <optional>
#include <utility>

#include "runtime/files/path_names.h"
#include "runtime/forms/boxes.h"
#include "runtime/forms/input_guard.h"
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
  files.held_elsewhere = [this](const std::filesystem::path& path) { return workspace.holds(path); };
}

int Desktop::MsgBox(const std::string& prompt, int style, const std::string& title) {
  return show_message(main_window, prompt, style, title.empty() ? program_title : title);
}

std::string Desktop::InputBox(const std::string& prompt, const std::string& title) {
  return ask_for_text(main_window, prompt, title.empty() ? program_title : title);
}

void Desktop::beep() {
  QApplication::beep();
}

void Desktop::set_pointer(Pointer pointer) {
  if (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (pointer == Pointer::hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void Desktop::run_event(const std::function<void()>& handler) {
  // Painted while long work is under way, a window may change its size, or be pressed by an assistive tool:
  // nothing of the program runs inside the work.
  if (workspace.progress) return;
  ++depth_;
  auto fault = fault_of(handler);
  --depth_;
  if (depth_ == 0) {
    const auto at_end = fault_of([this] { end_of_handler(); });
    if (!fault) fault = at_end;
  }
  if (fault) report(*fault);
}

void Desktop::end_of_handler() {
  err.clear();
  workspace.handler_ended();
}

void Desktop::report(const Fault& fault) {
  ++reports_;
  show_runtime_error(main_window, fault, program_title);
}

void Desktop::end_with_report(const Fault& fault) {
  report(fault);
  QCoreApplication::exit(1);
}

int Desktop::run_program(const std::string& program) {
  workspace.before_program();
  const InputGuard guard;
  return process::run_and_wait(program, files::native(app_path), [] { QCoreApplication::processEvents(); });
}

}  // namespace runtime::forms
