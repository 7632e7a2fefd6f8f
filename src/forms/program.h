// Program: the desktop's services, the main window and the five work forms. The forms are the screens and
// the program's variables at once, so a handler gets a Program& and needs nothing else.
#pragma once

#include <string>

#include "forms/form1.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/frmdatagrid.h"
#include "forms/frmdirget.h"
#include "forms/mdiform1.h"
#include "runtime/forms/desktop.h"

namespace forms {

struct Program {
  /// `application_directory`: where the executable and all files of the installation lie.
  explicit Program(const std::string& application_directory);

  runtime::forms::Desktop desktop;
  /// The workspace of the last BeginFileTransaction, nullptr before the first.
  runtime::engine::Workspace* SharedWorkspace = nullptr;
  MDIForm1 mdiform1;
  Form1 form1;
  Form2 form2;
  Form3 form3;
  FrmDataGrid frmDataGrid;
  Frmdirget frmdirget;
};

}  // namespace forms
