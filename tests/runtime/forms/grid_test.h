// A form with one grid on a table of a test's own, and an analyst who uses it by keys and clicks.
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>

#include "runtime/forms/twips.h"
#include "small_form.h"

namespace testing_aids {

class GridTest : public SmallFormTest {
 protected:
  static inline const char* const four_pairs =
      "create table pairs (Origin integer, Destination integer, trips real, cost real, name text) strict;"
      "insert into field_types values ('pairs', 'cost', 'single');"
      "insert into pairs values (1, 1, 10, 14.51, 'a'), (1, 2, null, 2, 'b'), (2, 1, 0.5, 3, 'c'),"
      " (2, 2, 1e20, 4, null)";

  explicit GridTest(const std::string& statements = four_pairs, rf::Place place = {0, 600, 7500, 4000})
      : form(desktop, rows_of_form(place), "Gridded") {
    app.sql(statements);
  }

  static Rows rows_of_form(rf::Place place) {
    rf::ControlDesign grid = row("DBGrid1", rf::no_index, rf::Kind::DBGrid, "", place);
    grid.binding = {"Data1", 0, nullptr};
    grid.label = "Pairs";
    return {data_row(0, "pairs"), grid, row("Command1", 0, rf::Kind::CommandButton, "Button"),
            row("Text1", 0, rf::Kind::TextBox, "", {3000, 0, 1500, 375})};
  }

  void SetUp() override { show(); }

  void show() {
    form.Show();
    QApplication::setActiveWindow(&window);
    view().setFocus();
    QCoreApplication::processEvents();
  }

  rf::DBGrid& grid() { return form->DBGrid1; }
  QTableView& view() { return *qobject_cast<QTableView*>(grid().widget()); }
  QLineEdit& editor() { return *view().findChild<QLineEdit*>(QStringLiteral("CellEditor")); }
  std::string foot() { return analyst.text_of("RowNumber"); }

  /// Without a window manager nobody makes the window active again after a box.
  QWidget* focused() {
    if (QApplication::activeWindow() != &window) QApplication::setActiveWindow(&window);
    return QApplication::focusWidget();
  }

  /// Presses a key where the focus is.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1) {
    for (; times > 0; --times) QTest::keyClick(focused(), key, modifiers);
  }
  void type(const char* text) {
    for (const char* next = text; *next != 0; ++next) {
      QTest::keyClick(focused(), *next);
    }
  }
  void go_to(std::int64_t row, int column) {
    as_handler([&] {
      grid().set_current_row(row);
      grid().set_current_column(column);
    });
  }
  /// As many pairs as a study of 100 zones has.
  void fill() {
    app.sql(
        "delete from pairs;"
        "with recursive n(i) as (select 0 union all select i + 1 from n where i < 9999)"
        " insert into pairs select i / 100 + 1, i % 100 + 1, i, null, null from n");
    as_handler([&] { form->Data1(0).Refresh(); });
  }
  /// Clicks into a cell, by its row on the screen.
  void click(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QRect place = view().visualRect(view().model()->index(row, column));
    QWidget* target = view().viewport()->childAt(place.center());
    if (target == nullptr) target = view().viewport();
    QTest::mouseClick(target, Qt::LeftButton, modifiers, target->mapFrom(view().viewport(), place.center()));
  }

  /// The selected cells, as another program gets them.
  std::string copied() {
    press(Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text().toStdString();
  }

  /// What is on the screen: the headings, then the rows, the current cell in brackets, with "*" behind a text
  /// that is being edited; selected cells in braces.
  std::string drawn() {
    std::string drawing;
    const auto* model = view().model();
    for (int column = 0; column < model->columnCount(); ++column) {
      if (view().isColumnHidden(column)) continue;
      drawing +=
          (drawing.empty() ? "" : " | ") + model->headerData(column, Qt::Horizontal).toString().toStdString();
    }
    for (int row = 0; row < model->rowCount(); ++row) {
      if (view().visualRect(model->index(row, 0)).top() >= view().viewport()->height()) break;
      std::string line;
      for (int column = 0; column < model->columnCount(); ++column) {
        if (view().isColumnHidden(column)) continue;
        line += (line.empty() ? "" : " | ") + drawn_cell(model->index(row, column));
      }
      drawing += '\n' + line;
    }
    return drawing + '\n';
  }

  std::vector<std::string> table() { return app.rows("select * from pairs"); }

  SmallForm form;

 private:
  std::string drawn_cell(const QModelIndex& index) {
    const std::string text = index.data().toString().toStdString();
    if (index == view().currentIndex()) {
      return editor().isVisible() ? "[" + editor().text().toStdString() + "*]" : "[" + text + "]";
    }
    return view().selectionModel()->isSelected(index) ? "{" + text + "}" : text;
  }
};

}  // namespace testing_aids
