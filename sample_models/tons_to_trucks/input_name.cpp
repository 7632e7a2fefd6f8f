#include "tons_to_trucks/input_name.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "common/refusal.h"

namespace model {

namespace fs = std::filesystem;

namespace {

bool same_bytes(const fs::path& a, const fs::path& b) {
  std::ifstream first(a, std::ios::binary);
  std::ifstream second(b, std::ios::binary);
  std::vector<char> of_first(65'536);
  std::vector<char> of_second(of_first.size());
  while (first && second) {
    first.read(of_first.data(), static_cast<std::streamsize>(of_first.size()));
    second.read(of_second.data(), static_cast<std::streamsize>(of_second.size()));
    if (first.gcount() != second.gcount()) return false;
    if (!std::equal(of_first.begin(), of_first.begin() + first.gcount(), of_second.begin())) return false;
  }
  return first.eof() && second.eof();
}

bool is_original(const fs::directory_entry& entry, const fs::path& copy) {
  std::error_code ignored;
  if (!entry.is_regular_file(ignored) || fs::equivalent(entry.path(), copy, ignored)) return false;
  return entry.file_size(ignored) == fs::file_size(copy, ignored) && same_bytes(entry.path(), copy);
}

/// The front end lets nobody pick a path with a blank in it.
bool can_be_picked(const fs::path& path) {
  return path.filename().string().find(' ') == std::string::npos;
}

bool goes_before(const fs::path& one, const fs::path& other) {
  if (can_be_picked(one) != can_be_picked(other)) return can_be_picked(one);
  return one < other;
}

}  // namespace

fs::path original_of(const fs::path& copy, const fs::path& directory, const std::string& named_in) {
  std::optional<fs::path> found;
  std::error_code unreadable;
  for (fs::directory_iterator entry(directory, unreadable), end; !unreadable && entry != end;
       entry.increment(unreadable)) {
    if ((!found || goes_before(entry->path(), *found)) && is_original(*entry, copy)) found = entry->path();
  }
  if (!found) throw Refusal(named_in, 1, "the commodity file is not in '" + directory.string() + "'");
  return found->replace_extension();
}

}  // namespace model
