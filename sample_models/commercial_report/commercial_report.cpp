#include "commercial_report/commercial_report.h"

#include <algorithm>
#include <cmath>

#include "commercial_files/industries.h"
#include "common/numbers.h"
#include "common/reliability_report.h"
#include "common/report.h"

namespace model {

namespace {

std::string mean(double total, double trips) {
  return trips > 0 ? grouped(total / trips, 1) : "-";
}

Traffic sum_of(const TrafficByZone& zones) {
  Traffic sum;
  for (const auto& zone : zones) sum += zone;
  return sum;
}

Traffic sum_of(const std::vector<TrafficByZone>& industries) {
  Traffic sum;
  for (const auto& zones : industries) sum += sum_of(zones);
  return sum;
}

const std::vector<Column> traffic_columns{
    {"Trips", "a day"},
    {"", "Miles"},
    {"Minutes", "base"},
    {"Minutes", "improved"},
    {"Hours saved", "a day"},
    {"Dollars a day", "base"},
    {"Dollars a day", "improved"},
    {"New choice", "dollars a day"},
    {"Benefit in", "dollars a day"},
};

std::vector<std::string> traffic_cells(std::vector<std::string> leading, const Traffic& traffic) {
  for (auto& cell : {grouped(traffic.trips, 1), mean(traffic.miles, traffic.trips),
                     mean(traffic.base_minutes, traffic.trips), mean(traffic.improved_minutes, traffic.trips),
                     grouped((traffic.base_minutes - traffic.improved_minutes) / 60, 1),
                     grouped(traffic.base_dollars, 2), grouped(traffic.improved_dollars, 2),
                     grouped(traffic.new_choice, 2), grouped(traffic.benefit(), 2)}) {
    leading.push_back(cell);
  }
  return leading;
}

std::vector<Column> behind(std::vector<Column> leading) {
  leading.insert(leading.end(), traffic_columns.begin(), traffic_columns.end());
  return leading;
}

std::string study_section(const Study& study) {
  std::optional<Roads> base;
  std::optional<Roads> improvement;
  if (study.roads) {
    base = study.roads->base;
    improvement = study.roads->improvement;
  }
  auto text = underlined("The study", '-') + labelled("Zones", grouped(study.zones, 0)) +
              labelled("Districts", study.districts > 0 ? grouped(study.districts, 0) : "none") +
              reliability_lines(study.mode, base, improvement);
  // Whoever entered another share for the improvement would look for it in vain.
  if (study.mode == ReliabilityMode::Database)
    text += labelled("", "a commercial run keeps the base case's highway share in both cases");
  return text;
}

std::string parameters_section(const Study& study) {
  Table table({{"", "Industry", Column::Align::Left},
               {"Elasticity of", "substitution"},
               {"Value of a", "load, dollars"},
               {"Unit cost", "dollars an hour"},
               {"Reliability cost", "dollars an hour"},
               {"Just-in-time", "factor"},
               {"Load factor", "per cent"},
               {"Hour of a trip", "dollars"}});
  for (const auto& [code, parameters, base, improvement] : study.industries) {
    table.add_row({std::string(industry_name(code)), plain(parameters.sigma), grouped(parameters.value, 2),
                   grouped(parameters.unit_cost, 2), grouped(parameters.reliability_cost, 2),
                   plain(parameters.just_in_time), plain(parameters.load_factor),
                   grouped(60 * base.per_minute, 2)});
  }
  return underlined("Costs and factors", '-') + table.text();
}

std::string industry_section(const Study& study, const std::vector<TrafficByZone>& traffic) {
  Table table(behind({{"", "Industry", Column::Align::Left}}));
  for (std::size_t i = 0; i < traffic.size(); ++i) {
    table.add_row(traffic_cells({std::string(industry_name(study.industries[i].code))}, sum_of(traffic[i])));
  }
  table.add_rule();
  table.add_row(traffic_cells({"All industries"}, sum_of(traffic)));
  return underlined("By industry", '-') + table.text();
}

std::string district_section(const Study& study, const std::vector<TrafficByZone>& traffic) {
  std::vector<Traffic> sums(static_cast<std::size_t>(study.districts));
  for (std::size_t zone = 0; zone < study.district_of.size(); ++zone) {
    auto& sum = sums[static_cast<std::size_t>(study.district_of[zone] - 1)];
    for (const auto& industry : traffic) sum += industry[zone];
  }
  Table table(behind({{"", "District", Column::Align::Left}, {"", "Zones"}}));
  for (std::size_t i = 0; i < sums.size(); ++i) {
    const auto number = static_cast<int>(i) + 1;
    const auto zones = std::ranges::count(study.district_of, number);
    table.add_row(traffic_cells({std::to_string(number), std::to_string(zones)}, sums[i]));
  }
  table.add_rule();
  table.add_row(traffic_cells({"All", std::to_string(study.zones)}, sum_of(traffic)));
  return underlined("By district of origin", '-') + table.text();
}

std::string result_section(const std::vector<TrafficByZone>& traffic) {
  const auto all = sum_of(traffic);
  auto text = underlined("Result", '-');
  if (grouped(all.benefit(), 2) == "0.00") {
    return text + "The improvement makes no difference to the cost of commercial traffic.\n";
  }
  const double size = std::abs(all.benefit());
  return text + "The improvement " + (all.benefit() > 0 ? "saves" : "costs") +
         " the commercial traffic of the study " + grouped(size, 2) + " dollars per working day, " +
         grouped(size / all.trips, 2) + " dollars for each trip.\n";
}

}  // namespace

std::string report_text(const Study& study, const std::vector<TrafficByZone>& traffic) {
  auto text =
      underlined("What delay costs commercial traffic, and what the improvement is worth", '=') +
      "\n"
      "Miles and minutes are means over the trips of trucks, one way. Costs are those of one working day,\n"
      "in dollars: drivers, trucks, what loads lose on the road and what their unexpected delay costs. The\n"
      "costs of the improvement case are those of the same trips. New choice is what it is worth besides "
      "that\n"
      "loads then go where deliveries became cheaper. The benefit is the base case's cost less the\n"
      "improvement case's, plus new choice, rounded after the sum.\n\n"
      "These figures come from the sample models, which are stand-ins and not calibrated.\n\n" +
      study_section(study) + '\n' + parameters_section(study) + '\n' + industry_section(study, traffic) +
      '\n';
  if (study.districts > 0) text += district_section(study, traffic) + '\n';
  return text + result_section(traffic);
}

}  // namespace model
