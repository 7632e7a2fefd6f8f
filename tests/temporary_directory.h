// A directory of a test's own, which is the current one while the test runs.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace testing_aids {

/// Made empty, entered, and left and removed at the end. Open to every user, so that a test can go on as one
/// without rights.
class TemporaryDirectory {
 public:
  TemporaryDirectory() : before_(std::filesystem::current_path()) {
    const std::string name = "quelar_test_" + std::to_string(std::random_device{}());
    path_ = std::filesystem::canonical(std::filesystem::temp_directory_path()) / name;
    std::filesystem::create_directory(path_);
    std::filesystem::permissions(path_, std::filesystem::perms::all);
    std::filesystem::current_path(path_);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() {
    std::error_code error;
    std::filesystem::current_path(before_, error);
    allow_removal();
    std::filesystem::remove_all(path_, error);
  }

  const std::filesystem::path& path() const { return path_; }

 private:
  // A test may have locked a directory of its own.
  void allow_removal() const {
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_, error)) {
      if (!entry.is_directory(error) || entry.is_symlink(error)) continue;
      std::filesystem::permissions(entry, std::filesystem::perms::owner_all,
                                   std::filesystem::perm_options::add, error);
    }
  }

  std::filesystem::path before_;
  std::filesystem::path path_;
};

inline void put(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// The bytes of a file, "(none)" when there is no such file.
inline std::string bytes_of(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The names in a directory in byte order, parted by blanks.
inline std::string names_in(const std::filesystem::path& directory) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : " ") + name;
  return all;
}

}  // namespace testing_aids
