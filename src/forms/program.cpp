#include "forms/program.h"

#include "database/catalogue.h"

namespace forms {

Program::Program(const std::string& application_directory)
    : desktop(application_directory),
      mdiform1(desktop),
      form1(desktop),
      form2(desktop),
      form3(desktop),
      frmDataGrid(desktop),
      frmdirget(desktop) {
  desktop.database_name = database::file_name;
  desktop.workspace.required_tables = database::required_tables();
}

}  // namespace forms
