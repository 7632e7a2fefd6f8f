#include "runtime/text/print_line.h"

#include <cerrno>

#include "runtime/fault.h"
#include "runtime/text/numbers.h"

namespace runtime::text {

namespace {

constexpr std::size_t zone_width = 14;

using Content = std::variant<Zone, std::string_view, std::int64_t, float, double>;

struct ContentOf {
  Content operator()(std::monostate) const { return null_word; }
  Content operator()(const std::string& text) const { return std::string_view(text); }
  Content operator()(auto number) const { return number; }
};

struct Appender {
  std::string& line;

  void operator()(Zone) const { line.append(zone_width - line.size() % zone_width, ' '); }
  void operator()(std::string_view text) const { line += text; }
  void operator()(auto number) const { append_printed(line, number); }
};

long& told_mark(std::ostream& stream) {
  static const int index = std::ios_base::xalloc();
  return stream.iword(index);
}

void*& name_place(std::ostream& stream) {
  static const int index = std::ios_base::xalloc();
  return stream.pword(index);
}

}  // namespace

PrintItem::PrintItem(const Value& value) : content_(std::visit(ContentOf{}, value)) {}

void PrintItem::append_to(std::string& line) const {
  std::visit(Appender{line}, content_);
}

void print_line(std::ostream& stream, std::initializer_list<PrintItem> items) {
  // Kept from line to line, so that a file of millions of lines costs no memory call a line.
  thread_local std::string line;
  line.clear();
  for (const PrintItem& item : items) item.append_to(line);
  line += "\r\n";
  errno = 0;
  stream.write(line.data(), static_cast<std::streamsize>(line.size()));
  expect_written(stream);
}

void name_stream(std::ostream& stream, std::string& name) {
  name_place(stream) = &name;
}

void expect_written(std::ostream& stream, const std::string& name) {
  if (stream.good()) return;
  told_mark(stream) = 1;
  const int error = errno;
  const auto* const known = static_cast<const std::string*>(name_place(stream));
  throw Fault(error == ENOSPC ? 61 : 57, name.empty() && known != nullptr ? *known : name);
}

bool failure_was_told(std::ostream& stream) {
  return told_mark(stream) != 0;
}

}  // namespace runtime::text
