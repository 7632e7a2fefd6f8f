// The names of the project database's tables and fields, and the fixed lists that its rows come from.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace database {

/// The file's name in the application directory.
inline constexpr std::string_view file_name = "zelmor.mdb";

/// The tables that every project database holds; without one of them the file is none.
std::vector<std::string> required_tables();

namespace zones {  // one record
inline constexpr std::string_view table = "zones";
inline constexpr std::string_view numzones = "numzones";
inline constexpr std::string_view numdstrct = "numdstrct";
}  // namespace zones

namespace industries {  // one row for each of the fixed list, made anew at each choice
inline constexpr std::string_view table = "Industries";
inline constexpr std::string_view index = "index";
inline constexpr std::string_view industry_number = "industry_number";
inline constexpr std::string_view description = "description";
}  // namespace industries

namespace occupations {  // one row for each of the fixed list, made anew at each choice
inline constexpr std::string_view table = "Occupations";
inline constexpr std::string_view index = "index";
inline constexpr std::string_view occupation_number = "Occupation_Number";
inline constexpr std::string_view description = "description";
}  // namespace occupations

namespace anfiles {  // one record: the files of an analysis
inline constexpr std::string_view table = "Anfiles";
inline constexpr std::string_view agfile = "Agfile";
inline constexpr std::string_view minfile = "Minfile";
inline constexpr std::string_view manfile = "Manfile";
inline constexpr std::string_view serfile = "Serfile";
inline constexpr std::string_view foutfile = "foutfile";
inline constexpr std::string_view distrfile = "Distrfile";
inline constexpr std::string_view relfile = "relFile";
inline constexpr std::string_view tonsfile = "TonsFile";
inline constexpr std::string_view occ_outfile = "OccOutfile";
}  // namespace anfiles

namespace timdist {  // one record: the files of distances and times
inline constexpr std::string_view table = "timdist";
inline constexpr std::string_view distance = "distance";
inline constexpr std::string_view base_time = "base_time";
inline constexpr std::string_view improvement_time = "improvement_time";
}  // namespace timdist

namespace commuter {  // one row for each occupation of a run, in the order of `occupation_files`
inline constexpr std::string_view table = "commuter";
inline constexpr std::string_view index = "index";
inline constexpr std::string_view sigma = "sigma";
inline constexpr std::string_view wage = "wage";
}  // namespace commuter

namespace commercial {  // one row for each industry
inline constexpr std::string_view table = "Commercial";
inline constexpr std::string_view industry_number = "industry_number";
inline constexpr std::string_view sigma = "sigma";
inline constexpr std::string_view value = "Value";
inline constexpr std::string_view unit_cost = "Unit Cost";
inline constexpr std::string_view reliability_cost = "Reliability Cost";
inline constexpr std::string_view jit_factor = "JIT Factor";
inline constexpr std::string_view load_factor = "Load Factor";
}  // namespace commercial

// Used by the places of their fields alone.
inline constexpr std::string_view commute_param_table = "Commute_Param";
inline constexpr std::string_view var_input_table = "var_input";
inline constexpr std::string_view tontotruck_table = "tontotruck";

// Made and dropped while the grid is in use.
inline constexpr std::string_view sosec_table = "sosec";
inline constexpr std::string_view population_table = "population";
inline constexpr std::string_view csvtable_table = "csvtable";

/// An industry of the fixed list. Its name becomes the name of a column and of a file.
struct Industry {
  int index;  ///< The place in the list, from 1.
  std::string_view description;
  int industry_number;  ///< The code by which the model knows it.
};

inline constexpr std::array<Industry, 4> industry_list{{
    {1, "Manufacturing", 4},
    {2, "Mining", 2},
    {3, "Agriculture", 1},
    {4, "Service", 9},
}};

/// An occupation of the fixed list. Its name becomes the name of a column and of a file.
struct Occupation {
  int index;  ///< The place in the list, from 1, and its code.
  std::string_view description;
};

inline constexpr std::array<Occupation, 13> occupation_list{{
    {1, "Executive_Adminstrative_Managerial"},
    {2, "Professional_Specialty"},
    {3, "Technicians_and_Related_Support"},
    {4, "Sales"},
    {5, "Administrative_Support"},
    {6, "Private_Household"},
    {7, "Protective_Service"},
    {8, "Service"},
    {9, "Precision_production_craft_and_repair"},
    {10, "Machine_operators_assemblers_inspectors"},
    {11, "Transportation_and_material_moving"},
    {12, "Handlers_equipment_cleaners_helpers"},
    {13, "Armed_Forces"},
}};

/// The fields of `anfiles` that hold the population and employment files of a commuter run, by the code of
/// the run (0 to 11), which is also the order of the rows of `commuter`. It is not that of `occupation_list`.
inline constexpr std::array<std::string_view, 12> occupation_files{
    "Prodfile",    "Tranfile",   "Execfile",     "Techfile",   "Machfile",       "Protectfile",
    "Laborerfile", "Salesfiles", "Professfiles", "Adminfiles", "Housekeepfiles", "Occservicefiles",
};

}  // namespace database
