// How a report tells what is known about the reliability of the roads.
#pragma once

#include <optional>
#include <string>

#include "common/reliability.h"

namespace model {

/// The lines of a report's study section: where the data come from, and what they say of each case. A case
/// without roads has no data.
std::string reliability_lines(ReliabilityMode mode, const std::optional<Roads>& base,
                              const std::optional<Roads>& improvement);

}  // namespace model
