// The fixture of tests of the data entry grid: brings it up as the menu does, types into it, saves from it.
#pragma once

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <map>
#include <string>
#include <vector>

#include "program_test.h"
#include "runtime/forms/twips.h"

namespace testing_aids {

class GridPage : public ProgramTest {
 protected:
  // Nobody hands the focus over without a window manager.
  GridPage() { QApplication::setActiveWindow(&program.mdiform1.window()); }

  void set_zones(int zones) {
    app.sql("UPDATE zones SET numdstrct = 0, numzones = " + std::to_string(zones));
  }

  void open_times(int zones) {
    set_zones(zones);
    analyst.choose("Times");
  }

  /// `boxes`: the check boxes of the industries, in any order.
  void open_trips(int zones, const std::vector<int>& boxes) {
    set_zones(zones);
    analyst.choose("CommerTdata");
    tick(boxes);
    press(program.form2, "Command1");
  }

  /// `boxes`: the check boxes of the occupations. Shows the population pass.
  void open_population(int zones, const std::vector<int>& boxes) {
    set_zones(zones);
    analyst.choose("Comm_pop");
    tick(boxes);
    press(program.form2, "Command3");
  }

  void open_employment(int zones, const std::vector<int>& boxes) {
    open_population(zones, boxes);
    press_on_grid("cmdClose");
  }

  /// No menu entry leads to daily trips.
  void open_daily_trips(int zones) {
    open_times(zones);
    press_on_grid("Cmdquit");
    as_handler([this] {
      app.put_file("schema.ini", app.bytes("schema.inp") + "COL3=Daily_Trips DOUBLE\r\n");
      program.form2->Text1(2).set_text("commuter_trip");
      program.frmDataGrid.Show();
    });
  }

  /// Clicks a button, of which forms that stand one upon the other may have one each.
  void press(const runtime::forms::FormBase& form, const std::string& control) {
    ASSERT_TRUE(form.loaded()) << form.name();
    auto* widget = form.surface()->findChild<QWidget*>(QString::fromStdString(control));
    ASSERT_NE(widget, nullptr) << control;
    ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << control;
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
  }
  void press_on_grid(const std::string& control) { press(program.frmDataGrid, control); }
  void press_and_expect(const std::string& control, const std::string& box) {
    analyst.forget_boxes();
    analyst.will_press("OK");
    press_on_grid(control);
    EXPECT_EQ(last_box(), box);
  }

  void click_heading(int column) {
    QHeaderView* heading = nullptr;
    for (auto* view : program.frmDataGrid->grdDataGrid.widget()->findChildren<QHeaderView*>()) {
      if (view->orientation() == Qt::Horizontal) heading = view;
    }
    ASSERT_NE(heading, nullptr);
    const QPoint place(heading->sectionViewportPosition(column) + 10, heading->height() / 2);
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, place);
  }

  QLineEdit& box(int index) {
    return *qobject_cast<QLineEdit*>(program.frmDataGrid->txt_zonedit(index).widget());
  }
  void type_into(int index, const std::string& text) {
    box(index).selectAll();
    QTest::keyClicks(&box(index), QString::fromStdString(text));
  }
  void type_range(const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (!texts[i].empty()) type_into(static_cast<int>(i), texts[i]);
    }
  }
  /// Picks a column and fills it: from, to, from, to, value; an empty text leaves the box as it is.
  void fill(int column, const std::vector<std::string>& texts) {
    click_heading(column);
    type_range(texts);
    press_on_grid("cmd_zonedit(0)");
  }

  /// Types into a cell, whose edit stays open.
  void type_into_cell(int row, int column, const std::string& text) {
    type_into_cell_of(program.frmDataGrid->grdDataGrid, row, column, text);
  }
  void type_into_cell_of(runtime::forms::DBGrid& grid, int row, int column, const std::string& text) {
    as_handler([&] {
      grid.set_current_row(row);
      grid.set_current_column(column);
    });
    focus(grid);
    for (const char next : text) QTest::keyClick(focused_in(grid), next);  // the first one opens the edit
  }
  void press_key(const runtime::forms::DBGrid& grid, Qt::Key key) {
    focus(grid);
    QTest::keyClick(focused_in(grid), key);
  }

  /// In the chooser: the directory is chosen, and the save button pressed.
  void save_into(const std::string& directory) {
    std::filesystem::create_directories(app.file(directory));
    choose_directory(app.file(directory).string());
    press(program.frmdirget, "cmdExit");
  }
  void choose_directory(const std::string& path) {
    as_handler([&] { program.frmdirget->dirList.set_path(path); });
  }

  /// The names of the picked fields, the last one first, as they are shown.
  std::string shown_picks() const { return analyst.text_of("Label3"); }

  std::string columns_of(const std::string& table) const {
    std::string columns;
    for (const auto& row : app.rows("SELECT name FROM pragma_table_info('" + table + "')")) {
      columns += (columns.empty() ? "" : " ") + row;
    }
    return columns;
  }
  /// The rows of a table, fields joined by "|"; a whole number has no point.
  std::vector<std::string> table(const std::string& rest) const {
    auto rows = app.rows("SELECT * FROM " + rest);
    for (std::string& row : rows) {
      row += '|';
      for (auto at = row.find(".0|"); at != std::string::npos; at = row.find(".0|")) row.erase(at, 2);
      row.pop_back();
    }
    return rows;
  }
  std::vector<std::string> sosec(const std::string& rest = "ORDER BY rowid") const {
    return table("sosec " + rest);
  }

  /// The loaded forms, a visible one with a star, a minimized one with a dash.
  std::string loaded_forms() const {
    std::string names;
    for (const auto* form : program.desktop.loaded_forms) {
      names.append(names.empty() ? "" : " ").append(form->name()).append(form->visible() ? "*" : "");
      if (form->window_state() == runtime::forms::WindowState::minimized) names += "-";
    }
    return names;
  }

  std::map<std::string, std::string> files_in(const std::string& directory) const {
    std::map<std::string, std::string> files;
    for (const auto& name : app.names_in(directory)) files[name] = app.bytes(directory + "/" + name);
    return files;
  }

 private:
  /// Nobody hands the focus over without a window manager.
  void focus(const runtime::forms::DBGrid& grid) {
    QApplication::setActiveWindow(&program.mdiform1.window());
    grid.widget()->setFocus();
  }
  /// The grid, or its cell that is being edited.
  static QWidget* focused_in(const runtime::forms::DBGrid& grid) {
    QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? grid.widget() : focused;
  }

 protected:
  void tick(const std::vector<int>& boxes) {
    for (const int box : boxes) press(program.form2, "Chcktrp(" + std::to_string(box) + ")");
  }
};

}  // namespace testing_aids
