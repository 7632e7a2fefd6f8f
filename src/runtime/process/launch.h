// The one call of this room that each platform has its own way for.
#pragma once

#include <functional>

#include "runtime/process/command.h"

namespace runtime::process {

/// The exit code of what could not be started.
inline constexpr int not_started = -1;

/// Starts the first path of `command`, which is not empty, with the others as its arguments, waits for its
/// end and gives its exit code or `not_started`. `while_waiting` as for `run_and_wait`.
int launch_and_wait(const Command& command, const std::function<void()>& while_waiting);

}  // namespace runtime::process
