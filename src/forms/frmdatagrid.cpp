#include "forms/frmdatagrid.h"

#include <QLabel>
#include <array>

namespace forms {

namespace {

using runtime::forms::ControlDesign;
using runtime::forms::hidden;
using runtime::forms::Kind;
using runtime::forms::no_index;
using runtime::forms::Place;

constexpr const char* in_buttons = "picButtons";

constexpr ControlDesign label(int index, const char* caption, Place place) {
  return {"Label2", index, Kind::Label, nullptr, caption, place};
}

constexpr ControlDesign range_box(int index, Place place, const char* words) {
  return {"txt_zonedit", index, Kind::TextBox, nullptr, "", place, true, true, {}, words};
}

constexpr ControlDesign bar_button(const char* name, const char* caption, int left, int width) {
  return {name, no_index, Kind::CommandButton, in_buttons, caption, {left, 60, width, 420}};
}

// The tops of the strip are those of a window as high as the form was drawn; the form moves them. The list of
// the picked fields is never moved, so it stands beside the grid, where no height covers it.
constexpr std::array controls{
    ControlDesign{"Shape2", no_index, Kind::Shape, nullptr, "", {5040, 4460, 3810, 1435}},
    ControlDesign{"Shape1", no_index, Kind::Shape, nullptr, "", {120, 4460, 4815, 1435}},
    ControlDesign{"Label1", no_index, Kind::Label, nullptr, "", {8520, 4560, 1815, 255}, hidden},
    label(0, "From Zone", {1440, 4460, 1095, 355}),  // so high that its neighbour, a little lower, is whole
    label(1, "To Zone", {2640, 4560, 1095, 255}),
    label(2, "Origin", {240, 4815, 1095, 255}),
    label(3, "Destination", {240, 5130, 1095, 255}),
    label(4, "Fill Value", {3840, 4560, 975, 255}),
    label(5, "Fields Selected", {8520, 600, 1815, 255}),
    ControlDesign{"Label3", no_index, Kind::Label, nullptr, "", {8520, 900, 2880, 2775}},
    ControlDesign{"DataLu", no_index, Kind::Data, nullptr, "", {5160, 4460, 1935, 300}, hidden},
    ControlDesign{"picButtons", no_index, Kind::PictureBox, nullptr, "", {0, 0, 11400, 540}},
    bar_button("Cmdquit", "Quit-Return to Main Menu", 60, 2415),
    bar_button("cmdClose", "&Save Population by Occupation and Continue", 2535, 4755),
    bar_button("cmdFilter", "&Filter", 7350, 1215),
    bar_button("cmdSort", "&Sort", 8625, 1215),
    bar_button("cmdRefresh", "&Refresh", 9900, 1215),
    ControlDesign{"grdDataGrid",
                  no_index,
                  Kind::DBGrid,
                  nullptr,
                  "",
                  {0, 600, 8400, 3855},
                  true,
                  true,
                  {"DataLu"},
                  "Zone data"},
    range_box(0, {1440, 4815, 1095, 315}, "Origin From Zone"),
    range_box(1, {2640, 4815, 1095, 315}, "Origin To Zone"),
    range_box(2, {1440, 5130, 1095, 315}, "Destination From Zone"),
    range_box(3, {2640, 5130, 1095, 315}, "Destination To Zone"),
    range_box(4, {3840, 4815, 975, 315}, "Fill Value"),
    ControlDesign{"cmd_zonedit", 0, Kind::CommandButton, nullptr, "Fill with Value", {5160, 4815, 1515, 375}},
    ControlDesign{
        "Command1", no_index, Kind::CommandButton, nullptr, "Clear Fields Selected", {6735, 4815, 1995, 375}},
};

constexpr runtime::forms::FormDesign design{"frmDataGrid", "frmDataGrid", 11400, 6120, true, true, controls};

}  // namespace

const runtime::forms::FormDesign& frmdatagrid_design() {
  return design;
}

void PassLabel::created(const ControlDesign& design) {
  Label::created(design);
  QPalette colours = widget()->palette();
  colours.setColor(QPalette::WindowText, Qt::red);
  colours.setColor(QPalette::Window, QColor(0xC0, 0xC0, 0xC0));
  widget()->setPalette(colours);
  widget()->setAutoFillBackground(true);
}

void ListLabel::created(const ControlDesign& design) {
  Label::created(design);
  static_cast<QLabel*>(widget())->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

FrmDataGrid::FrmDataGrid(runtime::forms::Desktop& desktop) : Form(desktop, frmdatagrid_design()) {}

}  // namespace forms
