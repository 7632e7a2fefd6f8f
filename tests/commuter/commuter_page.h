// The fixture of tests that press "Run Commuter Analysis": the page with its picks, what the analyst is
// shown, and what an end of the run leaves behind.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "program_test.h"

namespace testing_aids {

class CommuterPage : public ProgramTest {
 protected:
  /// The page with the least that a run asks for: sales as its one occupation, and an output file.
  void make_ready() {
    open_commuter_page();
    pick("Command10(7)", sales);
    pick("Command12", "results/sales.txt");
  }

  /// Presses the button. What was shown before is forgotten, and levels are counted from here.
  void press() {
    analyst.forget_boxes();
    levels_before_ = program.desktop.workspace.levels();
    analyst.click(run_button);
  }

  void press_and_answer(const std::vector<std::string>& buttons) {
    for (const std::string& button : buttons) analyst.will_press(button);
    press();
  }

  /// Changes a control as the program itself would.
  void by_code(const std::function<void()>& code) {
    as_handler(code);
    ASSERT_THAT(analyst.complaints(), ::testing::IsEmpty());
  }

  /// The boxes since the press, each with its icon and buttons: "No Output File Specified! [OK]".
  std::vector<std::string> shown() const {
    std::vector<std::string> all;
    for (const analyst::Box& box : analyst.boxes()) all.push_back(drawn(box));
    return all;
  }

  /// What the end of a run leaves of the working state, one line a subject. A visible form has a star.
  std::string left() {
    std::string text = "forms:";
    for (const auto* form : program.desktop.loaded_forms) {
      text += std::string(" ") + form->name() + (form->visible() ? "*" : "");
    }
    text += "\nopen files:";
    for (int number = 1; number <= 4; ++number) {
      if (program.desktop.files.is_open(number)) text += " " + std::to_string(number);
    }
    text += "\nnew levels: " + std::to_string(program.desktop.workspace.levels() - levels_before_);
    text += "\ndirectory: ." + program.desktop.files.current_directory().substr(app.path().size());
    text += "\npicks:";
    for (int i = 1; i <= program.form3.PickCount; ++i) text += " " + program.form3.PickCode(i);
    if (!program.form3.OutputFile.empty()) text += ", output";
    if (!program.form3.DistrictFile.empty()) text += ", districts";
    text += "\nmenus:";
    for (const char* item : {"Inputs", "Run", "spec_timdist", "spec_CuCo", "spec_comm"}) {
      if (analyst.item_enabled(item)) text += std::string(" ") + item;
    }
    return text + "\n";
  }

  /// The files in the model directory but the programs, by name. A copy of a file of the sample study is told
  /// as one: "= sample/distance.txt".
  std::map<std::string, std::string> model_files() const {
    std::map<std::string, std::string> files;
    for (const std::string& name : app.names_in(model_directory)) {
      const std::string path = model_directory + "/" + name;
      if (std::filesystem::is_directory(app.file(path)) || std::filesystem::is_symlink(app.file(path)))
        continue;
      files[name] = as_copy(app.bytes(path));
    }
    return files;
  }

  std::string in_app(const std::string& name) const { return app.file(name).string(); }

  /// Of the commuter page; the commercial page has others.
  std::string run_button = "Command11";
  std::string model_directory = "commuter";

  static constexpr const char* sales = "sample/commute_Sales.txt";
  static constexpr const char* summary_of_sales =
      "The Number of Zones= 24\nThe Number of Districts= 0\nThe occupations are Sales\n"
      "Do you wish to continue? [Yes, No]";

 private:
  static std::string drawn(const analyst::Box& box) {
    std::string text = box.name == "MsgBox" ? "" : box.name + ": ";
    text += box.text + " [";
    if (box.icon == exclamation_icon) text += "exclamation, ";
    if (box.icon == stop_sign_icon) text += "stop sign, ";
    for (std::size_t i = 0; i < box.buttons.size(); ++i) text += (i == 0 ? "" : ", ") + box.buttons[i];
    return text + "]";
  }

  std::string as_copy(const std::string& bytes) const {
    for (const std::string& name : app.names_in("sample")) {
      if (app.bytes("sample/" + name) == bytes) return "= sample/" + name;
    }
    return bytes;
  }

  static constexpr int exclamation_icon = 2;
  static constexpr int stop_sign_icon = 3;
  int levels_before_ = 0;
};

}  // namespace testing_aids
