// A study so small that its figures can be worked out by hand.
//
// 302 persons of occupation 7 earn 480 dollars a day, so that half a minute's wage is 0.50 dollars: both ways
// together, a one-way minute costs 1 dollar. A car mile costs 0.80 dollars, half of the commuters drive alone
// and a quarter share a car, so that a one-way mile costs 2 * 0.80 * (0.5 + 0.25 / 2) = 1 dollar. The fare of
// 4 dollars, paid by a quarter, is 1 dollar each. The cost of a pair is therefore minutes + miles + 1.
//
//            miles  base minutes  cost  price   improvement minutes  cost  price
//   within     9         50         60    540            50            60    540
//   between   29        150        180    660            30            60    540
//
// Both zones have 151 workplaces. With an elasticity of 2 the base case's price index is the harmonic mean
// of 540 and 660, which is 594: 114 dollars of commuting a day. In the improvement case it is 540: 60
// dollars. Commuters divide as 1/540^2 to 1/660^2, that is 121 to 81, in the base case, and evenly in the
// improvement case.
#pragma once

#include "sample_models/study_directory.h"

namespace model_test {

/// Writes all files of the study, for a base case without reliability; the report goes to "report.txt".
void write_two_zones(const StudyDirectory& study);

/// Writes "ccpar.txt" for a mode word and a case, "0" or "1".
void ask_for_case(const StudyDirectory& study, const std::string& mode, const std::string& which);

/// Runs the base case and the improvement case, as the front end does.
void run_both_cases(const StudyDirectory& study, const std::string& mode);

}  // namespace model_test
