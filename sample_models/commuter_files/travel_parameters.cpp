#include "commuter_files/travel_parameters.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "common/line_reader.h"
#include "common/parameters.h"
#include "common/refusal.h"

namespace model {

namespace {

// Shares are kept to four digits and are looked at with some indulgence.
constexpr double allowed_gap = 0.02 + 1e-9;

}  // namespace

TravelParameters read_travel_parameters() {
  LineReader file("costpar.txt");
  const auto prices = read_numbers(file, 2);
  const auto shares = read_numbers(file, 5);
  if (shares.front() != 0) file.refuse("the line must begin with 0");
  if (std::abs(std::accumulate(shares.begin(), shares.end(), 0.0) - 1) > allowed_gap) {
    file.refuse("the four mode shares must total 1");
  }
  file.expect_end();
  TravelParameters result{prices[0], prices[1], {}};
  std::copy(shares.begin() + 1, shares.end(), result.mode_shares.begin());
  return result;
}

OccupationParameters read_occupation_parameters(int code) {
  const auto wage_file = coded_file("wage", code);
  const OccupationParameters result{read_single_number(wage_file),
                                    read_single_number(coded_file("sig", code))};
  if (result.wage <= 0) throw Refusal(wage_file, 1, "the wage must be greater than 0");
  return result;
}

}  // namespace model
