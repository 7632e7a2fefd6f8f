#include "forms/form2.h"

#include <array>

namespace forms {

namespace {

using runtime::forms::ControlDesign;
using runtime::forms::enabled;
using runtime::forms::hidden;
using runtime::forms::Kind;
using runtime::forms::no_index;
using runtime::forms::Place;
using runtime::forms::shown;

constexpr const char* in_frame1 = "Frame1";
constexpr const char* in_frame2 = "Frame2";
constexpr const char* mask = "####";
constexpr const char* number_words = "Enter Number of Zones";

constexpr ControlDesign number(const char* name, int left, bool visible, const char* field,
                               const char* label) {
  return {name,      no_index, Kind::MaskEdBox,
          in_frame1, mask,     {left, 660, 1095, 315},
          visible,   enabled,  {"Data1", no_index, field},
          label};
}

constexpr ControlDesign button(const char* name, const char* container, const char* caption, Place place,
                               bool visible) {
  return {name, no_index, Kind::CommandButton, container, caption, place, visible};
}

constexpr ControlDesign industry(int index, const char* caption) {
  return {"Chcktrp", index, Kind::CheckBox, in_frame2, caption, {120, 300 + index * 360, 2400, 300}};
}

/// On the screen the occupations stand in another order than in the fixed list.
constexpr ControlDesign occupation(int index, int row, const char* caption, bool visible = shown) {
  return {"Chcktrp", index, Kind::CheckBox, nullptr, caption, {4560, row * 360 - 60, 4215, 300}, visible};
}

constexpr ControlDesign text(int index) {
  return {"Text1", index, Kind::TextBox, nullptr, "", {120, 5640 + index * 360, 1215, 315}, hidden};
}

constexpr std::array controls{
    ControlDesign{"Data1",
                  no_index,
                  Kind::Data,
                  nullptr,
                  "Data1",
                  {120, 5280, 1935, 300},
                  hidden,
                  enabled,
                  {nullptr, no_index, "zones"}},
    ControlDesign{
        "Frame1", no_index, Kind::Frame, nullptr, "Develop Commercial Market Inputs", {120, 120, 4215, 4920}},
    ControlDesign{"Label1", no_index, Kind::Label, in_frame1, number_words, {120, 360, 2415, 255}},
    number("MaskEdBox1", 120, shown, "Numzones", number_words),
    number("MaskEdBox2", 1320, hidden, "numdstrct", "Number of Districts"),
    button("Command5", in_frame1, "Save", {120, 1080, 705, 375}, hidden),
    button("Command6", in_frame1, "Cancel ", {840, 1080, 855, 375}, hidden),
    ControlDesign{"Frame2", no_index, Kind::Frame, in_frame1, "Choose Markets", {120, 1740, 3975, 2940}},
    industry(0, "Manufacturing"),
    industry(1, "Mining"),
    industry(2, "Agriculture"),
    industry(3, "Service"),
    button("Command1", in_frame2, "Enter Commercial \nTrip Data", {120, 1920, 1815, 855}, shown),
    button("Command3", in_frame2, "Enter Commuter\nData", {120, 1920, 1815, 855}, hidden),
    button("Command2", in_frame2, "Quit-Return to\nMain Menu", {2040, 1920, 1815, 855}, shown),
    button("Command4", in_frame2, "Quit-Return to\nMain Menu", {2040, 1920, 1815, 855}, hidden),
    occupation(12, 1, "Precision production, craft, and repair"),
    occupation(14, 2, "Transportation and material moving"),
    occupation(4, 3, "Executive, Administrative, and Managerial"),
    occupation(6, 4, "Technicians and Related Support"),
    occupation(13, 5, "Machine Operaters, Assemblers, Inspectors"),
    occupation(10, 6, "Protective service"),
    occupation(15, 7, "Handlers, equipment cleaners, helpers"),
    occupation(7, 8, "Sales"),
    occupation(5, 9, "Professional Specialty"),
    occupation(8, 10, "Administrative Support"),
    occupation(9, 11, "Private Household"),
    occupation(11, 12, "Other Services"),
    occupation(16, 13, "Armed Forces", hidden),
    text(0),
    text(1),
    text(2),
};

// A number counts only when the analyst has saved it, so an unload by anything else drops it.
constexpr runtime::forms::FormDesign design{"Form2", "Develop Inputs", 8895, 5160, false, false, controls};

}  // namespace

const runtime::forms::FormDesign& form2_design() {
  return design;
}

Form2::Form2(runtime::forms::Desktop& desktop) : Form(desktop, form2_design()) {}

}  // namespace forms
