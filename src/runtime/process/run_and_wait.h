// Starts another program and waits for its end.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace runtime::process {

/// Runs a program, without arguments and without a shell, and gives its exit code. It inherits the current
/// directory, the environment and the open handles, and there is no time limit.
///
/// `program` is a bare name in UTF-8. It is looked for in `application_directory`, in the current directory
/// and along the PATH, without regard to case; the first file of that name counts. A 64-bit Windows program
/// is handed to the `wine` on the PATH, a 32-bit one only to a wine that can run it; where there is no wine
/// the system may run either by itself.
///
/// The exit code is what the platform passes on (8 bits outside Windows); a program that a signal ended
/// gives 128 and the signal's number. -1 means that nothing could be started: no such file, no right to run
/// it, a text without a "#!" line, or a Windows program that nothing here can run. No fault is thrown.
///
/// `while_waiting` is called on this thread about every 20 milliseconds until the program ends. Its end is
/// the end of that process, also when a child of it lives on. What `while_waiting` throws passes through once
/// the program has ended.
int run_and_wait(const std::string& program, const std::filesystem::path& application_directory,
                 const std::function<void()>& while_waiting = {});

}  // namespace runtime::process
