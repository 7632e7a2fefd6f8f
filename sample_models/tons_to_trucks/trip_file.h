// The files of trips that a conversion leaves.
#pragma once

#include <filesystem>
#include <fstream>
#include <span>

namespace model {

/// Whether the whole part of `trips`, 0 or greater, fits in 10 columns.
bool fits_column(double trips);

/// Writes origin, destination and trips of every pair of zones, each at the right of 10 columns, the trips
/// with up to four decimals and no more of them than fit. They are written beside their place, so that nobody
/// takes a part of a file for the whole, however the program ends.
class TripFile {
 public:
  /// For the file at `path`, which may be there.
  explicit TripFile(std::filesystem::path path);
  ~TripFile();
  TripFile(const TripFile&) = delete;
  TripFile& operator=(const TripFile&) = delete;

  /// Writes the trips from `origin` to each zone, all of which fit their columns.
  void write_row(int origin, std::span<const double> trips);

  /// Closes the file. Throws Refusal when not every byte reached it, or when it can't have its place.
  void close();

  /// Gives the closed file its place. Throws Refusal when that fails.
  void take_place();

 private:
  [[noreturn]] void refuse() const;

  std::filesystem::path path_;
  std::filesystem::path unfinished_;
  std::ofstream file_;
};

}  // namespace model
