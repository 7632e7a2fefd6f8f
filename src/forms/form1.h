// Form1: the parameter editor, and the holder of the data sources of the four parameter tables.
#pragma once

#include "runtime/forms/buttons.h"
#include "runtime/forms/data_control.h"
#include "runtime/forms/data_grid.h"
#include "runtime/forms/form.h"
#include "runtime/forms/surfaces.h"

namespace forms {

struct Form1Controls : runtime::forms::ControlSet {
  template <typename T>
  using One = runtime::forms::One<T>;
  template <typename T>
  using Array = runtime::forms::Array<T>;

  One<runtime::forms::DataControl> Data1{*this, "Data1"};
  One<runtime::forms::DataControl> Data2{*this, "Data2"};
  One<runtime::forms::DataControl> Data3{*this, "Data3"};
  One<runtime::forms::DataControl> Data4{*this, "Data4"};
  One<runtime::forms::DBGrid> DBGrid1{*this, "DBGrid1"};
  One<runtime::forms::DBGrid> DBGrid2{*this, "DBGrid2"};
  One<runtime::forms::DBGrid> DBGrid3{*this, "DBGrid3"};
  One<runtime::forms::DBGrid> DBGrid4{*this, "DBGrid4"};
  One<runtime::forms::CommandButton> Command1{*this, "Command1"};
  One<runtime::forms::CommandButton> Command2{*this, "Command2"};
  One<runtime::forms::CommandButton> Command3{*this, "Command3"};
  One<runtime::forms::CommandButton> Command4{*this, "Command4"};
  One<runtime::forms::CommandButton> Command5{*this, "Command5"};
  One<runtime::forms::CommandButton> Command6{*this, "Command6"};
  One<runtime::forms::CommandButton> Command7{*this, "Command7"};
  Array<runtime::forms::Label> Label1{*this, "Label1"};
  One<runtime::forms::Label> Label2{*this, "Label2"};
  One<runtime::forms::Label> Label3{*this, "Label3"};
  Array<runtime::forms::Label> Lbl_data4{*this, "Lbl_data4"};
};

class Form1 : public runtime::forms::Form<Form1Controls> {
 public:
  explicit Form1(runtime::forms::Desktop& desktop);
};

const runtime::forms::FormDesign& form1_design();

}  // namespace forms
