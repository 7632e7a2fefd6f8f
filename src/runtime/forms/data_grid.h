// The bound data grid: a table view on the recordset of a data control.
#pragma once

#include <string>

#include "runtime/forms/control.h"

namespace runtime::forms {

class DBGrid : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::DBGrid; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
};

}  // namespace runtime::forms
