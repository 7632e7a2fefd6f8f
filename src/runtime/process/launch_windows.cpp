#include <windows.h>

#include <memory>
#include <string>

#include "runtime/process/launch.h"

namespace runtime::process {

namespace {

using Handle = std::unique_ptr<void, decltype(&CloseHandle)>;

std::wstring command_line_of(const Command& command) {
  std::wstring line;
  for (const auto& word : command) line += (line.empty() ? L"\"" : L" \"") + word.wstring() + L"\"";
  return line;
}

void wait_for(HANDLE process, const std::function<void()>& while_waiting) {
  const DWORD pause = while_waiting ? 20 : INFINITE;
  try {
    while (WaitForSingleObject(process, pause) == WAIT_TIMEOUT) while_waiting();
  } catch (...) {
    WaitForSingleObject(process, INFINITE);
    throw;
  }
}

}  // namespace

int launch_and_wait(const Command& command, const std::function<void()>& while_waiting) {
  std::wstring line = command_line_of(command);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(command.front().c_str(), line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS,
                      nullptr, nullptr, &start, &started)) {
    return not_started;
  }
  const Handle thread(started.hThread, &CloseHandle);
  const Handle process(started.hProcess, &CloseHandle);
  wait_for(process.get(), while_waiting);
  DWORD exit_code = 0;
  if (!GetExitCodeProcess(process.get(), &exit_code)) return not_started;
  return static_cast<int>(exit_code);
}

}  // namespace runtime::process
