// A commercial study so small that its figures can be worked out by hand.
//
// A load of manufacturing is worth 400 dollars and half of the trips carry one. An hour of a trip costs 20
// dollars for the driver, 39.98 for the truck and 0.5 * 400 * 0.0001 = 0.02 for what the load loses, which is
// 1 dollar a minute. Where roads are unreliable, an hour that a load comes late costs 600 dollars.
//
//            miles  base minutes  delivered  improvement minutes  delivered  trips from 1  trips from 2
//   within     6         50          450             50              450          11            10
//   between   30        150          550             50              450           9
//
// On the same trips the improvement saves 9 * 100 = 900 dollars. Zone 1 spends 11 * 450 on deliveries at home
// and 9 * 550 on those to zone 2, 4,950 each. With an elasticity of 2 the prices of its deliveries fall to
// the harmonic mean of 1 and 450 / 550, which is 0.9: that is worth 990 dollars, 90 of them by new choice.
#pragma once

#include <string>

#include "sample_models/study_directory.h"

namespace model_test {

/// Writes all files of the study, without reliability and districts; the report goes to "report.txt".
void write_two_zone_trucks(const StudyDirectory& study);

/// Writes "outpar.txt" for a mode word, with the district line and the lines of picks given.
void ask_for_trucks(const StudyDirectory& study, const std::string& mode,
                    const std::string& districts = "0             0",
                    const std::string& picks = " 1 \r\n4\r\n");

}  // namespace model_test
