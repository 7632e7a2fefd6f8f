#include "commuter_report/commuter_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "common/numbers.h"
#include "common/reliability_report.h"
#include "common/report.h"
#include "commuter_files/occupations.h"

namespace model {

namespace {

/// The same commuters in both cases.
struct Comparison {
  Commuting base;
  Commuting improvement;

  Comparison& operator+=(const Comparison& other) {
    base += other.base;
    improvement += other.improvement;
    return *this;
  }
  double benefit() const { return base.dollars - improvement.dollars; }
};

Comparison compare_zone(const ReportedOccupation& occupation, std::size_t zone) {
  return {occupation.base.zones[zone], occupation.improvement.zones[zone]};
}

Comparison compare_occupation(const ReportedOccupation& occupation) {
  Comparison sum;
  for (std::size_t zone = 0; zone < occupation.base.zones.size(); ++zone)
    sum += compare_zone(occupation, zone);
  return sum;
}

Comparison compare_all(const Study& study) {
  Comparison sum;
  for (const auto& occupation : study.occupations) sum += compare_occupation(occupation);
  return sum;
}

std::string mean(double total, double commuters) {
  return commuters > 0 ? grouped(total / commuters, 1) : "-";
}

const std::vector<Column> comparison_columns{
    {"", "Commuters"},
    {"Miles", "base"},
    {"Miles", "improved"},
    {"Minutes", "base"},
    {"Minutes", "improved"},
    {"Dollars a day", "base"},
    {"Dollars a day", "improved"},
    {"Benefit in", "dollars a day"},
};

std::vector<std::string> comparison_cells(std::vector<std::string> leading, const Comparison& both) {
  const auto& [base, improvement] = both;
  for (auto& cell : {grouped(base.commuters, 0), mean(base.miles, base.commuters),
                     mean(improvement.miles, improvement.commuters), mean(base.minutes, base.commuters),
                     mean(improvement.minutes, improvement.commuters), grouped(base.dollars, 2),
                     grouped(improvement.dollars, 2), grouped(both.benefit(), 2)}) {
    leading.push_back(cell);
  }
  return leading;
}

std::vector<Column> behind(std::vector<Column> leading) {
  leading.insert(leading.end(), comparison_columns.begin(), comparison_columns.end());
  return leading;
}

std::string study_section(const Study& study) {
  constexpr std::array<std::string_view, 4> modes{"  drive alone", "  public transport", "  two in one car",
                                                  "  walk or cycle"};
  auto text = underlined("The study", '-') + labelled("Zones", grouped(study.zones, 0)) +
              labelled("Districts", study.districts > 0 ? grouped(study.districts, 0) : "none") +
              labelled("Cost of a car", plain(study.travel.dollars_per_car_mile) + " dollars per mile") +
              labelled("Fare of public transport", plain(study.travel.fare) + " dollars per day") +
              labelled("Mode shares", "");
  for (std::size_t i = 0; i < modes.size(); ++i) {
    text += labelled(modes[i], grouped(100 * study.travel.mode_shares[i], 2) + " %");
  }
  const auto& first = study.occupations.front();
  return text + reliability_lines(first.base.mode, first.base.roads, first.improvement.roads);
}

std::string occupation_parameters_section(const Study& study) {
  Table table({{"", "Occupation", Column::Align::Left},
               {"Wage per day", "dollars"},
               {"Elasticity of", "substitution"}});
  for (const auto& [code, parameters, base, improvement] : study.occupations) {
    table.add_row({std::string(occupation_name(code)), grouped(parameters.wage, 2), plain(parameters.sigma)});
  }
  return underlined("Wages and elasticities", '-') + table.text();
}

std::string occupation_section(const Study& study) {
  Table table(behind({{"", "Occupation", Column::Align::Left}}));
  for (const auto& occupation : study.occupations) {
    table.add_row(
        comparison_cells({std::string(occupation_name(occupation.code))}, compare_occupation(occupation)));
  }
  table.add_rule();
  table.add_row(comparison_cells({"All occupations"}, compare_all(study)));
  return underlined("By occupation", '-') + table.text();
}

std::string district_section(const Study& study) {
  std::vector<Comparison> sums(static_cast<std::size_t>(study.districts));
  for (std::size_t zone = 0; zone < study.district_of.size(); ++zone) {
    auto& sum = sums[static_cast<std::size_t>(study.district_of[zone] - 1)];
    for (const auto& occupation : study.occupations) sum += compare_zone(occupation, zone);
  }
  Table table(behind({{"", "District", Column::Align::Left}, {"", "Zones"}}));
  for (std::size_t i = 0; i < sums.size(); ++i) {
    const auto number = static_cast<int>(i) + 1;
    const auto zones = std::ranges::count(study.district_of, number);
    table.add_row(comparison_cells({std::to_string(number), std::to_string(zones)}, sums[i]));
  }
  table.add_rule();
  table.add_row(comparison_cells({"All", std::to_string(study.zones)}, compare_all(study)));
  return underlined("By district of residence", '-') + table.text();
}

std::string result_section(const Study& study) {
  const auto all = compare_all(study);
  const auto benefit = grouped(all.benefit(), 2);
  auto text = underlined("Result", '-');
  if (benefit == "0.00") return text + "The improvement makes no difference to the cost of commuting.\n";
  const bool saves = all.benefit() > 0;
  text += "The improvement " + std::string(saves ? "saves" : "costs") + " the commuters of the study " +
          grouped(std::abs(all.benefit()), 2) + " dollars per working day";
  const double each = std::abs(all.benefit()) / all.base.commuters;
  return text + ", " + grouped(each, 2) + " dollars for each of them.\n";
}

}  // namespace

std::string report_text(const Study& study) {
  auto text =
      underlined("What commuting costs, and what the improvement is worth", '=') +
      "\n"
      "Miles and minutes are means over the commuters, one way. Costs are those of one working day, both\n"
      "ways, in dollars: time, cars, fares and the loss of being tied to near workplaces. The benefit is\n"
      "the base case's cost less the improvement case's, rounded after the subtraction. Where a faster way\n"
      "opens farther workplaces, people travel farther: mean miles may rise.\n\n"
      "These figures come from the sample models, which are stand-ins and not calibrated.\n\n" +
      study_section(study) + '\n' + occupation_parameters_section(study) + '\n' + occupation_section(study) +
      '\n';
  if (study.districts > 0) text += district_section(study) + '\n';
  return text + result_section(study);
}

}  // namespace model
