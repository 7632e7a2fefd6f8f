#include <map>
#include <set>

#include "program_test.h"

namespace {

using runtime::forms::Kind;
using ::testing::IsEmpty;

/// Buttons, options and check boxes without a row in the event table, each with the reason.
const std::map<std::string, std::string> without_a_handler{
    {"Form1 Command7", "stands on the form without a function"},
    {"Form2 Chcktrp", "a tick is read when the choice is made"},
};

const std::map<std::string, std::string> items_without_a_handler{
    {"Inputs", "opens a menu"},      {"travdata_entry", "opens a menu"},
    {"Commuter", "opens a menu"},    {"Commercial", "opens a menu, and its click does nothing"},
    {"edit_params", "opens a menu"}, {"Commuteparam", "opens a menu"},
    {"Run", "opens a menu"},         {"spec_CuCo", "opens a menu"},
};

class EventRows : public testing_aids::ProgramTest {
 protected:
  std::vector<const runtime::forms::FormBase*> forms() {
    return {&program.form1, &program.form2, &program.form3, &program.frmDataGrid, &program.frmdirget};
  }
};

TEST_F(EventRows, each_names_a_control_that_exists) {
  for (const auto* form : forms()) {
    std::set<std::string> names{""};
    for (const auto& row : form->design().controls) names.insert(row.name);
    for (const auto& row : form->events()) {
      EXPECT_TRUE(names.contains(row.control)) << form->name() << ' ' << row.control;
    }
  }
}

TEST_F(EventRows, no_event_of_a_control_has_two) {
  for (const auto* form : forms()) {
    std::set<std::pair<std::string, runtime::forms::Event>> events;
    for (const auto& row : form->events()) {
      EXPECT_TRUE(events.insert({row.control, row.event}).second) << form->name() << ' ' << row.control;
    }
  }
}

TEST_F(EventRows, every_button_option_and_check_box_has_one_or_a_reason) {
  std::set<std::string> missing;
  std::set<std::string> excused;
  for (const auto* form : forms()) {
    std::set<std::string> clicked;
    for (const auto& row : form->events()) {
      if (row.event == runtime::forms::Event::Click) clicked.insert(row.control);
    }
    for (const auto& row : form->design().controls) {
      const bool is_button =
          row.kind == Kind::CommandButton || row.kind == Kind::OptionButton || row.kind == Kind::CheckBox;
      if (!is_button || clicked.contains(row.name)) continue;
      const std::string name = std::string(form->name()) + ' ' + row.name;
      (without_a_handler.contains(name) ? excused : missing).insert(name);
    }
  }
  EXPECT_THAT(missing, IsEmpty());
  // An excuse that is needed no more must go.
  for (const auto& [name, reason] : without_a_handler) EXPECT_TRUE(excused.contains(name)) << name;
}

TEST_F(EventRows, each_of_the_menu_names_an_item_that_exists) {
  std::set<std::string> items;
  for (const auto& row : quelar::menu_events()) {
    EXPECT_TRUE(program.mdiform1.window().has_item(row.item)) << row.item;
    EXPECT_TRUE(items.insert(row.item).second) << row.item;
  }
}

TEST_F(EventRows, every_menu_item_has_one_or_a_reason) {
  std::set<std::string> handled;
  for (const auto& row : quelar::menu_events()) handled.insert(row.item);
  for (const auto& item : forms::mdiform1_menu()) {
    EXPECT_NE(handled.contains(item.name), items_without_a_handler.contains(item.name)) << item.name;
  }
}

TEST_F(EventRows, the_table_of_the_analysis_form_is_what_the_form_got) {
  EXPECT_EQ(program.form3.events().size(), quelar::form3_events().size());
}

}  // namespace
