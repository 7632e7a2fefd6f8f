#include "commuter_files/occupations.h"

namespace model {

namespace {

constexpr std::array<std::string_view, occupation_codes.size()> names{
    "Precision production and repair",
    "Transportation and moving",
    "Executives and managers",
    "Technicians",
    "Machine operators",
    "Protective service",
    "Handlers and helpers",
    "Sales",
    "Professional specialty",
    "Administrative support",
    "Private household",
    "Other services",
};

}  // namespace

std::string_view occupation_name(int code) {
  return names.at(static_cast<std::size_t>(code));
}

}  // namespace model
