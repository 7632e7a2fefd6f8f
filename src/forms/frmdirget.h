// Frmdirget: the directory chooser, and the holder of the planned file names of a data entry.
#pragma once

#include "runtime/forms/buttons.h"
#include "runtime/forms/form.h"
#include "runtime/forms/lists.h"
#include "runtime/forms/surfaces.h"
#include "runtime/forms/text_boxes.h"

namespace forms {

struct FrmdirgetControls : runtime::forms::ControlSet {
  template <typename T>
  using One = runtime::forms::One<T>;

  One<runtime::forms::PictureBox> Picture1{*this, "Picture1"};
  One<runtime::forms::DriveListBox> drvList{*this, "drvList"};
  One<runtime::forms::DirListBox> dirList{*this, "dirList"};
  One<runtime::forms::ListBox> List1{*this, "List1"};
  One<runtime::forms::CommandButton> cmdExit{*this, "cmdExit"};
  One<runtime::forms::CommandButton> Command1{*this, "Command1"};
  One<runtime::forms::TextBox> Text1{*this, "Text1"};
};

class Frmdirget : public runtime::forms::Form<FrmdirgetControls> {
 public:
  explicit Frmdirget(runtime::forms::Desktop& desktop);
};

const runtime::forms::FormDesign& frmdirget_design();

}  // namespace forms
