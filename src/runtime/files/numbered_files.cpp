#include <cerrno>
#include <exception>

#include "runtime/fault.h"
#include "runtime/files/files.h"
#include "runtime/files/path_names.h"
#include "runtime/files/path_state.h"
#include "runtime/text/print_line.h"

namespace runtime::files {

namespace fs = std::filesystem;

namespace {

constexpr int last_number = 511;

Fault refused(const fs::path& path, std::string_view name) {
  if (errno == ENOSPC) return Fault(61, std::string(name));
  if (!has_directory(path)) return Fault(76, std::string(name));
  return Fault(75, std::string(name));
}

// The opening of a pipe waits for its other end. A device may be written to.
bool may_be_opened(const fs::path& path, bool is_read) {
  return is_read ? is_plain_file(path) : !is_a_directory(path) && !is_pipe(path);
}

}  // namespace

void Files::open(int number, std::string_view name, Mode mode) {
  if (number < 1 || number > last_number) throw Fault(52);
  const std::string given(name);
  if (is_open(number)) throw Fault(55, given);
  const fs::path found = resolve(name);
  const std::vector<fs::path> older = mode == Mode::Output ? namesakes(name) : std::vector<fs::path>();
  if (mode == Mode::Input && !is_there(found)) throw missing_fault(found, name);
  expect_no_bar(found, name, mode);
  for (const fs::path& namesake : older) expect_no_bar(namesake, name, mode);

  const fs::path path = mode == Mode::Output ? exactly_named(name) : found;
  const auto how = mode == Mode::Input    ? std::ios::in
                   : mode == Mode::Output ? std::ios::trunc
                                          : std::ios::app;
  errno = 0;
  std::fstream stream(path, how | std::ios::binary | (mode == Mode::Input ? std::ios::in : std::ios::out));
  if (!stream) throw refused(path, name);
  remove_namesakes(older, path);
  std::error_code error;
  const auto entry =
      open_files_.emplace(number, OpenFile{given, fs::absolute(path, error), mode, std::move(stream)}).first;
  text::name_stream(entry->second.stream, entry->second.name);
}

void Files::expect_place_for_output(std::string_view name) const {
  expect_no_bar(resolve(name), name, Mode::Output);
  for (const fs::path& namesake : namesakes(name)) {
    expect_no_bar(namesake, name, Mode::Output);
    if (!can_give_way(namesake)) throw Fault(75, std::string(name));
  }
  if (!has_directory(exactly_named(name))) throw Fault(76, std::string(name));
}

void Files::expect_no_bar(const fs::path& found, std::string_view name, Mode mode) const {
  if (bars_opening(found, mode)) throw Fault(55, std::string(name));
  if (is_there(found) && !may_be_opened(found, mode == Mode::Input)) throw Fault(75, std::string(name));
}

int Files::free_number() const {
  int number = 1;
  while (is_open(number)) ++number;
  if (number > last_number) throw Fault(67);
  return number;
}

bool Files::bars_opening(const fs::path& path, Mode mode) const {
  if (held_elsewhere && held_elsewhere(path)) return true;
  for (const auto& [number, file] : open_files_) {
    const bool both_read = mode == Mode::Input && file.mode == Mode::Input;
    if (!both_read && is_same_file(file.path, path)) return true;
  }
  return false;
}

Files::OpenFile& Files::open_file(int number) {
  const auto entry = open_files_.find(number);
  if (entry == open_files_.end()) throw Fault(52);
  return entry->second;
}

std::ostream& Files::out(int number) {
  OpenFile& file = open_file(number);
  if (file.mode == Mode::Input) throw Fault(54);
  return file.stream;
}

std::string Files::input_value(int number, Until until) {
  OpenFile& file = open_file(number);
  if (file.mode != Mode::Input) throw Fault(54);
  return files::input_value(file.stream, until);
}

void Files::Close(int number) {
  const auto entry = open_files_.extract(number);
  if (entry.empty()) return;
  OpenFile& file = entry.mapped();
  if (file.stream.good()) errno = 0;  // else it still tells why the last write failed
  file.stream.close();
  if (file.mode == Mode::Input || text::failure_was_told(file.stream)) return;
  text::expect_written(file.stream, file.name);
}

void Files::close_all() {
  std::exception_ptr first;
  while (!open_files_.empty()) {
    try {
      Close(open_files_.begin()->first);
    } catch (const Fault&) {
      if (!first) first = std::current_exception();
    }
  }
  if (first) std::rethrow_exception(first);
}

void Files::write_file(std::string_view name, const std::function<void(std::ostream&)>& writer) {
  constexpr int number = 1;
  open_for_output(number, name);
  std::ostream& stream = out(number);
  writer(stream);
  text::expect_written(stream, std::string(name));
  Close(number);
}

}  // namespace runtime::files
