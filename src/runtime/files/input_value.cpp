#include "runtime/files/input_value.h"

#include <string_view>

#include "runtime/fault.h"

namespace runtime::files {

namespace {

constexpr int end_mark = 0x1A;
// What a program leaves may be of any size, and no sentence is longer.
constexpr std::size_t longest_value = 4096;
constexpr std::string_view blanks = " \t";

bool at_end(std::istream& stream) {
  const int next = stream.peek();
  if (stream.bad()) throw Fault(57);
  return next == std::istream::traits_type::eof() || next == end_mark;
}

bool at_any_of(std::istream& stream, std::string_view characters) {
  return !at_end(stream) && characters.find(static_cast<char>(stream.peek())) != std::string_view::npos;
}

void skip_blanks(std::istream& stream) {
  while (at_any_of(stream, blanks)) stream.get();
}

std::string taken_up_to(std::istream& stream, std::string_view ends) {
  std::string taken;
  while (taken.size() < longest_value && !at_end(stream) && !at_any_of(stream, ends))
    taken += static_cast<char>(stream.get());
  return taken;
}

std::string quoted_value(std::istream& stream) {
  stream.get();
  std::string value = taken_up_to(stream, "\"\r\n");
  taken_up_to(stream, ",\r\n");
  return value;
}

std::string plain_value(std::istream& stream, Until until) {
  std::string value = taken_up_to(stream, until == Until::comma_or_line ? ",\r\n" : ", \t\r\n");
  value.erase(value.find_last_not_of(blanks) + 1);
  return value;
}

void take_delimiter(std::istream& stream) {
  skip_blanks(stream);
  if (!at_any_of(stream, ",\r\n")) return;
  if (stream.get() == '\r' && at_any_of(stream, "\n")) stream.get();
}

}  // namespace

std::string input_value(std::istream& stream, Until until) {
  if (at_end(stream)) throw Fault(62);
  skip_blanks(stream);
  std::string value = at_any_of(stream, "\"") ? quoted_value(stream) : plain_value(stream, until);
  take_delimiter(stream);
  return value;
}

}  // namespace runtime::files
