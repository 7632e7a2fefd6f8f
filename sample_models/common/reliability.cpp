#include "common/reliability.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

namespace model {

namespace {

constexpr double free_highway_speed = 60;
constexpr double free_street_speed = 35;
constexpr double unexpected_part = 0.4;

constexpr std::array words{std::pair{ReliabilityMode::Database, "DB"},
                           std::pair{ReliabilityMode::File, "FILE"},
                           std::pair{ReliabilityMode::None, "NONE"}};

}  // namespace

std::optional<ReliabilityMode> parse_mode(std::string_view word) {
  for (const auto& [mode, its_word] : words) {
    if (word == its_word) return mode;
  }
  return std::nullopt;
}

std::string word_of(ReliabilityMode mode) {
  const auto* const row = std::ranges::find(words, mode, &decltype(words)::value_type::first);
  return row->second;
}

ReliabilityMode read_mode(LineReader& file) {
  const auto line = file.next();
  const auto mode = parse_mode(line);
  if (!mode) file.refuse(quoted(line) + " is not one of the words DB and FILE and NONE");
  return *mode;
}

Roads checked_roads(const LineReader& file, double speed, double highway_share) {
  if (speed <= 0) file.refuse("the speed must be greater than 0");
  if (highway_share > 1) file.refuse("the highway share must be from 0 to 1");
  return {speed, highway_share};
}

std::optional<BothRoads> read_supplied_roads() {
  if (!std::filesystem::exists("var.txt")) return std::nullopt;
  LineReader file("var.txt");
  const auto values = read_numbers(file, 4);
  const BothRoads roads{checked_roads(file, values[0], values[1]), checked_roads(file, values[2], values[3])};
  file.expect_end();
  return roads;
}

double unexpected_minutes_per_mile(const Roads& roads) {
  const double free_speed =
      roads.highway_share * free_highway_speed + (1 - roads.highway_share) * free_street_speed;
  return unexpected_part * std::max(0.0, 60 / roads.speed - 60 / free_speed);
}

}  // namespace model
