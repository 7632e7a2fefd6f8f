#include "runtime/process/command.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include "runtime/files/path_names.h"
#include "runtime/process/program_file.h"

namespace runtime::process {

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
constexpr char path_separator = ';';
#else
constexpr char path_separator = ':';
#endif

std::vector<fs::path> directories_on_path() {
  const char* const variable = std::getenv("PATH");
  std::vector<fs::path> directories;
  std::string_view rest = variable == nullptr ? "" : variable;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(path_separator), rest.size());
    directories.push_back(files::native(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return directories;
}

std::optional<fs::path> find_in(const std::vector<fs::path>& directories, const std::string& program) {
  for (const fs::path& directory : directories) {
    const fs::path found = files::resolve(files::text_of(directory / files::native(program)));
    std::error_code error;
    if (fs::is_regular_file(found, error)) return fs::absolute(found, error);
  }
  return std::nullopt;
}

#ifndef _WIN32
// A wine with 64 bits only ends a 32-bit program at once and calls that a success. One that runs them has
// its library for them in one of these places below the directory that it is installed in; the directory of
// that library alone comes with the other wine, too.
bool runs_32_bits(const fs::path& wine) {
  static constexpr std::array places{"lib/wine", "lib32/wine", "lib/i386-linux-gnu/wine",
                                     "lib/x86_64-linux-gnu/wine"};
  std::error_code error;
  const fs::path installation = fs::canonical(wine, error).parent_path().parent_path();
  return std::any_of(places.begin(), places.end(), [&](const char* place) {
    return fs::is_regular_file(installation / place / "i386-windows" / "ntdll.dll", error);
  });
}
#endif

}  // namespace

std::optional<fs::path> find_program(const std::string& program, const fs::path& application_directory) {
  std::vector<fs::path> directories{application_directory, fs::path(".")};
  for (fs::path& directory : directories_on_path()) directories.push_back(std::move(directory));
  return find_in(directories, program);
}

Command command_for(const fs::path& file) {
#ifdef _WIN32
  return {file};
#else
  const ProgramKind kind = kind_of_program(file);
  if (kind == ProgramKind::Native) return {file};
  const auto wine = find_in(directories_on_path(), "wine");
  if (!wine) return {file};  // the system may know another way to run it, and says so when it doesn't
  if (kind == ProgramKind::OtherWindows) return {};
  if (kind == ProgramKind::Windows32 && !runs_32_bits(*wine)) return {};
  return {*wine, file};
#endif
}

}  // namespace runtime::process
