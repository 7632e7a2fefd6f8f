#include "forms/form1.h"

#include <array>

namespace forms {

namespace {

using runtime::forms::Binding;
using runtime::forms::ControlDesign;
using runtime::forms::enabled;
using runtime::forms::hidden;
using runtime::forms::Kind;
using runtime::forms::no_index;
using runtime::forms::shown;

constexpr ControlDesign data(const char* name, int left, const char* table) {
  return {name,    no_index, Kind::Data,
          nullptr, name,     {left, 6120, 1935, 300},
          hidden,  enabled,  {nullptr, no_index, table}};
}

constexpr ControlDesign grid(const char* name, const char* data_control, runtime::forms::Place place,
                             bool visible, const char* label) {
  return {name, no_index, Kind::DBGrid, nullptr, "", place, visible, enabled, {data_control}, label};
}

constexpr ControlDesign button(const char* name, const char* caption, runtime::forms::Place place,
                               bool visible) {
  return {name, no_index, Kind::CommandButton, nullptr, caption, place, visible};
}

// Broken because the button is narrower than the words.
constexpr const char* restore_defaults = "Restore\nDefaults";

constexpr ControlDesign occupation(int row, const char* caption) {
  return {"Lbl_data4", row,     Kind::Label,
          nullptr,     caption, {row == 0 ? 360 : 240, 3120 + row * 218, 3495, 218},
          hidden};
}

constexpr std::array controls{
    data("Data1", 120, "Commercial"),
    data("Data2", 2160, "var_input"),
    data("Data3", 4200, "Commute_Param"),
    data("Data4", 6240, "commuter"),
    ControlDesign{"Label1", 0, Kind::Label, nullptr, "Manufacturing", {240, 240, 1095, 255}},
    ControlDesign{"Label1", 1, Kind::Label, nullptr, "Mining", {720, 480, 495, 255}},
    ControlDesign{"Label1", 2, Kind::Label, nullptr, "Agriculture", {480, 720, 855, 255}},
    ControlDesign{"Label1", 3, Kind::Label, nullptr, "Service", {720, 960, 615, 255}},
    ControlDesign{"Label2", no_index, Kind::Label, nullptr, " Base Case", {120, 1920, 855, 255}, hidden},
    ControlDesign{
        "Label3", no_index, Kind::Label, nullptr, "  Improvement Case", {0, 480, 1455, 255}, hidden},
    occupation(0, "Precision production, craft, and repair"),
    occupation(1, "Transportation and material moving"),
    occupation(2, "Executive, Administrative, and Managerial"),
    occupation(3, "Technicians and Related Support"),
    occupation(4, "Machine Operaters, Assemblers, Inspectors"),
    occupation(5, "Protective service"),
    occupation(6, "Handlers, equipment cleaners, helpers"),
    occupation(7, "Sales"),
    occupation(8, "Professional Specialty"),
    occupation(9, "Administrative Support"),
    occupation(10, "Private Household"),
    occupation(11, "Other Services"),
    grid("DBGrid1", "Data1", {1440, 120, 6855, 1215}, shown, "Commercial Parameters"),
    grid("DBGrid2", "Data2", {1440, 1320, 5295, 975}, hidden, "Speeds and % Highway"),
    grid("DBGrid3", "Data3", {1440, 2400, 6135, 465}, hidden, "Mode Shares"),
    grid("DBGrid4", "Data4", {3840, 2880, 3735, 495}, hidden, "Wages and Elasticity of Substitution (sigma)"),
    button("Command7", restore_defaults, {7320, 4680, 855, 375}, hidden),
    button("Command3", "Save", {5640, 5160, 735, 375}, shown),
    button("Command1", "Cancel", {6480, 5160, 735, 375}, shown),
    button("Command2", restore_defaults, {7320, 5160, 855, 375}, hidden),
    button("Command4", "Save", {5640, 5640, 735, 375}, hidden),
    button("Command5", "Cancel", {6480, 5640, 735, 375}, hidden),
    button("Command6", restore_defaults, {7320, 5640, 855, 375}, hidden),
};

constexpr runtime::forms::FormDesign design{"Form1", "Form1", 8370, 6540, false, true, controls};

}  // namespace

const runtime::forms::FormDesign& form1_design() {
  return design;
}

Form1::Form1(runtime::forms::Desktop& desktop) : Form(desktop, form1_design()) {}

}  // namespace forms
