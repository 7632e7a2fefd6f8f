// The files of trips that a conversion leaves.
#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <span>
#include <string>

namespace model {

/// `value`, 0 or greater, with up to four decimals and no more digits than fit in 10 columns; empty when its
/// whole part does not fit.
std::optional<std::string> column_text(double value);

/// Writes origin, destination and trips of every pair of zones, each at the right of 10 columns. What is not
/// closed is removed, so that nobody takes a part of a file for the whole.
class TripFile {
 public:
  /// Replaces the file at `path`.
  explicit TripFile(std::filesystem::path path);
  ~TripFile();
  TripFile(const TripFile&) = delete;
  TripFile& operator=(const TripFile&) = delete;

  /// Writes the trips from `origin` to each zone, all of which fit their columns.
  void write_row(int origin, std::span<const double> trips);

  /// Closes the file. Throws Refusal when not every byte reached it.
  void close();

 private:
  std::filesystem::path path_;
  std::ofstream file_;
  bool closed_ = false;
};

}  // namespace model
