// The fixture of the tests of the eight pick buttons.
#pragma once

#include <QFileDialog>

#include "program_test.h"

namespace testing_aids {

class PickTest : public ProgramTest {
 protected:
  PickTest() {
    analyst.when_box_shows = [this](const analyst::Box&) {
      const auto* open = program.mdiform1.window().findChild<QFileDialog*>(QStringLiteral("cdbox1"));
      if (open != nullptr) accept_button = open->labelText(QFileDialog::Accept).toStdString();
    };
  }

  /// The form as designed, which is the page of the trip files.
  void show_form() {
    as_handler([this] { program.form3.Show(); });
  }

  std::string path(const std::string& name) { return app.file(name).string(); }

  /// Picks a file that the test expects a box about.
  void pick_with_box(const std::string& button, const std::string& file) {
    analyst.will_choose_file(path(file));
    analyst.will_press("OK");
    analyst.click(button);
  }
  void cancel(const std::string& button) {
    analyst.will_cancel_file();
    analyst.click(button);
  }

  /// The last file dialog that was shown.
  analyst::Box dialog() {
    for (auto box = analyst.boxes().rbegin(); box != analyst.boxes().rend(); ++box) {
      if (box->name == "cdbox1") return *box;
    }
    return {};
  }
  /// The words of the message boxes.
  std::vector<std::string> messages() {
    std::vector<std::string> words;
    for (const auto& box : analyst.boxes()) {
      if (box.name != "cdbox1") words.push_back(box.text);
    }
    return words;
  }

  static std::string look(const runtime::forms::TextBox& box) {
    return std::string(box.visible() ? "shown" : "hidden") + (box.is_enabled() ? " enabled" : " disabled") +
           (box.locked() ? " locked" : "") + (box.bold() ? " bold" : "");
  }
  static constexpr const char* picked = "shown enabled locked bold";
  static constexpr const char* cancelled = "shown disabled";

  runtime::forms::CommonDialog& cdbox1() { return program.form3->cdbox1; }
  int open_levels() { return program.desktop.workspace.levels(); }
  void set_field(const std::string& field, const std::string& text) {
    app.sql("update Anfiles set " + field + " = '" + text + "'");
  }
  std::string stored(const std::string& field) {
    return app.rows("select " + field + " from Anfiles").front();
  }

  static constexpr const char* usual_filter = "(*.txt)|*.txt|All files (*.*)|*.*";
  std::string accept_button;  // of the last file dialog
};

}  // namespace testing_aids
