// Form3: the analysis form in its four layouts, and the run state of an analysis.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "runtime/forms/buttons.h"
#include "runtime/forms/common_dialog.h"
#include "runtime/forms/data_control.h"
#include "runtime/forms/form.h"
#include "runtime/forms/surfaces.h"
#include "runtime/forms/text_boxes.h"

namespace forms {

struct Form3Controls : runtime::forms::ControlSet {
  template <typename T>
  using One = runtime::forms::One<T>;
  template <typename T>
  using Array = runtime::forms::Array<T>;

  Array<runtime::forms::DataControl> Data1{*this, "Data1"};
  One<runtime::forms::CommonDialog> cdbox1{*this, "cdbox1"};
  One<runtime::forms::Label> Label2{*this, "Label2"};
  One<runtime::forms::Label> Label3{*this, "Label3"};
  One<runtime::forms::Label> Label4{*this, "Label4"};
  Array<runtime::forms::TextBox> Text1{*this, "Text1"};
  One<runtime::forms::TextBox> Text2{*this, "Text2"};
  One<runtime::forms::TextBox> Text3{*this, "Text3"};
  One<runtime::forms::TextBox> Text4{*this, "Text4"};
  Array<runtime::forms::TextBox> Text5{*this, "Text5"};
  One<runtime::forms::TextBox> Text6{*this, "Text6"};
  One<runtime::forms::TextBox> Text7{*this, "Text7"};
  Array<runtime::forms::CommandButton> Command1{*this, "Command1"};
  Array<runtime::forms::CommandButton> Command4{*this, "Command4"};
  One<runtime::forms::CommandButton> Command5{*this, "Command5"};
  One<runtime::forms::CommandButton> Command7{*this, "Command7"};
  One<runtime::forms::CommandButton> Command9{*this, "Command9"};
  Array<runtime::forms::CommandButton> Command10{*this, "Command10"};
  One<runtime::forms::CommandButton> Command12{*this, "Command12"};
  One<runtime::forms::CommandButton> Command13{*this, "Command13"};
  One<runtime::forms::CommandButton> Command14{*this, "Command14"};
  One<runtime::forms::CommandButton> Command15{*this, "Command15"};
  One<runtime::forms::Frame> Frame1{*this, "Frame1"};
  One<runtime::forms::Label> Label1{*this, "Label1"};
  Array<runtime::forms::OptionButton> Option4{*this, "Option4"};
  One<runtime::forms::CheckBox> Check1{*this, "Check1"};
  One<runtime::forms::CommandButton> Command2{*this, "Command2"};
  One<runtime::forms::CommandButton> Command3{*this, "Command3"};
  One<runtime::forms::CommandButton> Command6{*this, "Command6"};
  One<runtime::forms::CommandButton> Command8{*this, "Command8"};
  One<runtime::forms::CommandButton> Command11{*this, "Command11"};
  One<runtime::forms::Line> Line1{*this, "Line1"};
  One<runtime::forms::Line> Line2{*this, "Line2"};
  One<runtime::forms::Line> Line3{*this, "Line3"};
};

/// Entries of the pick arrays. A place behind the last is a fault of the platform, not memory of a neighbour.
class PickEntries {
 public:
  /// Entry 0 to 13. Fault 9 outside.
  std::string& operator()(int place);

 private:
  std::array<std::string, 14> entries_;
};

/// The variables are the run state. They outlive an unload: the ways out that are to forget the picks clear
/// them by hand.
class Form3 : public runtime::forms::Form<Form3Controls> {
 public:
  explicit Form3(runtime::forms::Desktop& desktop);

  std::int16_t PickCount = 0;
  std::int16_t LastPickIndex = 0;
  PickEntries PickCode;
  PickEntries PickPath;
  PickEntries PickLabel;
  std::string OutputFile;
  std::string DistrictFile;
  std::string LastReply;
  std::int16_t LoadCount = 0;
  std::array<std::string, 11> SavedFieldValues;
};

const runtime::forms::FormDesign& form3_design();

}  // namespace forms
