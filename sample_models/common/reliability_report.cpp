#include "common/reliability_report.h"

#include "common/numbers.h"
#include "common/report.h"

namespace model {

namespace {

std::string road_words(const std::optional<Roads>& roads) {
  if (!roads) return "no data";
  return grouped(roads->speed, 1) + " miles per hour, " + grouped(100 * roads->highway_share, 1) +
         " % on highways: " + grouped(unexpected_minutes_per_mile(*roads), 2) +
         " unexpected minutes per mile";
}

}  // namespace

std::string reliability_lines(ReliabilityMode mode, const std::optional<Roads>& base,
                              const std::optional<Roads>& improvement) {
  if (mode == ReliabilityMode::None) return labelled("Reliability", "not part of this analysis");
  if (!base && !improvement) {
    return labelled("Reliability", "asked for from a file, but no reliability data were supplied;") +
           labelled("", "the figures leave it out");
  }
  const bool from_database = mode == ReliabilityMode::Database;
  return labelled("Reliability", from_database ? "sketch-planning data" : "data of the analyst's file") +
         labelled("  base case", road_words(base)) + labelled("  improvement case", road_words(improvement));
}

}  // namespace model
