// Form2: the number entry and the market choice, and the holder of the numbers of zones and districts.
#pragma once

#include "runtime/forms/buttons.h"
#include "runtime/forms/data_control.h"
#include "runtime/forms/form.h"
#include "runtime/forms/surfaces.h"
#include "runtime/forms/text_boxes.h"

namespace forms {

struct Form2Controls : runtime::forms::ControlSet {
  template <typename T>
  using One = runtime::forms::One<T>;
  template <typename T>
  using Array = runtime::forms::Array<T>;

  One<runtime::forms::DataControl> Data1{*this, "Data1"};
  One<runtime::forms::Frame> Frame1{*this, "Frame1"};
  One<runtime::forms::Label> Label1{*this, "Label1"};
  One<runtime::forms::MaskEdBox> MaskEdBox1{*this, "MaskEdBox1"};
  One<runtime::forms::MaskEdBox> MaskEdBox2{*this, "MaskEdBox2"};
  One<runtime::forms::Frame> Frame2{*this, "Frame2"};
  Array<runtime::forms::CheckBox> Chcktrp{*this, "Chcktrp"};
  One<runtime::forms::CommandButton> Command1{*this, "Command1"};
  One<runtime::forms::CommandButton> Command2{*this, "Command2"};
  One<runtime::forms::CommandButton> Command3{*this, "Command3"};
  One<runtime::forms::CommandButton> Command4{*this, "Command4"};
  One<runtime::forms::CommandButton> Command5{*this, "Command5"};
  One<runtime::forms::CommandButton> Command6{*this, "Command6"};
  Array<runtime::forms::TextBox> Text1{*this, "Text1"};
};

class Form2 : public runtime::forms::Form<Form2Controls> {
 public:
  explicit Form2(runtime::forms::Desktop& desktop);
};

const runtime::forms::FormDesign& form2_design();

}  // namespace forms
