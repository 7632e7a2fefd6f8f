// What an assistive tool does at the screen: it reads and writes through the interfaces of accessibility, and
// sends no key.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QString>
#include <QWidget>
#include <string>
#include <vector>

namespace testing_aids {

/// Puts `text` in the place of all that stands in a box.
inline void put_by_assistive_tool(QWidget& box, const std::string& text) {
  auto* accessible = QAccessible::queryAccessibleInterface(&box);
  ASSERT_NE(accessible, nullptr);
  auto* writable = accessible->editableTextInterface();
  ASSERT_NE(writable, nullptr);
  const auto length = static_cast<int>(accessible->text(QAccessible::Value).size());
  writable->replaceText(0, length, QString::fromStdString(text));
}

/// A cell makes its headings anew at each call, and nobody owns them.
inline void give_back(const QList<QAccessibleInterface*>& headings) {
  for (QAccessibleInterface* heading : headings)
    QAccessible::deleteAccessibleInterface(QAccessible::registerAccessibleInterface(heading));
}

/// Everything that a tool can read of a widget: the names of it and of what it holds, and what a table tells
/// of itself.
inline std::vector<std::string> read_by_assistive_tool(QWidget& widget) {
  std::vector<std::string> read;
  const auto look_at = [&read](QAccessibleInterface* accessible) {
    if (accessible == nullptr || !accessible->isValid()) return;
    accessible->state();
    accessible->rect();
    accessible->role();
    accessible->relations();
    read.push_back(accessible->text(QAccessible::Name).toStdString());
    if (auto* parent = accessible->parent()) parent->indexOfChild(accessible);
    if (auto* cell = accessible->tableCellInterface()) {
      cell->rowIndex();
      cell->columnIndex();
      cell->isSelected();
      give_back(cell->columnHeaderCells());
      give_back(cell->rowHeaderCells());
    }
  };
  auto* accessible = QAccessible::queryAccessibleInterface(&widget);
  look_at(accessible);
  look_at(accessible->focusChild());
  const QRect place = accessible->rect();
  for (int y = place.top(); y < place.bottom(); y += 10) look_at(accessible->childAt(place.center().x(), y));
  for (int child = 0; child < accessible->childCount(); ++child) look_at(accessible->child(child));
  if (auto* table = accessible->tableInterface()) {
    table->caption();
    table->summary();
    table->selectedCells();
    table->selectedRows();
    table->selectedColumns();
    for (int row = 0; row < table->rowCount(); ++row) table->rowDescription(row);
    for (int column = 0; column < table->columnCount(); ++column) {
      read.push_back(table->columnDescription(column).toStdString());
      for (int row = 0; row < table->rowCount(); ++row) look_at(table->cellAt(row, column));
    }
  }
  return read;
}

}  // namespace testing_aids
