// Lines of the text files that the program and the models pass to each other.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <variant>

#include "runtime/value.h"

namespace runtime::text {

/// Stands between two items of a line: blanks up to the next 14-column zone.
struct Zone {};
inline constexpr Zone zone{};

/// One item of a printed line: a text, a number or `zone`. It views a text and keeps none, so it lives no
/// longer than the call it is made for.
class PrintItem {
 public:
  PrintItem(Zone fill) : content_(fill) {}
  PrintItem(std::string_view text) : content_(text) {}
  PrintItem(const std::string& text) : content_(std::string_view(text)) {}
  PrintItem(const char* text) : content_(std::string_view(text)) {}
  PrintItem(std::floating_point auto number) : content_(number) {}
  template <std::integral Number>
  requires(!std::same_as<Number, bool> && !std::same_as<Number, char>) PrintItem(Number number)
      : content_(static_cast<std::int64_t>(number)) {}
  PrintItem(const Value& value);

  void append_to(std::string& line) const;

 private:
  std::variant<Zone, std::string_view, std::int64_t, float, double> content_;
};

/// Writes one line, ended by CR LF, in one piece. Items that stand next to each other follow each other
/// directly, with only the blanks that belong to numbers; `zone` fills with blanks up to the next column
/// 15, 29, 43 and so on, and an item that ends exactly at a zone's end pushes the next a whole zone on.
/// Columns count bytes. A stream that could not take the line is a Fault as `expect_written` tells it.
void print_line(std::ostream& stream, std::initializer_list<PrintItem> items);

/// Lets what is told of `stream` bear the name of its file. `name` is kept by its place, not copied.
void name_stream(std::ostream& stream, std::string& name);

/// Fault 61 when a write to `stream` failed for a full disk, 57 when it failed for anything else; `name` is
/// the file's, for its words, where `name_stream` has not told it. Whoever writes to a numbered file by other
/// means than `print_line` calls this behind the last write.
void expect_written(std::ostream& stream, const std::string& name = {});

/// Whether `expect_written` has told of this stream's failure: closing it need not tell again.
bool failure_was_told(std::ostream& stream);

}  // namespace runtime::text
