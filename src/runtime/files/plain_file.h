// What may be read as a file.
#pragma once

#include <filesystem>

namespace runtime::files {

/// Fault 75, with the path, when something else than a plain file lies there or a link leads to it: a device
/// may have no end, and a pipe may have nobody at its other end. Nothing there is no fault.
void expect_plain_file(const std::filesystem::path& path);

}  // namespace runtime::files
