// What the operations on files ask of a path before and after they touch it. For this room only.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/fault.h"

namespace runtime::files {

/// Whether something bears this name, a link that leads nowhere included.
bool is_there(const std::filesystem::path& path);

bool is_plain_file(const std::filesystem::path& path);
bool is_pipe(const std::filesystem::path& path);
/// Whether a new file may take the place of what bears this name: a plain file, or a link that leads nowhere.
bool can_give_way(const std::filesystem::path& path);
bool is_a_directory(const std::filesystem::path& path);
bool is_same_file(const std::filesystem::path& one, const std::filesystem::path& other);

/// Whether the directory that `path` lies in exists.
bool has_directory(const std::filesystem::path& path);

/// The fault for a file that is not there: 76 when its directory is not there either, else 53.
Fault missing_fault(const std::filesystem::path& path, std::string_view name);

/// Lets the older files of other cases give way to the one that was just made or moved away.
void remove_namesakes(const std::vector<std::filesystem::path>& older, const std::filesystem::path& made);

}  // namespace runtime::files
