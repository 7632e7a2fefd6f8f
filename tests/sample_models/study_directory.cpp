#include "sample_models/study_directory.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace model_test {

namespace fs = std::filesystem;

StudyDirectory::StudyDirectory() {
  std::random_device chance;
  // A name that is taken already belongs to another test, so another one is tried.
  do {
    path_ = fs::temp_directory_path() / ("model-test-" + std::to_string(chance()));
  } while (!fs::create_directory(path_));
}

StudyDirectory::~StudyDirectory() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void StudyDirectory::write(const std::string& name, const std::string& bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string StudyDirectory::read(const std::string& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

int StudyDirectory::run(const std::string& program, const std::string& below) const {
  const int status = std::system(("cd \"" + (path_ / below).string() + "\" && \"" + program + "\"").c_str());
#ifdef _WIN32
  return status;
#else
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
}

std::string with_crlf(const std::string& text) {
  std::string bytes;
  for (const char c : text) {
    if (c == '\n') bytes += '\r';
    bytes += c;
  }
  return bytes;
}

}  // namespace model_test
