#include "forms/frmdirget.h"

#include <array>

namespace forms {

namespace {

using runtime::forms::ControlDesign;
using runtime::forms::enabled;
using runtime::forms::hidden;
using runtime::forms::Kind;
using runtime::forms::no_index;
using runtime::forms::shown;

constexpr const char* in_picture = "Picture1";

constexpr std::array controls{
    ControlDesign{"Picture1", no_index, Kind::PictureBox, nullptr, "", {0, 120, 6855, 3855}},
    ControlDesign{"drvList",
                  no_index,
                  Kind::DriveListBox,
                  in_picture,
                  "",
                  {0, 240, 1815, 315},
                  shown,
                  enabled,
                  {},
                  "Drives"},
    ControlDesign{"dirList",
                  no_index,
                  Kind::DirListBox,
                  in_picture,
                  "",
                  {0, 600, 3615, 2115},
                  shown,
                  enabled,
                  {},
                  "Directories"},
    ControlDesign{"List1",
                  no_index,
                  Kind::ListBox,
                  nullptr,
                  "",
                  {3720, 720, 2175, 2010},
                  shown,
                  enabled,
                  {},
                  "Files to be written"},
    ControlDesign{"Text1", no_index, Kind::TextBox, nullptr, "Text1", {3600, 120, 1815, 495}, hidden},
    ControlDesign{"cmdExit", no_index, Kind::CommandButton, nullptr, "S&ave", {840, 3000, 1920, 720}},
    ControlDesign{"Command1", no_index, Kind::CommandButton, nullptr, "Quit", {3360, 3000, 1935, 735}},
};

constexpr runtime::forms::FormDesign design{"Frmdirget", "Choose Directory", 7170, 4020, true, true,
                                            controls};

}  // namespace

const runtime::forms::FormDesign& frmdirget_design() {
  return design;
}

Frmdirget::Frmdirget(runtime::forms::Desktop& desktop) : Form(desktop, frmdirget_design()) {}

}  // namespace forms
