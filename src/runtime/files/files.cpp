#include "runtime/files/files.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "runtime/fault.h"
#include "runtime/files/copy_bytes.h"
#include "runtime/files/flush.h"
#include "runtime/files/path_names.h"
#include "runtime/files/path_state.h"
#include "runtime/files/wildcards.h"

namespace runtime::files {

namespace fs = std::filesystem;

namespace {

// In byte order, because the order in which a directory lists its entries differs from disk to disk.
std::vector<fs::path> found_by_pattern(const fs::path& directory, const std::string& pattern) {
  std::vector<fs::path> found;
  std::error_code error;
  fs::directory_iterator entry(directory.empty() ? fs::path(".") : directory, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path name = entry->path().filename();
    if (matches(pattern, text_of(name))) found.push_back(directory / name);
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<fs::path> found_by(std::string_view name) {
  const fs::path written = native(name);
  const std::string last = text_of(written.filename());
  if (has_wildcard(last)) return found_by_pattern(resolve(text_of(written.parent_path())), last);
  const fs::path exact = resolve(name);
  std::vector<fs::path> found = namesakes(name);
  // The one that the name means comes first.
  if (const auto meant = std::find(found.begin(), found.end(), exact); meant != found.end())
    std::rotate(found.begin(), meant, meant + 1);
  return found;
}

void move_to_another_volume(const fs::path& source, const fs::path& target) {
  copy_bytes(source, target);
  std::error_code error;
  fs::remove(source, error);
  if (error) throw Fault(75, text_of(source));
}

void replace_on_another_volume(const fs::path& source, const fs::path& target) {
  fs::path beside = target;
  beside += unfinished_ending;
  std::error_code error;
  try {
    copy_bytes(source, beside);
    flush_to_disk(beside);
    if (move_over(beside, target) != Moved::yes) throw Fault(75);
  } catch (const Fault& fault) {
    fs::remove(beside, error);
    throw Fault(fault.number, text_of(target));
  }
  fs::remove(source, error);
}

}  // namespace

std::string Files::Dir(std::string_view name, int attributes) const {
  const bool wants_directories = (attributes & directory_attribute) != 0;
  for (const fs::path& found : found_by(name)) {
    if (is_a_directory(found) && !wants_directories) continue;
    return found.has_filename() ? text_of(found.filename()) : ".";
  }
  return {};
}

void Files::Kill(std::string_view pattern) const {
  std::vector<fs::path> files = found_by(pattern);
  std::erase_if(files, is_a_directory);
  if (files.empty()) throw missing_fault(resolve(pattern), pattern);
  for (const fs::path& file : files) {
    if (is_held(file)) throw Fault(55, text_of(file));
    std::error_code error;
    if (!fs::remove(file, error)) throw Fault(75, text_of(file));
  }
}

void Files::FileCopy(std::string_view from, std::string_view to) const {
  const fs::path source = resolve(from);
  const std::vector<fs::path> older = namesakes(to);
  const fs::path target = exactly_named(to);
  if (!is_there(source)) throw missing_fault(source, from);
  if (!has_directory(target)) throw Fault(76, std::string(to));
  const auto is_source = [&source](const fs::path& path) { return is_same_file(source, path); };
  if (std::any_of(older.begin(), older.end(), is_source) || is_held(source))
    throw Fault(70, std::string(from));
  if (is_any_held(older) || is_held(target)) throw Fault(70, std::string(to));
  if (!is_plain_file(source)) throw Fault(75, std::string(from));
  if (!std::all_of(older.begin(), older.end(), is_plain_file)) throw Fault(75, std::string(to));
  copy_bytes(source, target);
  remove_namesakes(older, target);
}

void Files::Name(std::string_view from, std::string_view to) const {
  const fs::path source = resolve(from);
  const fs::path target = exactly_named(to);
  const std::vector<fs::path> older = namesakes(from);
  if (!is_there(source)) throw missing_fault(source, from);
  if (!has_directory(target)) throw Fault(76, std::string(to));
  if (is_any_held(older)) throw Fault(55, std::string(from));
  if (is_there(resolve(to))) throw Fault(58, std::string(to));
  std::error_code error;
  fs::rename(source, target, error);
  if (error == std::errc::cross_device_link && is_plain_file(source)) {
    move_to_another_volume(source, target);
  } else if (error) {
    throw Fault(75, std::string(from));
  }
  remove_namesakes(older, target);
}

void Files::Replace(std::string_view from, std::string_view to) const {
  const fs::path source = resolve(from);
  const fs::path target = exactly_named(to);
  const std::vector<fs::path> older = namesakes(to);
  if (!is_there(source)) throw missing_fault(source, from);
  if (!has_directory(target)) throw Fault(76, std::string(to));
  if (is_held(source)) throw Fault(55, std::string(from));
  if (is_any_held(older) || is_held(target)) throw Fault(55, std::string(to));
  if (std::any_of(older.begin(), older.end(), is_a_directory)) throw Fault(58, std::string(to));
  if (!std::all_of(older.begin(), older.end(), can_give_way)) throw Fault(75, std::string(to));
  flush_to_disk(source);
  switch (move_over(source, target)) {
    case Moved::yes:
      break;
    case Moved::other_volume:
      replace_on_another_volume(source, target);
      break;
    case Moved::no:
      throw Fault(75, std::string(to));
  }
  remove_namesakes(older, target);
  flush_names(target.parent_path());
}

std::optional<fs::file_time_type> Files::time_of(std::string_view name) const {
  std::error_code error;
  const auto time = fs::last_write_time(resolve(name), error);
  return error ? std::nullopt : std::optional(time);
}

void Files::ChDir(std::string_view name) const {
  std::error_code error;
  fs::current_path(resolve(name), error);
  if (error) throw Fault(76, std::string(name));
}

std::string Files::current_directory() const {
  std::error_code error;
  const fs::path directory = fs::current_path(error);
  if (error) throw Fault(76);
  return text_of(directory);
}

bool Files::is_any_held(const std::vector<fs::path>& paths) const {
  return std::any_of(paths.begin(), paths.end(), [this](const fs::path& path) { return is_held(path); });
}

bool Files::is_held(const fs::path& path) const {
  const bool is_numbered = std::any_of(open_files_.begin(), open_files_.end(), [&path](const auto& entry) {
    return is_same_file(entry.second.path, path);
  });
  return is_numbered || (held_elsewhere && held_elsewhere(path));
}

}  // namespace runtime::files
