// Save and Cancel: the question, the menus, the row that they move to, and the transaction.
#include <QHeaderView>

#include "parameter_page.h"
#include "runtime/text/numbers.h"
#include "shell/module1.h"

namespace {

using ::testing::ElementsAre;
using testing_aids::ParameterPage;

struct Ending {
  const char* name;
  const char* editor;
  const char* button;
  bool enables_menus;
};

void PrintTo(const Ending& ending, std::ostream* stream) {
  *stream << ending.name;
}

class ParameterEnding : public ParameterPage, public ::testing::WithParamInterface<Ending> {
 protected:
  ParameterEnding() {
    analyst.choose(GetParam().editor);
    as_handler([this] {
      program.mdiform1.Inputs.set_enabled(false);
      program.mdiform1.Run.set_enabled(false);
    });
    analyst.when_box_shows = [this](const analyst::Box&) { menus_at_question_ = menus_enabled(); };
  }

  bool menus_at_question_ = true;
};

TEST_P(ParameterEnding, asks_with_nothing_typed_and_leads_back_on_yes) {
  press(GetParam().button, "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
  EXPECT_THAT(analyst.last_box().buttons, ::testing::UnorderedElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, 0);
  EXPECT_EQ(analyst.last_box().title, "Quelar");
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_FALSE(menus_at_question_);
  EXPECT_EQ(menus_enabled(), GetParam().enables_menus);
}

TEST_P(ParameterEnding, leaves_the_form_as_it_is_on_no) {
  const std::string caption = program.form1.caption();
  press(GetParam().button, "No");
  EXPECT_TRUE(program.form1.visible());
  EXPECT_EQ(program.form1.caption(), caption);
  EXPECT_EQ(menus_enabled(), GetParam().enables_menus);
}

TEST_P(ParameterEnding, ends_the_transaction_that_it_began) {
  const int levels = program.desktop.workspace.levels();
  press(GetParam().button, "No");
  EXPECT_EQ(program.SharedWorkspace, &program.desktop.workspace);
  EXPECT_EQ(program.desktop.workspace.levels(), levels);
}

INSTANTIATE_TEST_SUITE_P(, ParameterEnding,
                         ::testing::Values(Ending{"commercial_save", "Commerparam", "Command3", true},
                                           Ending{"commercial_cancel", "Commerparam", "Command1", true},
                                           Ending{"commuter_save", "commute_param_sw", "Command4", false},
                                           Ending{"commuter_cancel", "commute_param_sw", "Command5", true},
                                           Ending{"share_save", "Commute_param_ms", "Command3", true},
                                           Ending{"share_cancel", "Commute_param_ms", "Command1", true},
                                           Ending{"reliability_save", "mnu_rel", "Command3", true},
                                           Ending{"reliability_cancel", "mnu_rel", "Command1", true}),
                         [](const auto& ending) { return ending.param.name; });

using ParameterRows = ParameterPage;

constexpr const char* second_unit_cost = R"(SELECT "Unit Cost" FROM Commercial WHERE industry_number = 2)";

TEST_F(ParameterRows, the_plain_pair_moves_the_commercial_grid_to_its_second_row_in_every_editor) {
  for (const char* editor : {commercial_editor, share_editor, reliability_editor}) {
    for (const char* button : {"Command3", "Command1"}) {
      analyst.choose(editor);
      as_handler([this] { program.form1->DBGrid1.set_current_row(3); });
      press(button, "No");
      EXPECT_EQ(program.form1->DBGrid1.current_row(), 1) << editor << ' ' << button;
      press(button, "Yes");
    }
  }
}

TEST_F(ParameterRows, the_commuter_pair_moves_the_wages_to_their_second_row) {
  for (const char* button : {"Command4", "Command5"}) {
    analyst.choose(commuter_editor);
    EXPECT_EQ(program.form1->DBGrid4.current_row(), 1);
    go_to("DBGrid4", 7, 2);
    press(button, "No");
    EXPECT_EQ(program.form1->DBGrid4.current_row(), 1) << button;
    EXPECT_EQ(program.form1->DBGrid4.current_column(), 2) << button;
    press(button, "Yes");
  }
}

TEST_F(ParameterRows, the_commuter_save_stores_what_is_open_in_the_hidden_grid_of_the_costs) {
  for (const bool shares : {false, true}) {
    const std::string cost = shares ? "32" : "31";
    analyst.choose(commercial_editor);
    type_into("DBGrid1", 0, 2, cost);
    analyst.choose(commuter_editor);
    if (shares) analyst.choose(share_editor);
    ASSERT_TRUE(program.form1->DBGrid1.edit_active());
    std::string at_question;
    analyst.when_box_shows = [&](const analyst::Box&) {
      at_question = runtime::text::joined(program.form1->Data1.field("Unit Cost"));
      EXPECT_FALSE(program.form1->DBGrid1.edit_active());
    };
    press("Command4", "Yes");
    EXPECT_EQ(at_question, cost);
    as_handler([this] { shell::EnableMenus(program); });
  }
}

TEST_F(ParameterRows, the_commuter_cancel_leaves_it_open) {
  analyst.choose(commercial_editor);
  type_into("DBGrid1", 1, 2, "31");
  analyst.choose(commuter_editor);
  press("Command5", "No");
  EXPECT_TRUE(program.form1->DBGrid1.edit_active());
  EXPECT_EQ(value(second_unit_cost), "25.04");
}

TEST_F(ParameterRows, the_commuter_pair_moves_the_shares_to_their_first_record) {
  app.sql("INSERT INTO Commute_Param VALUES (0.25, 0.25, 0.25, 0.25, 1, 2)");
  for (const char* button : {"Command4", "Command5"}) {
    analyst.choose(commuter_editor);
    analyst.choose(share_editor);
    as_handler([this] { program.form1->Command5.set_top(4600); });  // out from under the grid
    go_to("DBGrid3", 1, 4);
    ASSERT_EQ(program.form1->DBGrid3.current_row(), 1);
    type_into("DBGrid3", 1, 4, "7");
    press(button, "No");
    EXPECT_EQ(program.form1->DBGrid3.current_row(), 0) << button;
    EXPECT_THAT(app.rows("SELECT CostParameterA FROM Commute_Param"), ElementsAre("0.25", "7.0")) << button;
    as_handler([this] { program.form1.Unload(); });
    app.sql("UPDATE Commute_Param SET CostParameterA = 1 WHERE CostParameterB = 2");
    as_handler([this] { shell::EnableMenus(program); });
  }
}

TEST_F(ParameterRows, the_commuter_pair_moves_nothing_in_an_editor_that_is_not_of_the_commuters) {
  analyst.choose(commuter_editor);
  go_to("DBGrid4", 7, 2);
  analyst.choose(commercial_editor);
  press("Command4", "No");
  EXPECT_EQ(program.form1->DBGrid1.current_row(), 0);  // read anew, and not moved on
  as_handler([this] { program.form1->DBGrid1.set_current_row(3); });
  press("Command5", "No");
  EXPECT_EQ(program.form1->DBGrid1.current_row(), 3);
  EXPECT_EQ(program.form1->DBGrid4.current_row(), 7);
}

TEST_F(ParameterRows, a_commercial_table_of_one_row_has_none_to_move_to) {
  app.sql("DELETE FROM Commercial WHERE industry_number > 1");
  analyst.choose(reliability_editor);
  press("Command3", "OK");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(last_box(), "Run-time error '6148':\n\nThere is no row 1 in the grid");
}

TEST_F(ParameterRows, an_empty_commercial_table_has_none_to_move_from) {
  app.sql("DELETE FROM Commercial");
  analyst.choose(reliability_editor);
  press("Command3", "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
}

TEST_F(ParameterRows, the_commercial_editor_opens_the_database_before_it_goes_to_the_application_directory) {
  std::filesystem::current_path(app.file("results"));
  analyst.will_press("OK");
  analyst.choose(commercial_editor);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_THAT(last_box(), ::testing::HasSubstr("3024"));
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_THAT(app.names_in("results"), ::testing::IsEmpty());
}

TEST_F(ParameterRows, the_other_editors_go_to_the_application_directory_first) {
  for (const char* editor : {commuter_editor, reliability_editor, share_editor}) {
    std::filesystem::current_path(app.file("results"));
    analyst.choose(editor);
    EXPECT_TRUE(program.form1.visible()) << editor;
    as_handler([this] { program.form1.Unload(); });
  }
}

TEST_F(ParameterRows, only_wages_and_shares_come_without_row_selectors) {
  std::string grids;
  for (const auto& [editor, grid] : {std::pair(commercial_editor, "DBGrid1"),
                                     {reliability_editor, "DBGrid2"},
                                     {commuter_editor, "DBGrid4"},
                                     {share_editor, "DBGrid3"}}) {
    analyst.choose(editor);
    const auto* view = qobject_cast<QTableView*>(analyst.find(grid));
    grids += std::string(grid) + (view->verticalHeader()->isHidden() ? " without\n" : " with\n");
    as_handler([this] { program.form1.Unload(); });
  }
  EXPECT_EQ(grids, "DBGrid1 with\nDBGrid2 with\nDBGrid4 without\nDBGrid3 without\n");
}

TEST_F(ParameterRows, the_occupations_stay_where_they_are_when_the_wages_scroll) {
  app.sql("INSERT INTO commuter SELECT \"index\" + 12, sigma, wage FROM commuter");
  analyst.choose(commuter_editor);
  const int top = program.form1->Lbl_data4(11).top();
  key("DBGrid4", Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(program.form1->DBGrid4.current_row(), 23);
  EXPECT_EQ(program.form1->Lbl_data4(11).top(), top);
  EXPECT_TRUE(analyst.sees("Lbl_data4(11)"));
}

TEST_F(ParameterRows, the_share_editor_switches_the_menus_off_before_anything_can_fail) {
  std::filesystem::rename(app.file("zelmor.mdb"), app.file("away.mdb"));
  analyst.will_press("OK");
  analyst.choose(share_editor);
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_FALSE(menus_enabled());
  EXPECT_FALSE(program.form1.loaded());
}

TEST_F(ParameterRows, a_minimised_editor_is_brought_back_by_the_three_that_show_it) {
  using runtime::forms::WindowState;
  for (const char* editor : {commercial_editor, commuter_editor, share_editor}) {
    analyst.choose(commercial_editor);
    as_handler([this] { program.form1.set_window_state(WindowState::minimized); });
    analyst.choose(editor);
    EXPECT_EQ(program.form1.window_state(),
              editor == commercial_editor ? WindowState::normal : WindowState::maximized)
        << editor;
    as_handler([this] { program.form1.Unload(); });
  }
}

}  // namespace
