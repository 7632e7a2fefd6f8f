#include "runtime/process/run_and_wait.h"

#include "runtime/process/command.h"
#include "runtime/process/launch.h"

namespace runtime::process {

int run_and_wait(const std::string& program, const std::filesystem::path& application_directory,
                 const std::function<void()>& while_waiting) {
  const auto file = find_program(program, application_directory);
  const Command command = file ? command_for(*file) : Command{};
  return command.empty() ? not_started : launch_and_wait(command, while_waiting);
}

}  // namespace runtime::process
