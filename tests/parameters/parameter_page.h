// The fixture of tests of the parameter editors: opens them, types into their grids, leaves them.
#pragma once

#include <QTableView>
#include <QTest>

#include "program_test.h"

namespace testing_aids {

class ParameterPage : public ProgramTest {
 protected:
  void key(const std::string& grid, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(analyst.find(grid), key, modifiers);
  }

  /// Walks there by the arrow keys; `column` counts the columns that are to be seen, from 0.
  void go_to(const std::string& grid, int row, int column) {
    key(grid, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < row; ++i) key(grid, Qt::Key_Down);
    for (int i = 0; i < column; ++i) key(grid, Qt::Key_Right);
  }

  /// Leaves the cell open.
  void type_into(const std::string& grid, int row, int column, const std::string& text) {
    go_to(grid, row, column);
    analyst.type(grid, text);
  }

  /// Types and moves on to the next cell, so that the row holds the change.
  void edit(const std::string& grid, int row, int column, const std::string& text) {
    type_into(grid, row, column, text);
    key(grid, Qt::Key_Tab);
  }

  /// The first row on the screen of a grid.
  std::string drawn_row(const std::string& grid) {
    auto* view = qobject_cast<QTableView*>(analyst.find(grid));
    std::string row;
    for (int column = 0; column < view->model()->columnCount(); ++column) {
      row += view->model()->index(0, column).data().toString().toStdString() + '|';
    }
    return row;
  }

  /// Clicks a cell on the screen; `column` is that of the table.
  void click_cell(const std::string& grid, int row, int column) {
    auto* view = qobject_cast<QTableView*>(analyst.find(grid));
    ASSERT_NE(view, nullptr);
    const QPoint place(view->columnViewportPosition(column) + 5, view->rowViewportPosition(row) + 5);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
  }

  /// Presses a button that asks "Return to Main Menu?" and answers.
  void press(const std::string& button, const std::string& answer) {
    analyst.will_press(answer);
    analyst.click(button);
  }

  void run_menu_handler(const std::string& item) {
    as_handler([&] {
      for (const auto& row : quelar::menu_events()) {
        if (item == row.item) row.handler(program);
      }
    });
  }

  bool menus_enabled() const { return analyst.item_enabled("Inputs") && analyst.item_enabled("Run"); }

  std::string value(const std::string& query) const {
    const auto rows = app.rows(query);
    return rows.empty() ? "no row" : rows.front();
  }

  std::vector<std::string> industries() const { return app.rows("SELECT * FROM Commercial"); }
  std::string shares() const { return value("SELECT * FROM Commute_Param"); }

  static constexpr const char* commercial_editor = "Commerparam";
  static constexpr const char* commuter_editor = "commute_param_sw";
  static constexpr const char* share_editor = "Commute_param_ms";
  static constexpr const char* reliability_editor = "mnu_rel";
  static constexpr const char* question = "Return to Main Menu?";
};

}  // namespace testing_aids
