// Names of files as the program writes them, and the paths that they stand for on this platform.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace runtime::files {

/// The path of a name in UTF-8 as it is written; "/" and "\" both separate its components.
std::filesystem::path native(std::string_view utf8);

/// The text of a path in UTF-8, with the separators of this platform.
std::string text_of(const std::filesystem::path& path);

/// The path that a name finds: each component is looked for exactly as written first, then without regard
/// to the case of the letters A to Z (the first of several in byte order). From the first component that
/// is not found on, the name stays as given. A relative name is looked for from the current directory and
/// stays relative.
std::filesystem::path resolve(std::string_view name);

/// Every path that a name finds by its last component: they are one file to a file system that does not tell
/// the cases of A to Z apart. In byte order; empty when there is none.
std::vector<std::filesystem::path> namesakes(std::string_view name);

/// The path of a file that is to bear exactly the name given, in the directory that `resolve` finds.
std::filesystem::path exactly_named(std::string_view name);

/// Whether two names are one to a file system that does not tell the cases of A to Z apart.
bool equal_but_for_case(std::string_view left, std::string_view right);

/// Where the last "/" or "\" of a text stands, if one does.
std::optional<std::size_t> last_separator(std::string_view text);

/// What stands before the last separator, without it; the root directory's name is its separator. Nothing
/// when there is no separator.
std::optional<std::string_view> directory_of(std::string_view text);

/// What stands behind the last separator. Nothing when there is none.
std::optional<std::string_view> file_name_of(std::string_view text);

}  // namespace runtime::files
