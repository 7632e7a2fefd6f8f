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

void remove_namesake(const fs::path& older, const fs::path& made) {
  std::error_code error;
  if (older != made) fs::remove(older, error);
}

}  // namespace runtime::files
