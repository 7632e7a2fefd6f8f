#include "runtime/engine/text_driver/text_writer.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

#include "runtime/files/plain_file.h"
#include "runtime/text/numbers.h"
#include "runtime/text/print_line.h"

namespace runtime::engine {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t flush_size = std::size_t{1} << 16;
constexpr std::string_view line_end = "\r\n";

bool ends_in_a_line_end(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary | std::ios::ate);
  stream.seekg(-1, std::ios::cur);
  return stream.get() == '\n';
}

// The digits that the width holds, without the zeros that say nothing.
std::string_view rounded(std::array<char, 32>& buffer, double number, std::size_t width) {
  const auto whole =
      std::to_chars(buffer.begin(), buffer.end(), std::trunc(number), std::chars_format::fixed, 0);
  if (whole.ec != std::errc{}) return {};
  const auto whole_size = static_cast<std::size_t>(whole.ptr - buffer.data());
  const int decimals = whole_size + 1 < width ? static_cast<int>(width - whole_size - 1) : 0;
  const auto end = std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed, decimals);
  std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  if (decimals > 0) text = text.substr(0, text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.remove_suffix(1);
  return text == "-0" ? "0" : text;
}

}  // namespace

bool append_in_width(std::string& line, double number, std::size_t width) {
  const auto start = line.size();
  text::append_joined(line, number);
  if (line.size() - start > width) {
    line.resize(start);
    std::array<char, 32> buffer;
    const auto digits = rounded(buffer, number, width);
    if (digits.empty() || digits.size() > width) return false;
    line += digits;
  }
  line.insert(start, width - (line.size() - start), ' ');
  return true;
}

TextWriter::TextWriter(fs::path file, const TextLayout& layout) : file_(std::move(file)), layout_(layout) {
  files::expect_plain_file(file_);
  std::error_code error;
  size_before_ = fs::file_size(file_, error);
  if (error) throw Fault(3011, file_.string());
  stream_.rdbuf()->pubsetbuf(nullptr, 0);
  stream_.open(file_, std::ios::binary | std::ios::app);
  if (!stream_) throw Fault(75, file_.string());
  lines_.reserve(flush_size + 1024);
  if (size_before_ > 0 && !ends_in_a_line_end(file_)) lines_ += line_end;
  if (size_before_ == 0 && layout_.has_heading) append_heading();
}

TextWriter::~TextWriter() {
  if (is_finished_) return;
  stream_.close();
  std::error_code ignored;
  fs::resize_file(file_, size_before_, ignored);
}

void TextWriter::append_heading() {
  for (const auto& column : layout_.columns) {
    if (!layout_.is_fixed && &column != &layout_.columns.front()) lines_ += ',';
    append_text(column, column.name);
  }
  lines_ += line_end;
}

void TextWriter::append(std::span<const TextCell> row) {
  ++line_;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (i > 0 && !layout_.is_fixed) lines_ += ',';
    append_cell(layout_.columns[i], row[i]);
  }
  lines_ += line_end;
  if (lines_.size() >= flush_size) flush();
}

void TextWriter::append_cell(const TextColumn& column, const TextCell& cell) {
  const auto* const text = std::get_if<std::string_view>(&cell);
  if (std::holds_alternative<std::monostate>(cell)) {
    if (layout_.is_fixed) lines_.append(column.width, ' ');
  } else if ((text != nullptr) != (column.kind == FieldKind::Text)) {
    throw Fault(3421, column.name);
  } else if (text != nullptr) {
    append_text(column, *text);
  } else if (const auto* const whole = std::get_if<std::int64_t>(&cell)) {
    append_whole(column, *whole);
  } else {
    append_number(column, std::get<double>(cell));
  }
}

void TextWriter::append_whole(const TextColumn& column, std::int64_t number) {
  const auto start = lines_.size();
  text::append_joined(lines_, number);
  if (!layout_.is_fixed) return;
  const auto size = lines_.size() - start;
  if (size > column.width) refuse(column);
  lines_.insert(start, column.width - size, ' ');
}

void TextWriter::append_number(const TextColumn& column, double number) {
  if (column.kind == FieldKind::Whole && number != std::trunc(number)) throw Fault(3421, column.name);
  if (!layout_.is_fixed) {
    text::append_joined(lines_, number);
  } else if (!append_in_width(lines_, number, column.width)) {
    refuse(column);
  }
}

void TextWriter::append_text(const TextColumn& column, std::string_view text) {
  if (layout_.is_fixed) {
    if (text.size() > column.width) refuse(column);
    lines_ += text;
    lines_.append(column.width - text.size(), ' ');
    return;
  }
  lines_ += '"';
  for (const char c : text) {
    if (c == '"') lines_ += c;
    lines_ += c;
  }
  lines_ += '"';
}

void TextWriter::refuse(const TextColumn& column) const {
  throw misfit(file_, line_,
               "the value does not fit into the " + std::to_string(column.width) + " columns of '" +
                   column.name + "'");
}

void TextWriter::flush() {
  errno = 0;
  stream_.write(lines_.data(), static_cast<std::streamsize>(lines_.size()));
  lines_.clear();
  text::expect_written(stream_, file_.string());
}

void TextWriter::finish() {
  flush();
  stream_.close();
  text::expect_written(stream_, file_.string());
  is_finished_ = true;
}

}  // namespace runtime::engine
