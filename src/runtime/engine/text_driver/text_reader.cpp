#include "runtime/engine/text_driver/text_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

#include "runtime/files/plain_file.h"
#include "runtime/text/numbers.h"

namespace runtime::engine {

namespace {

constexpr std::size_t buffer_size = std::size_t{1} << 16;

bool is_blank(char letter) {
  return letter == ' ' || letter == '\t';
}

std::string_view without_blanks(std::string_view field) {
  while (!field.empty() && is_blank(field.front())) field.remove_prefix(1);
  while (!field.empty() && is_blank(field.back())) field.remove_suffix(1);
  return field;
}

}  // namespace

TextReader::TextReader(std::filesystem::path file, const TextLayout& layout)
    : file_(std::move(file)), layout_(layout), buffer_(buffer_size), cells_(layout.columns.size()) {
  files::expect_plain_file(file_);
  stream_.rdbuf()->pubsetbuf(nullptr, 0);
  stream_.open(file_, std::ios::binary);
  std::error_code error;
  total_ = static_cast<std::int64_t>(std::filesystem::file_size(file_, error));
  if (!stream_ || error) throw Fault(3011, file_.string());
  unquoted_.resize(layout.columns.size());
}

void TextReader::fault(const std::string& what) const {
  throw misfit(file_, line_, what);
}

bool TextReader::fill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  passed_ += static_cast<std::int64_t>(begin_);
  end_ -= begin_;
  begin_ = 0;
  if (end_ == buffer_.size()) {
    ++line_;
    fault("the line is too long");
  }
  stream_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  if (stream_.bad()) throw Fault(57, file_.string());
  end_ += static_cast<std::size_t>(stream_.gcount());
  return stream_.gcount() > 0;
}

bool TextReader::next_line() {
  std::size_t looked_at = 0;
  for (;;) {
    const char* const from = buffer_.data() + begin_ + looked_at;
    const auto* const found = static_cast<const char*>(std::memchr(from, '\n', end_ - begin_ - looked_at));
    const auto length = static_cast<std::size_t>(found - (buffer_.data() + begin_));
    if (found != nullptr) {
      text_ = {buffer_.data() + begin_, length};
      begin_ += length + 1;
      break;
    }
    looked_at = end_ - begin_;
    if (fill()) continue;
    if (looked_at == 0) return false;
    text_ = {buffer_.data() + begin_, looked_at};
    begin_ = end_;
    break;
  }
  ++line_;
  if (text_.ends_with('\r')) text_.remove_suffix(1);
  return true;
}

bool TextReader::next() {
  const bool is_start = line_ == 0;
  if (!next_line()) return false;
  if (is_start && text_.empty() && !next_line()) return false;
  if (is_start && layout_.has_heading && !next_line()) return false;
  if (text_.empty()) fault("the line is empty");
  if (layout_.is_fixed) {
    split_fixed();
  } else {
    split_at_commas();
  }
  return true;
}

void TextReader::split_fixed() {
  std::size_t place = 0;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const auto& column = layout_.columns[i];
    const auto from = std::min(place, text_.size());
    cells_[i] = cell_of(column, without_blanks(text_.substr(from, column.width)));
    place = from + column.width;
  }
  if (place < text_.size() && !without_blanks(text_.substr(place)).empty())
    fault("the line is longer than its columns");
}

void TextReader::split_at_commas() {
  std::size_t place = 0;
  bool is_over = false;  // no comma announces one more field
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    if (is_over) {
      cells_[i] = {};
      continue;
    }
    while (place < text_.size() && is_blank(text_[place])) ++place;
    if (place < text_.size() && text_[place] == '"') {
      read_quoted(place, unquoted_[i]);
      cells_[i] = cell_of(layout_.columns[i], unquoted_[i]);
    } else {
      // Fields are short: a loop is at the comma before a search of the library has begun.
      const auto from = place;
      while (place < text_.size() && text_[place] != ',') ++place;
      cells_[i] = cell_of(layout_.columns[i], without_blanks(text_.substr(from, place - from)));
    }
    is_over = place >= text_.size();
    ++place;
  }
  if (!is_over) fault("the line has more fields than columns");
}

// Within quotes a comma is part of the text, and two quotes are one.
void TextReader::read_quoted(std::size_t& place, std::string& text) const {
  text.clear();
  for (++place;; ++place) {
    if (place >= text_.size()) fault("a quote has no end");
    if (text_[place] == '"' && (++place >= text_.size() || text_[place] != '"')) break;
    text += text_[place];
  }
  place = std::min(text_.find_first_not_of(" \t", place), text_.size());
  if (place < text_.size() && text_[place] != ',') fault("a comma is missing behind a quote");
}

TextCell TextReader::cell_of(const TextColumn& column, std::string_view field) const {
  if (field.empty()) return {};
  if (column.kind == FieldKind::Text) return field;
  if (column.kind == FieldKind::Whole) {
    std::int32_t whole = 0;
    const auto read = std::from_chars(field.data(), field.data() + field.size(), whole);
    if (read.ec == std::errc{} && read.ptr == field.data() + field.size()) return std::int64_t{whole};
  }
  const auto number = text::number_in(field);
  if (!number || (column.kind == FieldKind::Single && !std::isfinite(static_cast<float>(*number))))
    fault("'" + std::string(field) + "' is no number for '" + column.name + "'");
  if (column.kind != FieldKind::Whole) return *number;
  using Limits = std::numeric_limits<std::int32_t>;
  if (*number != std::trunc(*number) || *number < Limits::min() || *number > Limits::max())
    fault("'" + std::string(field) + "' is no whole number for '" + column.name + "'");
  return static_cast<std::int64_t>(*number);
}

}  // namespace runtime::engine
