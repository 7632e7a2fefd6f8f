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

// The entries of `directory` that `name` can mean, in byte order.
std::vector<fs::path> entries_named(const fs::path& directory, const fs::path& name) {
  const std::string wanted = text_of(name);
  std::vector<fs::path> found;
  std::error_code error;
  fs::directory_iterator entry(directory.empty() ? fs::path(".") : directory, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    fs::path known = entry->path().filename();
    if (equal_but_for_case(text_of(known), wanted)) found.push_back(std::move(known));
  }
  std::sort(found.begin(), found.end());
  return found;
}

// The entry of `directory` that `name` means, or `name` itself when there is none.
fs::path entry_named(const fs::path& directory, const fs::path& name) {
  if (name.empty() || is_there(directory / name)) return name;
  const auto found = entries_named(directory, name);
  return found.empty() ? name : found.front();
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

std::vector<fs::path> namesakes(std::string_view name) {
  const fs::path exact = exactly_named(name);
  std::vector<fs::path> found = entries_named(exact.parent_path(), exact.filename());
  for (fs::path& entry : found) entry = exact.parent_path() / entry;
  // A directory may be entered and not be listed; and dots and a trailing separator name none of its entries.
  if (found.empty() && is_there(exact)) found.push_back(exact);
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
