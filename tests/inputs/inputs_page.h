// The fixture of tests that work on Form2: its launches, what it shows, and what it writes.
#pragma once

#include <QApplication>
#include <string>
#include <vector>

#include "inputs/grid_page.h"

namespace testing_aids {

class InputsPage : public GridPage {
 protected:
  InputsPage() {
    QApplication::setActiveWindow(&program.mdiform1.window());
    levels_before_ = program.desktop.workspace.levels();
  }

  void store_numbers(const std::string& zones, const std::string& districts) {
    app.sql("update zones set numzones = " + zones + ", numdstrct = " + districts);
  }
  /// The stored numbers of zones and districts: "24|4".
  std::string stored() { return app.rows("select numzones, numdstrct from zones").front(); }

  /// Clicks a button of Form2; the boxes that come up get these answers. Earlier boxes are forgotten.
  void click_and_answer(const std::string& control, const std::vector<std::string>& buttons) {
    analyst.forget_boxes();
    for (const std::string& button : buttons) analyst.will_press(button);
    press(program.form2, control);
  }

  /// The entries of the planned files.
  std::vector<std::string> planned() {
    auto& list = program.frmdirget->List1;
    std::vector<std::string> entries;
    for (int i = 0; i < list.count(); ++i) entries.push_back(list.list(i));
    return entries;
  }

  std::string column_list() { return program.form2->Text1(0).text(); }
  std::string mode_word() { return program.form2->Text1(2).text(); }
  int new_levels() { return program.desktop.workspace.levels() - levels_before_; }

  /// Which of the numbers of files stand open.
  std::string open_files() {
    std::string numbers;
    for (int number = 1; number <= 4; ++number) {
      if (program.desktop.files.is_open(number)) numbers += std::to_string(number);
    }
    return numbers;
  }

 private:
  int levels_before_ = 0;
};

}  // namespace testing_aids
