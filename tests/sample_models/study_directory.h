// A directory of a test's own in which a model program runs.
#pragma once

#include <filesystem>
#include <string>

namespace model_test {

/// Made empty, and removed with all that is in it.
class StudyDirectory {
 public:
  StudyDirectory();
  ~StudyDirectory();
  StudyDirectory(const StudyDirectory&) = delete;
  StudyDirectory& operator=(const StudyDirectory&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Writes the bytes as they are.
  void write(const std::string& name, const std::string& bytes) const;

  /// The bytes of a file; empty when there is none.
  std::string read(const std::string& name) const;

  bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }
  void remove(const std::string& name) const { std::filesystem::remove_all(path_ / name); }

  /// Runs `program` with this directory, or one below it, as its current one; returns its exit code.
  int run(const std::string& program, const std::string& below = ".") const;

 private:
  std::filesystem::path path_;
};

/// `text` with CR LF for every line feed.
std::string with_crlf(const std::string& text);

}  // namespace model_test
