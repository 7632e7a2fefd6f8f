#include "runtime/files/path_state.h"

#include <system_error>

namespace runtime::files {

namespace fs = std::filesystem;

bool is_there(const fs::path& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(path, error));
}

bool is_plain_file(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool is_pipe(const fs::path& path) {
  std::error_code error;
  return fs::is_fifo(path, error);
}

bool can_give_way(const fs::path& path) {
  std::error_code error;
  return is_plain_file(path) || (fs::is_symlink(path, error) && !fs::exists(path, error));
}

bool is_a_directory(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool is_same_file(const fs::path& one, const fs::path& other) {
  std::error_code error;
  return fs::equivalent(one, other, error) && !error;
}

bool has_directory(const fs::path& path) {
  return !path.has_parent_path() || is_a_directory(path.parent_path());
}

Fault missing_fault(const fs::path& path, std::string_view name) {
  return Fault(has_directory(path) ? 53 : 76, std::string(name));
}

void remove_namesakes(const std::vector<fs::path>& older, const fs::path& made) {
  for (const fs::path& namesake : older) {
    // Where the file system knows no case, the one that was made is found under the older name, too.
    if (namesake == made || is_same_file(namesake, made) || is_a_directory(namesake)) continue;
    std::error_code error;
    fs::remove(namesake, error);
  }
}

}  // namespace runtime::files
