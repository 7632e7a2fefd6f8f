// The analyst's report of a commercial run.
#pragma once

#include <string>
#include <vector>

#include "commercial_report/study.h"
#include "commercial_report/traffic.h"

namespace model {

/// The whole report; every line ends in "\n". `traffic` holds each industry's, in the order of the study.
std::string report_text(const Study& study, const std::vector<TrafficByZone>& traffic);

}  // namespace model
