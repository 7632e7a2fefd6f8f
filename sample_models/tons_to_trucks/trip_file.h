// The files of trips that a conversion leaves.
#pragma once

#include <filesystem>
#include <fstream>
#include <span>

namespace model {

/// Whether the whole part of `trips`, 0 or greater, fits in 10 columns.
bool fits_column(double trips);

/// Writes origin, destination and trips of every pair of zones, each at the right of 10 columns, the trips
/// with up to four decimals and no more of them than fit. What is not closed is removed, so that nobody takes
/// a part of a file for the whole.
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
