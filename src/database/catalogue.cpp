#include "database/catalogue.h"

namespace database {

std::vector<std::string> required_tables() {
  std::vector<std::string> tables;
  for (const auto table :
       {zones::table, industries::table, occupations::table, anfiles::table, timdist::table, commuter::table,
        commercial::table, commute_param_table, var_input_table, tontotruck_table})
    tables.emplace_back(table);
  return tables;
}

}  // namespace database
