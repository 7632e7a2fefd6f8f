// Which file a program's name means, and what has to be started for it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace runtime::process {

/// A program file and its arguments.
using Command = std::vector<std::filesystem::path>;

/// The absolute path of the first file that `program` names, without regard to case, in
/// `application_directory`, in the current directory and along the PATH.
std::optional<std::filesystem::path> find_program(const std::string& program,
                                                  const std::filesystem::path& application_directory);

/// What runs the program in `file`: itself, or wine with it as argument; empty when the wine that there is
/// can't. Without a wine a Windows program is left to the system, too.
Command command_for(const std::filesystem::path& file);

}  // namespace runtime::process
