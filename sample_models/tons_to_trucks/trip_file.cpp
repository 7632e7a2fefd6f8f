#include "tons_to_trucks/trip_file.h"

#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "common/refusal.h"

namespace model {

namespace {

constexpr std::size_t column_width = 10;

std::string_view with_decimals(std::span<char> digits, double value, int decimals) {
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
          .ptr;
  std::string_view text(digits.data(), end);
  if (decimals == 0) return text;
  text = text.substr(0, text.find_last_not_of('0') + 1);
  return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

void append_column(std::string& lines, std::string_view text) {
  lines.append(column_width - text.size(), ' ').append(text);
}

void append_trips(std::string& lines, double trips) {
  // Most pairs have none.
  if (trips == 0) return append_column(lines, "0");
  std::array<char, 32> digits{};
  auto text = with_decimals(digits, trips, 4);
  for (int decimals = 3; text.size() > column_width; --decimals) {
    text = with_decimals(digits, trips, decimals);
  }
  append_column(lines, text);
}

}  // namespace

bool fits_column(double trips) {
  return trips < 9'999'999'999.5;
}

TripFile::TripFile(std::filesystem::path path)
    : path_(std::move(path)),
      unfinished_(path_.string() + ".part"),
      file_(unfinished_, std::ios::binary | std::ios::trunc) {
  if (!file_) refuse();
}

TripFile::~TripFile() {
  file_.close();
  std::error_code ignored;
  // Only a plain file can be a cut one: a directory or a device of that name was there before.
  if (std::filesystem::is_regular_file(unfinished_, ignored)) std::filesystem::remove(unfinished_, ignored);
}

void TripFile::refuse() const {
  throw Refusal(path_.string(), "the file cannot be written");
}

void TripFile::write_row(int origin, std::span<const double> trips) {
  const auto from = std::to_string(origin);
  std::string lines;
  lines.reserve(trips.size() * (3 * column_width + 2));
  int destination = 0;
  for (const double value : trips) {
    append_column(lines, from);
    append_column(lines, std::to_string(++destination));
    append_trips(lines, value);
    lines += "\r\n";
  }
  file_.write(lines.data(), static_cast<std::streamsize>(lines.size()));
  if (!file_) refuse();
}

void TripFile::close() {
  file_.close();
  std::error_code ignored;
  if (!file_ || std::filesystem::is_directory(path_, ignored)) refuse();
}

void TripFile::take_place() {
  std::error_code error;
  std::filesystem::rename(unfinished_, path_, error);
  if (error) refuse();
}

}  // namespace model
