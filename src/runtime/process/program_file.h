// What kind of program a file holds.
#pragma once

#include <filesystem>

namespace runtime::process {

/// `Native` is whatever is no Windows program: the system itself says whether it can run it. `OtherWindows`
/// is a program for DOS or for a processor that is neither 32- nor 64-bit x86.
enum class ProgramKind { Native, Windows32, Windows64, OtherWindows };

/// The kind of the program in `file`, told by its first bytes and by the header that they lead to. A file
/// that cannot be read counts as `Native`.
ProgramKind kind_of_program(const std::filesystem::path& file);

}  // namespace runtime::process
