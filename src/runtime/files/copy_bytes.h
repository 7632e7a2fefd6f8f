// The one way in which the program copies a file.
#pragma once

#include <filesystem>

namespace runtime::files {

/// Copies all bytes of the file `from` into the file `to`, which is made or overwritten; its rights are
/// those of a new file, whatever those of `from`. Takes one megabyte of memory for files of any size.
/// Fault 75 when `from` is no plain file or one of the two cannot be opened; then `to` is as it was. Fault 61
/// for a full disk and 57 for any other failure on the way; then `to` is removed, so that no cut file is
/// taken for a whole one.
void copy_bytes(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace runtime::files
