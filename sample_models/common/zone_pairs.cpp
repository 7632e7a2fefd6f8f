#include "common/zone_pairs.h"

#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

#include "common/numbers.h"

namespace model {

namespace {

/// Takes a whole number and the one blank behind it off the front of `line`.
std::optional<int> take_zone(std::string_view& line) {
  int zone = 0;
  const auto end = line.data() + line.size();
  const auto [stop, error] = std::from_chars(line.data(), end, zone);
  if (error != std::errc{} || stop == end || *stop != ' ') return std::nullopt;
  line.remove_prefix(static_cast<std::size_t>(stop - line.data()) + 1);
  return zone;
}

std::string pair_name(int origin, int destination) {
  return "pair " + std::to_string(origin) + " " + std::to_string(destination);
}

}  // namespace

void ZonePairs::read_row(std::span<double> values) {
  ++origin_;
  int destination = 0;
  for (double& value : values) {
    ++destination;
    value = layout_ == PairLayout::Blanks ? next_between_blanks(destination) : next_in_columns(destination);
  }
}

double ZonePairs::next_between_blanks(int expected) {
  const auto line = file_.next();
  auto rest = line;
  const auto origin = take_zone(rest);
  const auto destination = origin ? take_zone(rest) : std::nullopt;
  if (!destination) file_.refuse(quoted(line) + " is not an origin and a destination and a value");
  expect(*origin, *destination, expected);
  if (rest.empty()) file_.refuse(pair_name(origin_, expected) + " has no value");
  const auto value = rest.front() == ' ' || rest.back() == ' ' ? std::nullopt : parse_number(rest);
  if (!value) file_.refuse(quoted(rest) + " is not a number");
  if (*value < 0) file_.refuse(quoted(rest) + " is negative");
  return *value;
}

double ZonePairs::next_in_columns(int expected) {
  const auto [origin, destination, value] = read_fields(file_);
  expect(zone_of(file_, origin), zone_of(file_, destination), expected);
  return number_of(file_, value);
}

void ZonePairs::expect(int origin, int destination, int expected) const {
  if (origin != origin_ || destination != expected) refuse_order(origin, destination, expected);
}

void ZonePairs::refuse_order(int origin, int destination, int expected) const {
  for (const int zone : {origin, destination}) {
    if (zone >= 1 && zone <= zones_) continue;
    file_.refuse("there is no zone " + std::to_string(zone) + " in a study of " + std::to_string(zones_));
  }
  const auto found = std::pair(origin, destination);
  if (found < std::pair(origin_, expected)) {
    file_.refuse(pair_name(origin, destination) + " stands twice or out of order");
  }
  file_.refuse(pair_name(origin_, expected) + " is missing");
}

}  // namespace model
