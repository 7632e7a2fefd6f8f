#include "tons_to_trucks/trip_file.h"

#include <array>
#include <charconv>
#include <system_error>
#include <utility>

#include "common/refusal.h"

namespace model {

namespace {

constexpr std::size_t column_width = 10;
constexpr double too_wide = 9'999'999'999.5;

std::string with_decimals(double value, int decimals) {
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
          .ptr;
  std::string text(digits.data(), end);
  if (decimals == 0) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string column(std::string text) {
  return std::string(column_width - text.size(), ' ') + std::move(text);
}

}  // namespace

std::optional<std::string> column_text(double value) {
  if (!(value < too_wide)) return std::nullopt;
  for (int decimals = 4;; --decimals) {
    auto text = with_decimals(value, decimals);
    if (text.size() <= column_width) return text;
  }
}

TripFile::TripFile(std::filesystem::path path)
    : path_(std::move(path)), file_(path_, std::ios::binary | std::ios::trunc) {
  if (!file_) throw Refusal(path_.string(), "the file cannot be written");
}

TripFile::~TripFile() {
  if (closed_) return;
  file_.close();
  std::error_code ignored;
  // Only a plain file can be a cut one: a directory or a device of that name was there before.
  if (std::filesystem::is_regular_file(path_, ignored)) std::filesystem::remove(path_, ignored);
}

void TripFile::write_row(int origin, std::span<const double> trips) {
  const auto from = column(std::to_string(origin));
  std::string lines;
  int destination = 0;
  for (const double value : trips) {
    lines += from + column(std::to_string(++destination)) + column(column_text(value).value()) + "\r\n";
  }
  file_.write(lines.data(), static_cast<std::streamsize>(lines.size()));
  if (!file_) throw Refusal(path_.string(), "the file cannot be written");
}

void TripFile::close() {
  file_.close();
  if (!file_) throw Refusal(path_.string(), "the file cannot be written");
  closed_ = true;
}

}  // namespace model
