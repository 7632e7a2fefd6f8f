#include "forms/form3.h"

#include "runtime/fault.h"

namespace forms {

namespace {

using runtime::forms::ControlDesign;
using runtime::forms::disabled;
using runtime::forms::enabled;
using runtime::forms::hidden;
using runtime::forms::Kind;
using runtime::forms::no_index;
using runtime::forms::Place;
using runtime::forms::shown;

constexpr const char* in_frame1 = "Frame1";
constexpr int box_width = 4335;
constexpr int button_left = 4440;
constexpr int button_width = 2175;
constexpr int row_height = 375;
constexpr int box_height = 371;

/// Which recordset a path box is bound to.
constexpr int of_anfiles = 0;
constexpr int of_timdist = 1;
constexpr int of_occupations = 2;

constexpr ControlDesign data(int index, const char* table) {
  return {"Data1", index,   Kind::Data,
          nullptr, "Data1", {6840, 120 + index * 360, 1935, 300},
          hidden,  enabled, {nullptr, no_index, table}};
}

constexpr ControlDesign path_box(const char* name, int index, Place place, int data_index, const char* field,
                                 const char* label) {
  return {name, index, Kind::TextBox, nullptr, "", place, hidden, disabled, {"Data1", data_index, field},
          label};
}

/// A path box in the left column of a row.
constexpr ControlDesign row_box(const char* name, int index, int top, int data_index, const char* field,
                                const char* label, int height = box_height) {
  return path_box(name, index, {0, top, box_width, height}, data_index, field, label);
}

/// The button in the right column of a row.
constexpr ControlDesign row_button(const char* name, int index, const char* caption, int top, bool visible,
                                   int height = row_height) {
  return {name,   index, Kind::CommandButton, nullptr, caption, {button_left, top, button_width, height},
          visible};
}

constexpr ControlDesign occupation_box(int index, const char* field, const char* label) {
  return path_box("Text5", index, {0, index * 320, box_width, 315}, of_occupations, field, label);
}

constexpr ControlDesign occupation_button(int index) {
  return {"Command10", index, Kind::CommandButton, nullptr, "", {button_left, index * 320, 2935, 315},
          hidden};
}

constexpr ControlDesign option(int index, const char* caption) {
  return {"Option4", index, Kind::OptionButton, in_frame1, caption, {120, 630 + index * 260, 2460, 250}};
}

constexpr ControlDesign frame_button(const char* name, const char* caption, Place place, bool visible,
                                     bool is_enabled = enabled) {
  return {name, no_index, Kind::CommandButton, in_frame1, caption, place, visible, is_enabled};
}

constexpr ControlDesign label(const char* name, const char* caption, Place place, bool visible) {
  return {name, no_index, Kind::Label, nullptr, caption, place, visible};
}

constexpr ControlDesign line(const char* name, Place place) {
  return {name, no_index, Kind::Line, in_frame1, "", place};
}

constexpr std::array controls{
    data(0, "Anfiles"),
    data(1, "timdist"),
    data(2, "Anfiles"),
    ControlDesign{"cdbox1", no_index, Kind::CommonDialog, nullptr, "", {6840, 1320, 480, 480}, hidden},
    label("Label2", "", {6840, 1920, 255, 255}, shown),
    label("Label3", "Output files are named <inputfile>\"_trip.txt\"", {360, 120, 3175, 255}, hidden),
    label("Label4", "Inputs must be in annual tons", {360, 480, 3175, 255}, hidden),
    // The commercial page: four trip files, the district file, the output file, the reliability file.
    row_box("Text1", 0, 120, of_anfiles, "Agfile", "Agriculture Trips"),
    row_box("Text1", 1, 120, of_anfiles, "Agfile", "Agriculture Trips"),
    row_button("Command1", 1, "Agriculture Trips", 120, shown),
    row_box("Text1", 8, 620, of_anfiles, "Minfile", "Mining Trips"),
    row_box("Text1", 2, 620, of_anfiles, "Minfile", "Mining Trips"),
    row_button("Command1", 2, "Mining Trips", 620, shown),
    row_box("Text1", 4, 1120, of_anfiles, "Manfile", "Manufacturing Trips"),
    row_button("Command1", 4, "Manufacturing Trips", 1120, shown),
    row_box("Text1", 9, 1620, of_anfiles, "Serfile", "Service Trips"),
    row_button("Command1", 9, "Service Trips", 1620, shown),
    // On the commuter page the output button of the commercial page lies beneath an occupation row.
    row_box("Text2", no_index, 2580, of_anfiles, "foutfile", "Output File", 290),
    row_button("Command5", no_index, "Output File", 2580, shown, 290),
    // The time and distance page.
    row_box("Text1", 5, 400, of_timdist, "distance", "Distance File"),
    row_button("Command4", 5, "Distance File", 400, hidden),
    row_box("Text1", 6, 800, of_timdist, "base_time", "Base Time File"),
    row_button("Command4", 6, "Base Time File", 800, hidden),
    row_box("Text1", 7, 1200, of_timdist, "improvement_time", "Improvement Time File"),
    row_button("Command4", 7, "Improvement Time File", 1200, hidden),
    // The truck page.
    row_box("Text7", no_index, 1149, of_anfiles, "TonsFile", "Commodity File"),
    row_button("Command15", no_index, "Commodity File", 1145, hidden),
    ControlDesign{"Command13",
                  no_index,
                  Kind::CommandButton,
                  nullptr,
                  "Convert Tons to Trucks",
                  {1200, 2280, 2535, 420},
                  hidden},
    ControlDesign{
        "Command14", no_index, Kind::CommandButton, nullptr, "Quit", {3840, 2280, 1335, 420}, hidden},
    // The commuter page: twelve occupations and the output file.
    occupation_box(0, "Prodfile", "Precision Production"),
    occupation_button(0),
    occupation_box(1, "Tranfile", "Transportation"),
    occupation_button(1),
    occupation_box(2, "Execfile", "Executive,Admin,Managerial"),
    occupation_button(2),
    occupation_box(3, "Techfile", "Technician"),
    occupation_button(3),
    occupation_box(4, "Machfile", "Operators,Assemblers,Inspectors"),
    occupation_button(4),
    occupation_box(5, "Protectfile", "Protective Services"),
    occupation_button(5),
    occupation_box(6, "Laborerfile", "Handlers,Cleaners,Laborers"),
    occupation_button(6),
    occupation_box(7, "Salesfiles", "Sales"),
    occupation_button(7),
    occupation_box(8, "Professfiles", "Professional Specialty"),
    occupation_button(8),
    occupation_box(9, "Adminfiles", "Admin Support"),
    occupation_button(9),
    occupation_box(10, "Housekeepfiles", "Private Household Services"),
    occupation_button(10),
    occupation_box(11, "Occservicefiles", "Other Services"),
    occupation_button(11),
    occupation_box(12, "OccOutfile", "Output File"),
    occupation_button(12),
    occupation_box(13, "OccOutfile", "Output File"),
    path_box("Text6", no_index, {0, 3841, box_width, 315}, of_occupations, "OccOutfile", "Output File"),
    ControlDesign{"Command12",
                  no_index,
                  Kind::CommandButton,
                  nullptr,
                  "Output File",
                  {button_left, 3841, 2935, 315},
                  hidden},
    // The rows that the options ask for.
    row_box("Text3", no_index, 2110, of_anfiles, "Distrfile", "District File"),
    row_button("Command7", no_index, "District File", 2110, hidden),
    row_box("Text4", no_index, 3000, of_anfiles, "relFile", "Reliability File"),
    ControlDesign{"Command9",
                  no_index,
                  Kind::CommandButton,
                  nullptr,
                  "Reliability File",
                  {button_left, 3000, 1575, row_height},
                  hidden},
    ControlDesign{"Frame1", no_index, Kind::Frame, nullptr, "Options", {0, 3480, 6510, 1600}},
    ControlDesign{"Label1", no_index, Kind::Label, in_frame1, "Reliability ", {120, 390, 2460, 230}},
    option(0, "Use Sketch-Planning Data"),
    option(1, "Supply Reliability File"),
    option(2, "Don't Use in Analysis"),
    line("Line1", {2640, 420, 30, 1000}),
    ControlDesign{
        "Check1", no_index, Kind::CheckBox, in_frame1, "Use District File?", {2880, 450, 2340, 260}},
    line("Line2", {120, 330, 6270, 30}),
    line("Line3", {120, 1500, 6270, 30}),
    frame_button("Command2", "Run Commercial Analysis", {2880, 880, 2340, row_height}, shown, disabled),
    frame_button("Command11", "Run Commuter Analysis", {2880, 880, 2340, row_height}, hidden),
    frame_button("Command8", "Save", {5340, 390, 1020, row_height}, shown),
    frame_button("Command6", "Save", {5340, 390, 1020, row_height}, hidden),
    frame_button("Command3", "Quit", {5340, 880, 1020, row_height}, shown),
};

constexpr runtime::forms::FormDesign design{"Form3", "Form3", 7440, 6900, false, true, controls};

}  // namespace

const runtime::forms::FormDesign& form3_design() {
  return design;
}

Form3::Form3(runtime::forms::Desktop& desktop) : Form(desktop, form3_design()) {}

std::string& PickEntries::operator()(int place) {
  if (place < 0 || place >= static_cast<int>(entries_.size())) throw runtime::Fault(9);
  return entries_[static_cast<std::size_t>(place)];
}

}  // namespace forms
