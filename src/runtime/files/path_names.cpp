#include "runtime/files/path_names.h"

#include <algorithm>
#include <system_error>

#include "runtime/files/path_state.h"

namespace runtime::files {

namespace fs = std::filesystem;

namespace {

char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// The entry of `directory` that `name` means, or `name` itself when there is none.
fs::path entry_named(const fs::path& directory, const fs::path& name) {
  if (name.empty() || is_there(directory / name)) return name;
  const std::string wanted = text_of(name);
  std::optional<std::string> best;
  std::error_code error;
  fs::directory_iterator entry(directory.empty() ? fs::path(".") : directory, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::string found = text_of(entry->path().filename());
    if (equal_but_for_case(found, wanted) && (!best || found < *best)) best = std::move(found);
  }
  return best ? native(*best) : name;
}

}  // namespace

fs::path native(std::string_view utf8) {
  std::u8string name(utf8.begin(), utf8.end());
  std::replace(name.begin(), name.end(), u8'\\', u8'/');
  return fs::path(name).make_preferred();
}

std::string text_of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path resolve(std::string_view name) {
  fs::path found;
  for (const fs::path& component : native(name)) found /= entry_named(found, component);
  return found;
}

fs::path exactly_named(std::string_view name) {
  const fs::path written = native(name);
  return resolve(text_of(written.parent_path())) / written.filename();
}

bool equal_but_for_case(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char one, char other) { return lower(one) == lower(other); });
}

std::optional<std::size_t> last_separator(std::string_view text) {
  const auto place = text.find_last_of("/\\");
  if (place == std::string_view::npos) return std::nullopt;
  return place;
}

std::optional<std::string_view> directory_of(std::string_view text) {
  const auto separator = last_separator(text);
  if (!separator) return std::nullopt;
  return text.substr(0, std::max<std::size_t>(*separator, 1));
}

std::optional<std::string_view> file_name_of(std::string_view text) {
  const auto separator = last_separator(text);
  if (!separator) return std::nullopt;
  return text.substr(*separator + 1);
}

}  // namespace runtime::files
