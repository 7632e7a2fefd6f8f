// The one call of this room that makes bytes outlive a loss of power.
#pragma once

#include <filesystem>

namespace runtime::files {

/// Waits until what was written to `file` is on the disk. Fault 61 for a full disk, 57 for any other failure,
/// 75 when the file can't be opened for it.
void flush_to_disk(const std::filesystem::path& file);

/// The same for the names in a directory, as far as the system can do that.
void flush_names(const std::filesystem::path& directory);

}  // namespace runtime::files
