// Files by name and by number, as the desktop gives them to a program.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/files/input_value.h"

namespace runtime::files {

/// Stands behind the name of a file that is on its way to its place.
inline constexpr std::string_view unfinished_ending = ".quelar_part";

/// The file operations of one program and the numbered files that it holds open. Names are UTF-8, are
/// separated by "/" or "\" and are found without regard to case (see `resolve`); a file that is made bears
/// exactly the name given, and older ones whose names differ only in case give way: to every operation here
/// they are one file.
/// Whatever fails is a `Fault` that bears the name given; no other exception comes out.
/// Only the current directory is the process's; all else belongs to the object.
class Files {
 public:
  /// The attribute with which `dir` finds directories, too.
  static constexpr int directory_attribute = 16;

  /// Whether another room of the program holds this file open, as the engine does with its database. Set by
  /// the owner of both, and asked with paths that may be relative to the current directory. Such a file is
  /// never opened, copied, deleted or renamed here.
  std::function<bool(const std::filesystem::path&)> held_elsewhere;

  /// The name, without its directory, of the file that `name` or the first in byte order that a pattern of
  /// "*" and "?" finds; "" when there is none and for "". A name that ends in a separator finds "." when
  /// directories are asked for.
  std::string Dir(std::string_view name, int attributes = 0) const;

  /// Deletes all files, never directories, that a name or pattern finds. Fault 53 when it finds none, 76
  /// when its directory is missing, 55 for a file that the program holds open, 75 for one that cannot go.
  void Kill(std::string_view pattern) const;

  /// Copies a file over another or to a new name; the copy can be written to even when its source cannot.
  /// Fault 53 without a source, 76 without one of the directories, 70 for a copy onto itself and when the
  /// program holds either file open, 75 when one is no plain file or cannot be opened, 61 for a full disk, 57
  /// for any other failure on the way. No cut file is left behind.
  void FileCopy(std::string_view from, std::string_view to) const;

  /// Gives a file or directory another name; a file may go to another volume by it, at the cost and with the
  /// faults of a copy. Fault 53 when there is none of the old name, 58 when there is one of the new, 76
  /// without one of the directories, 55 when the program holds it open, else 75.
  void Name(std::string_view from, std::string_view to) const;

  /// Gives a file, which is brought to the disk first, the place of another: there is no moment in which
  /// neither the older one nor the whole new one is there, also when it comes from another volume. Faults: as
  /// Name(), but for the older file, which goes: 55 when the program holds it open, 58 for a directory. Then
  /// nothing has changed.
  void Replace(std::string_view from, std::string_view to) const;

  /// When a file was last written; nothing when there is none.
  std::optional<std::filesystem::file_time_type> time_of(std::string_view name) const;

  /// Fault 76 when there is no such directory.
  void ChDir(std::string_view name) const;
  std::string current_directory() const;

  /// Opens a file under a number from 1 to 511 (else Fault 52) and keeps it open until `close`. Bytes pass
  /// as they are. Fault 55 when the number is open, or the file is under another number (only reading twice
  /// is allowed) or elsewhere; 76 without the directory, 53 without the file to read, 75 when refused, for
  /// what is no plain file and is to be read, and for a pipe.
  void open_for_output(int number, std::string_view name) { open(number, name, Mode::Output); }
  void open_for_append(int number, std::string_view name) { open(number, name, Mode::Append); }
  void open_for_input(int number, std::string_view name) { open(number, name, Mode::Input); }

  /// The lowest number that is not open. Fault 67 when all are.
  int free_number() const;

  /// Refuses a name that open_for_output() would refuse for what bears it already, 55 and 75, or for its
  /// missing directory, 76. Touches nothing.
  void expect_place_for_output(std::string_view name) const;

  bool is_open(int number) const { return open_files_.contains(number); }

  /// The stream of a file opened for output or append. Who writes to it by other means than
  /// `text::print_line` calls `text::expect_written`. Fault 52 when the number is not open, 54 when it is
  /// open for input.
  std::ostream& out(int number);

  /// The next value of a file opened for input, else Fault 54, or 52 when the number is not open. Otherwise
  /// as `files::input_value`: Fault 62 past the end.
  std::string input_value(int number, Until until = Until::blank_comma_or_line);

  /// Closes a number, or does nothing when it is not open. Fault 61 or 57 when what was written did not all
  /// reach the file, unless that was told before; the number is free all the same.
  void Close(int number);

  /// Closes every number, and then tells of the first failure.
  void close_all();

  /// Makes a file at once: opens it under number 1, lets `writer` fill it and closes it. After a fault on
  /// the way number 1 is still open, and it is for the caller's clean-up to close it.
  void write_file(std::string_view name, const std::function<void(std::ostream&)>& writer);

 private:
  enum class Mode { Input, Output, Append };

  struct OpenFile {
    std::string name;
    std::filesystem::path path;
    Mode mode;
    std::fstream stream;
  };

  void open(int number, std::string_view name, Mode mode);
  OpenFile& open_file(int number);
  void expect_no_bar(const std::filesystem::path& found, std::string_view name, Mode mode) const;
  bool is_held(const std::filesystem::path& path) const;
  bool is_any_held(const std::vector<std::filesystem::path>& paths) const;
  bool bars_opening(const std::filesystem::path& path, Mode mode) const;

  std::map<int, OpenFile> open_files_;
};

}  // namespace runtime::files
