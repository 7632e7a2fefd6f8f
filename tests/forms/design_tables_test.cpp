#include <QWidget>
#include <algorithm>
#include <set>

#include "design_drawing.h"
#include "program_test.h"

namespace {

using ::testing::ElementsAreArray;
using testing_aids::with_index;

/// Runs a check on the design and the declared controls of every form, each loaded by itself.
class DesignTables : public testing_aids::ProgramTest {
 protected:
  template <typename Check>
  void each_form(Check&& check) {
    check(program.form1, *program.form1.operator->());
    check(program.form2, *program.form2.operator->());
    check(program.form3, *program.form3.operator->());
    leave_the_grid_something_to_load();
    check(program.frmDataGrid, *program.frmDataGrid.operator->());
    check(program.frmdirget, *program.frmdirget.operator->());
  }

  void leave_the_grid_something_to_load() {
    analyst.choose("Times");
    program.frmDataGrid.unload_without_storing();
    program.frmdirget.unload_without_storing();
  }
};

TEST_F(DesignTables, every_declared_control_has_a_row_and_every_row_is_declared) {
  each_form([](const auto& form, const runtime::forms::ControlSet& controls) {
    SCOPED_TRACE(form.name());
    std::set<std::string> names;
    for (const auto& row : form.design().controls) names.insert(row.name);
    EXPECT_THAT(controls.declared_names(), ElementsAreArray(names));
  });
}

TEST_F(DesignTables, names_are_unique_within_a_form) {
  each_form([](const auto& form, const runtime::forms::ControlSet&) {
    std::set<std::string> names;
    for (const auto& row : form.design().controls) {
      EXPECT_TRUE(names.insert(with_index(row.name, row.index)).second) << form.name() << ' ' << row.name;
    }
  });
}

TEST_F(DesignTables, every_control_is_of_the_kind_of_its_row_and_bears_its_name) {
  each_form([](const auto& form, const runtime::forms::ControlSet& controls) {
    ASSERT_EQ(controls.all().size(), form.design().controls.size());
    for (std::size_t i = 0; i < controls.all().size(); ++i) {
      const auto& row = form.design().controls[i];
      const auto& control = *controls.all()[i];
      EXPECT_TRUE(control.kind() == row.kind) << form.name() << ' ' << control.full_name();
      EXPECT_EQ(control.widget()->objectName().toStdString(), with_index(row.name, row.index));
    }
  });
}

TEST_F(DesignTables, the_inner_widget_bears_the_forms_name_and_its_frame_none) {
  each_form([this](const auto& form, const runtime::forms::ControlSet&) {
    const auto found = program.mdiform1.window().findChildren<QWidget*>(QString::fromUtf8(form.name()));
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.front(), form.surface());
  });
  EXPECT_EQ(program.mdiform1.window().objectName().toStdString(), "MDIForm1");
}

TEST_F(DesignTables, forms_are_named_as_tests_and_assistive_tools_know_them) {
  std::vector<std::string> names;
  each_form([&](const auto& form, const runtime::forms::ControlSet&) { names.emplace_back(form.name()); });
  EXPECT_THAT(names, ::testing::ElementsAre("Form1", "Form2", "Form3", "frmDataGrid", "Frmdirget"));
}

TEST_F(DesignTables, the_grid_and_the_chooser_appear_at_any_load_and_the_others_do_not) {
  each_form([](const auto& form, const runtime::forms::ControlSet&) {
    const std::string name = form.name();
    EXPECT_EQ(form.design().appears_at_load, name == "frmDataGrid" || name == "Frmdirget") << name;
    EXPECT_EQ(form.visible(), form.design().appears_at_load) << name;
  });
}

TEST_F(DesignTables, a_box_bears_a_label_for_assistive_tools) {
  const auto has_no_caption = [](runtime::forms::Kind kind) {
    using runtime::forms::Kind;
    return kind == Kind::TextBox || kind == Kind::MaskEdBox || kind == Kind::DBGrid ||
           kind == Kind::DriveListBox || kind == Kind::DirListBox || kind == Kind::ListBox;
  };
  // Boxes that no page ever shows hold state and need no words.
  const std::set<std::string> never_shown{"Form2 Text1(0)", "Form2 Text1(1)", "Form2 Text1(2)",
                                          "Frmdirget Text1"};
  each_form([&](const auto& form, const runtime::forms::ControlSet& controls) {
    for (const auto* control : controls.all()) {
      const std::string name = std::string(form.name()) + ' ' + control->full_name();
      if (!has_no_caption(control->kind()) || never_shown.contains(name)) continue;
      EXPECT_NE(control->widget()->accessibleName().toStdString(), "") << name;
    }
  });
}

}  // namespace
