// The analyst's report of a commuter run.
#pragma once

#include <string>

#include "commuter_report/study.h"

namespace model {

/// The whole report; every line ends in "\n".
std::string report_text(const Study& study);

}  // namespace model
