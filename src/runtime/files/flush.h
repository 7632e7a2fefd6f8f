// The calls of the system that let a file be either the former or the whole new one, also after a loss of
// power.
#pragma once

#include <filesystem>

namespace runtime::files {

/// Waits until what was written to `file` is on the disk. Fault 61 for a full disk, 57 for any other failure,
/// 75 when the file can't be opened for it.
void flush_to_disk(const std::filesystem::path& file);

/// The same for the names in a directory, as far as the system can do that.
void flush_names(const std::filesystem::path& directory);

enum class Moved { yes, other_volume, no };

/// Gives a file the name of another, which goes in the same moment. Never copies.
Moved move_over(const std::filesystem::path& file, const std::filesystem::path& other);

}  // namespace runtime::files
