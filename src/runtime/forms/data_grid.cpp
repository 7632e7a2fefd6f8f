#include "runtime/forms/data_grid.h"

#include <QHeaderView>
#include <QTableView>

namespace runtime::forms {

QWidget* DBGrid::make_widget(QWidget* parent) {
  auto* view = new QTableView(parent);
  view->verticalHeader()->setVisible(false);
  return view;
}

}  // namespace runtime::forms
