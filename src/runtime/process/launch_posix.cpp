#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <future>
#include <string>
#include <vector>

#include "runtime/process/launch.h"

namespace runtime::process {

namespace {

/// Whoever started this program may have it ignore the ends of its children, and then their exit codes are
/// lost. While this lives they are kept, and a program that is started meanwhile can ask for those of its
/// own.
class KeptExitCodes {
 public:
  KeptExitCodes() {
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    sigaction(SIGCHLD, &standard, &before_);
  }
  KeptExitCodes(const KeptExitCodes&) = delete;
  KeptExitCodes& operator=(const KeptExitCodes&) = delete;
  ~KeptExitCodes() { sigaction(SIGCHLD, &before_, nullptr); }

 private:
  struct sigaction before_ {};
};

int exit_code_of(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) == -1) {
    if (errno != EINTR) return not_started;
  }
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

int launch_and_wait(const Command& command, const std::function<void()>& while_waiting) {
  std::vector<std::string> words(command.begin(), command.end());
  std::vector<char*> arguments(words.size() + 1, nullptr);
  std::transform(words.begin(), words.end(), arguments.begin(),
                 [](std::string& word) { return word.data(); });
  const KeptExitCodes kept;
  pid_t process = 0;
  // Not posix_spawnp, which goes through a shell for a file without a header.
  if (posix_spawn(&process, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0)
    return not_started;
  if (!while_waiting) return exit_code_of(process);
  auto end = std::async(std::launch::async, exit_code_of, process);
  while (end.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) while_waiting();
  return end.get();
}

}  // namespace runtime::process
