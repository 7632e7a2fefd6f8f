#include "common/line_reader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <utility>

#include "common/numbers.h"
#include "common/refusal.h"

namespace model {

namespace {

constexpr std::size_t buffer_size = 65'536;
constexpr std::size_t longest_line = 32'000;
constexpr std::size_t longest_quote = 40;
constexpr std::size_t field_width = 10;

double read_number(const LineReader& file, std::string_view text) {
  const auto value = parse_number(text);
  if (!value) file.refuse(quoted(text) + " is not a number");
  if (*value < 0) file.refuse(quoted(text) + " is negative");
  return *value;
}

}  // namespace

LineReader::LineReader(std::string name)
    : name_(std::move(name)), file_(name_, std::ios::binary), buffer_(buffer_size) {
  if (!file_) throw Refusal(name_, "the file is missing or cannot be opened");
}

std::string_view LineReader::waiting() const {
  return {buffer_.data() + begin_, end_ - begin_};
}

bool LineReader::fill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (!file_) return false;
  file_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  if (file_.bad()) throw Refusal(name_, "the file cannot be read");
  end_ += static_cast<std::size_t>(file_.gcount());
  return file_.gcount() > 0;
}

std::string_view LineReader::next() {
  ++line_;
  if (waiting().find('\n') == std::string_view::npos && waiting().size() <= longest_line) fill();
  if (waiting().empty()) refuse("the line is missing");
  const auto line = waiting().substr(0, waiting().find('\n'));
  if (line.size() > longest_line) refuse("the line is too long");
  const bool has_line_feed = line.size() < waiting().size();
  if (!has_line_feed || line.empty() || line.back() != '\r') {
    refuse("the line does not end in carriage return and line feed");
  }
  begin_ += line.size() + 1;
  return line.substr(0, line.size() - 1);
}

void LineReader::expect_end() {
  if (at_end()) return;
  ++line_;
  refuse("the file has more lines than it may have");
}

void LineReader::refuse(const std::string& reason) const {
  throw Refusal(name_, line_, reason);
}

std::string quoted(std::string_view text) {
  std::string readable;
  std::ranges::copy_if(text, std::back_inserter(readable), [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= ' ' && code != 0x7F;
  });
  const bool fits = readable.size() <= longest_quote;
  return "'" + readable.substr(0, longest_quote) + (fits ? "'" : "...'");
}

std::vector<double> read_numbers(LineReader& file, std::size_t count) {
  const auto pieces = split_at_blanks(file.next());
  if (pieces.size() != count) {
    file.refuse("the line must hold " + std::to_string(count) + (count == 1 ? " number" : " numbers") +
                " and holds " + std::to_string(pieces.size()));
  }
  std::vector<double> values;
  values.reserve(count);
  for (const auto piece : pieces) values.push_back(read_number(file, piece));
  return values;
}

int whole_number(const LineReader& file, const std::string& name, double number, int highest) {
  if (number >= 1 && number <= highest && number == std::floor(number)) return static_cast<int>(number);
  file.refuse("the " + name + " must be a whole number from 1 to " + std::to_string(highest));
}

std::array<std::string_view, 3> read_fields(LineReader& file) {
  const auto line = file.next();
  if (line.size() != 3 * field_width) file.refuse("the line must have three fields of 10 columns");
  return {line.substr(0, field_width), line.substr(field_width, field_width), line.substr(2 * field_width)};
}

int zone_of(const LineReader& file, std::string_view field) {
  const auto zone = parse_whole(field);
  if (!zone) file.refuse(quoted(field) + " is not a zone");
  return *zone;
}

double number_of(const LineReader& file, std::string_view field) {
  return field.find_first_not_of(' ') == std::string_view::npos ? 0 : read_number(file, field);
}

int read_whole(LineReader& file, int lowest, int highest) {
  const auto text = file.next();
  const auto value = parse_whole(text);
  if (value && *value >= lowest && *value <= highest) return *value;
  file.refuse(quoted(text) + " is not a whole number from " + std::to_string(lowest) + " to " +
              std::to_string(highest));
}

}  // namespace model
