// A desktop with a main window, an analyst, and small forms of a test's own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "analyst/analyst.h"
#include "deferred_deletes.h"
#include "faults.h"
#include "installation.h"
#include "runtime/forms/buttons.h"
#include "runtime/forms/common_dialog.h"
#include "runtime/forms/data_control.h"
#include "runtime/forms/data_grid.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/form.h"
#include "runtime/forms/main_window.h"
#include "runtime/forms/surfaces.h"
#include "runtime/forms/text_boxes.h"

namespace testing_aids {

namespace rf = runtime::forms;

/// Every control that a small form may have. A form has those of its rows.
struct SmallControls : rf::ControlSet {
  rf::Array<rf::DataControl> Data1{*this, "Data1"};
  rf::One<rf::DBGrid> DBGrid1{*this, "DBGrid1"};
  rf::Array<rf::CommandButton> Command1{*this, "Command1"};
  rf::Array<rf::OptionButton> Option1{*this, "Option1"};
  rf::One<rf::CheckBox> Check1{*this, "Check1"};
  rf::Array<rf::TextBox> Text1{*this, "Text1"};
  rf::One<rf::MaskEdBox> MaskEdBox1{*this, "MaskEdBox1"};
  rf::One<rf::Label> Label1{*this, "Label1"};
  rf::One<rf::Frame> Frame1{*this, "Frame1"};
  rf::One<rf::CommonDialog> cdbox1{*this, "cdbox1"};
};

using Rows = std::vector<rf::ControlDesign>;

inline rf::ControlDesign row(const char* name, int index, rf::Kind kind, const char* caption = "",
                             rf::Place place = {0, 0, 1500, 375}, const char* container = nullptr) {
  return {name, index, kind, container, caption, place};
}

/// A path box or number box bound to a field of Data1(data_index).
inline rf::ControlDesign bound_row(const char* name, int index, rf::Kind kind, const char* mask,
                                   int data_index, const char* field) {
  rf::ControlDesign design = row(name, index, kind, mask);
  design.binding = {"Data1", data_index, field};
  return design;
}

inline rf::ControlDesign data_row(int index, const char* table) {
  rf::ControlDesign design = row("Data1", index, rf::Kind::Data);
  design.visible = false;
  design.binding = {nullptr, rf::no_index, table};
  return design;
}

/// Owns the design that its form refers to.
struct SmallDesign {
  SmallDesign(const char* name, Rows design_rows, bool appears_at_load)
      : rows(std::move(design_rows)), design{name, "Small form", 4500, 3000, appears_at_load, true, rows} {}
  Rows rows;
  rf::FormDesign design;
};

class SmallForm : private SmallDesign, public rf::Form<SmallControls> {
 public:
  SmallForm(rf::Desktop& desktop, Rows design_rows, const char* name = "Small", bool appears_at_load = false)
      : SmallDesign(name, std::move(design_rows), appears_at_load), Form(desktop, SmallDesign::design) {}

  /// Counts the events of a control and tells the index of the last one.
  struct Heard {
    int times = 0;
    int index = 0;
  };
  rf::EventRow hear(const std::string& control, rf::Event event) {
    return {control, event, [this](int index) { heard = {heard.times + 1, index}; }};
  }

  Heard heard;
  int Variable = 0;
};

class SmallFormTest : public ::testing::Test {
 protected:
  SmallFormTest() {
    desktop.database_name = "zelmor.mdb";
    window.setObjectName(QStringLiteral("Main"));
    window.resize(800, 600);
    window.show();
  }

  void TearDown() override { EXPECT_THAT(analyst.complaints(), ::testing::IsEmpty()); }

  void as_handler(const std::function<void()>& code) { desktop.run_event(code); }

  std::string last_box() const { return analyst.last_box().text; }

  static constexpr std::array menu{rf::MenuDesign{1, "Only", "Only", true}};

  Installation app;
  rf::Desktop desktop{app.path()};
  rf::MainWindow window{desktop, "Small program", {}, menu};
  analyst::Analyst analyst{window};

 private:
  DeferredDeletes deferred_deletes_;
};

}  // namespace testing_aids
