// frmDataGrid: the data entry grid. Its variables outlive an unload; the two passes of the commuter entry
// and the save on the unloaded form depend on that.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "runtime/engine/recordset.h"
#include "runtime/forms/buttons.h"
#include "runtime/forms/data_control.h"
#include "runtime/forms/data_grid.h"
#include "runtime/forms/form.h"
#include "runtime/forms/surfaces.h"
#include "runtime/forms/text_boxes.h"

namespace forms {

/// The word for what a pass of the commuter entry asks for: red on grey.
class PassLabel : public runtime::forms::Label {
 public:
  using Label::Label;

 protected:
  void created(const runtime::forms::ControlDesign& design) override;
};

/// A list of names, one under the other from the top.
class ListLabel : public runtime::forms::Label {
 public:
  using Label::Label;

 protected:
  void created(const runtime::forms::ControlDesign& design) override;
};

struct FrmDataGridControls : runtime::forms::ControlSet {
  template <typename T>
  using One = runtime::forms::One<T>;
  template <typename T>
  using Array = runtime::forms::Array<T>;

  One<runtime::forms::Shape> Shape1{*this, "Shape1"};
  One<runtime::forms::Shape> Shape2{*this, "Shape2"};
  One<PassLabel> Label1{*this, "Label1"};
  Array<runtime::forms::Label> Label2{*this, "Label2"};
  One<ListLabel> Label3{*this, "Label3"};
  One<runtime::forms::DataControl> DataLu{*this, "DataLu"};
  One<runtime::forms::DBGrid> grdDataGrid{*this, "grdDataGrid"};
  One<runtime::forms::PictureBox> picButtons{*this, "picButtons"};
  One<runtime::forms::CommandButton> Cmdquit{*this, "Cmdquit"};
  One<runtime::forms::CommandButton> cmdClose{*this, "cmdClose"};
  One<runtime::forms::CommandButton> cmdFilter{*this, "cmdFilter"};
  One<runtime::forms::CommandButton> cmdSort{*this, "cmdSort"};
  One<runtime::forms::CommandButton> cmdRefresh{*this, "cmdRefresh"};
  Array<runtime::forms::TextBox> txt_zonedit{*this, "txt_zonedit"};
  Array<runtime::forms::CommandButton> cmd_zonedit{*this, "cmd_zonedit"};
  One<runtime::forms::CommandButton> Command1{*this, "Command1"};
};

class FrmDataGrid : public runtime::forms::Form<FrmDataGridControls> {
 public:
  explicit FrmDataGrid(runtime::forms::Desktop& desktop);

  bool EmploymentPass = false;
  /// Set for a load that shows the staging table as it stands.
  bool keeps_staging_table = false;
  runtime::engine::Recordset SaveClone;
  std::array<std::string, 16> SelectedFields;
  std::int16_t SelectedFieldCount = 0;
  std::string SelectedFieldsText;
  std::string SortColumn;
  std::int16_t LastMouseButton = 0;
};

const runtime::forms::FormDesign& frmdatagrid_design();

}  // namespace forms
