#include "runtime/engine/text_driver/text_layout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <optional>
#include <utility>

#include "runtime/engine/table_shape.h"
#include "runtime/files/plain_file.h"

namespace runtime::engine {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<std::size_t> whole_in(std::string_view text) {
  std::size_t number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return number;
}

std::optional<FieldKind> kind_of(std::string_view word) {
  constexpr std::array<std::pair<std::string_view, FieldKind>, 9> types{{
      {"Byte", FieldKind::Whole},
      {"Short", FieldKind::Whole},
      {"Integer", FieldKind::Whole},
      {"Long", FieldKind::Whole},
      {"Single", FieldKind::Single},
      {"Double", FieldKind::Double},
      {"Float", FieldKind::Double},
      {"Text", FieldKind::Text},
      {"Char", FieldKind::Text},
  }};
  for (const auto& [type, kind] : types)
    if (same_name(word, type)) return kind;
  return std::nullopt;
}

class DescriptionReader {
 public:
  DescriptionReader(const std::filesystem::path& file, std::string_view section)
      : file_(file), section_(section) {}

  TextLayout read() {
    files::expect_plain_file(file_);
    stream_.open(file_, std::ios::binary);
    std::string line;
    while (std::getline(stream_, line)) {
      ++line_;
      take(trimmed(line));
    }
    if (!found_) throw Fault(3625, std::string(section_));
    check_whole();
    return std::move(layout_);
  }

 private:
  [[noreturn]] void fault(const std::string& what) const { throw misfit(file_, line_, what); }

  void take(std::string_view line) {
    if (line.empty() || line.front() == ';') return;
    if (line.front() == '[') {
      within_ = line.back() == ']' && same_name(trimmed(line.substr(1, line.size() - 2)), section_);
      found_ = found_ || within_;
      return;
    }
    if (!within_) return;
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) fault("'" + std::string(line) + "' tells nothing");
    take_key(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
  }

  void take_key(std::string_view key, std::string_view value) {
    if (same_name(key, "Format")) {
      layout_.is_fixed = choice(value, "FixedLength", "CSVDelimited");
    } else if (same_name(key, "ColNameHeader")) {
      layout_.has_heading = choice(value, "True", "False");
    } else if (key.size() > 3 && same_name(key.substr(0, 3), "COL")) {
      if (const auto number = whole_in(key.substr(3))) take_column(*number, value);
    }
  }

  bool choice(std::string_view value, std::string_view yes, std::string_view no) const {
    if (same_name(value, yes)) return true;
    if (same_name(value, no)) return false;
    fault("'" + std::string(value) + "' is neither " + std::string(yes) + " nor " + std::string(no));
  }

  void take_column(std::size_t number, std::string_view value) {
    const auto next = layout_.columns.size() + 1;
    if (number != next) fault("column " + std::to_string(next) + " is missing");
    TextColumn column;
    column.name = taken_name(value);
    if (is_taken(column.name)) fault("there are two columns '" + column.name + "'");
    const auto type = taken_word(value);
    const auto kind = kind_of(type);
    if (!kind) fault("'" + std::string(type) + "' is no type");
    column.kind = *kind;
    if (!value.empty()) column.width = taken_width(value);
    layout_.columns.push_back(std::move(column));
  }

  bool is_taken(std::string_view name) const {
    return std::any_of(layout_.columns.begin(), layout_.columns.end(),
                       [name](const TextColumn& column) { return same_name(column.name, name); });
  }

  static std::string_view taken_word(std::string_view& rest) {
    const auto word = rest.substr(0, rest.find_first_of(blanks));
    rest = trimmed(rest.substr(word.size()));
    return word;
  }

  // A name that holds blanks stands in quotes.
  std::string taken_name(std::string_view& rest) const {
    if (!rest.starts_with('"')) return std::string(taken_word(rest));
    const auto end = rest.find('"', 1);
    if (end == std::string_view::npos) fault("a quote has no end");
    std::string name(rest.substr(1, end - 1));
    rest = trimmed(rest.substr(end + 1));
    return name;
  }

  std::size_t taken_width(std::string_view rest) const {
    constexpr std::size_t widest = 255;
    const auto word = taken_word(rest);
    const auto width = whole_in(rest);
    if (!same_name(word, "Width") || !width || *width == 0 || *width > widest)
      fault("the width of a column does not fit");
    return *width;
  }

  void check_whole() const {
    if (layout_.columns.empty()) fault("no column is told");
    if (!layout_.is_fixed) return;
    for (const auto& column : layout_.columns)
      if (column.width == 0) fault("the column '" + column.name + "' has no width");
  }

  const std::filesystem::path& file_;
  std::string_view section_;
  std::ifstream stream_;
  std::int64_t line_ = 0;
  bool found_ = false;
  bool within_ = false;
  TextLayout layout_;
};

}  // namespace

TextLayout read_layout(const std::filesystem::path& description, std::string_view file_name) {
  return DescriptionReader(description, file_name).read();
}

Fault misfit(const std::filesystem::path& file, std::int64_t line, const std::string& what) {
  return Fault(3349, file.filename().string() + ", line " + std::to_string(line) + ": " + what);
}

}  // namespace runtime::engine
