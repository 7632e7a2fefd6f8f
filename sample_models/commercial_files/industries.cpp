#include "commercial_files/industries.h"

#include <algorithm>
#include <iterator>

namespace model {

namespace {

constexpr std::array<std::string_view, industry_codes.size()> names{"Agriculture", "Mining", "Manufacturing",
                                                                    "Service"};

}  // namespace

std::string_view industry_name(int code) {
  const auto* const place = std::ranges::find(industry_codes, code);
  return names.at(static_cast<std::size_t>(std::distance(industry_codes.begin(), place)));
}

}  // namespace model
