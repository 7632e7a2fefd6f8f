#include "program_test.h"

namespace {

using runtime::forms::WindowState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AnalysisForm : public testing_aids::ProgramTest {
 protected:
  void show() {
    as_handler([this] { program.form3.Show(); });
  }
  std::string place(const runtime::forms::Control& control) {
    return std::to_string(control.left()) + ' ' + std::to_string(control.top()) + ' ' +
           std::to_string(control.width()) + ' ' + std::to_string(control.height());
  }
  std::string chosen_options() {
    std::string chosen;
    for (int i = 0; i <= 2; ++i) chosen += program.form3->Option4(i).value() ? 'x' : '-';
    return chosen;
  }
};

TEST_F(AnalysisForm, opens_maximised_with_sketch_planning_data_chosen) {
  show();
  EXPECT_EQ(program.form3.window_state(), WindowState::maximized);
  EXPECT_EQ(chosen_options(), "x--");
  EXPECT_TRUE(program.form3->Option4(2).visible());
  EXPECT_EQ(program.form3->Check1.value(), 0);
  EXPECT_FALSE(program.form3->Command9.visible());
  EXPECT_FALSE(program.form3->Text4.visible());
}

TEST_F(AnalysisForm, its_load_counts_to_two_and_keeps_field_values) {
  app.sql("update timdist set distance = 'd', base_time = 'b', improvement_time = null");
  app.sql("update Anfiles set Agfile = 'a', Minfile = 'm', Manfile = 'f', Serfile = 's', foutfile = 'o'");
  show();
  EXPECT_EQ(program.form3.LoadCount, 2);
  EXPECT_THAT(program.form3.SavedFieldValues, ElementsAre("a", "m", "f", "s", "o", "d", "b", "", "", "", ""));
}

TEST_F(AnalysisForm, its_load_ends_any_editing_and_drops_what_was_unsaved) {
  program.form1.Show();
  program.form2.Show();
  analyst.type("MaskEdBox1", "99");
  analyst.choose("Times");
  EXPECT_TRUE(program.frmDataGrid.loaded());
  EXPECT_TRUE(program.frmdirget.loaded());
  show();
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_FALSE(program.frmDataGrid.loaded());
  EXPECT_FALSE(program.frmdirget.loaded());
  EXPECT_TRUE(program.form2.loaded());
  EXPECT_FALSE(program.form2.visible());
  EXPECT_EQ(program.form2->MaskEdBox1.text(), "24__");
  EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("24"));
}

TEST_F(AnalysisForm, its_load_comes_back_to_the_application_directory) {
  program.form3.operator->();
  program.desktop.files.ChDir("results");
  analyst.choose("spec_timdist");
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

TEST_F(AnalysisForm, opens_all_the_same_on_tables_without_a_row) {
  app.sql("delete from timdist; delete from Anfiles");
  show();
  EXPECT_TRUE(analyst.sees("Form3"));
  EXPECT_EQ(chosen_options(), "x--");
  EXPECT_EQ(program.form3->Text1(5).text(), "");
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(AnalysisForm, shows_the_stored_paths_in_boxes_that_cannot_be_typed_into) {
  app.sql("update Anfiles set Salesfiles = 'results/sales.txt'");
  open_commuter_page();
  EXPECT_EQ(analyst.text_of("Text5(7)"), "results/sales.txt");
  EXPECT_FALSE(analyst.can_use("Text5(7)"));
}

TEST_F(AnalysisForm, opened_twice_with_quit_between_begins_without_picks_and_with_the_first_option) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  analyst.click("Option4(2)");
  analyst.click("Command3");
  open_commuter_page();
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(chosen_options(), "x--");
  EXPECT_TRUE(analyst.can_use("Command10(7)"));
}

TEST_F(AnalysisForm, opened_again_after_an_unload_that_forgets_nothing_begins_with_the_old_picks) {
  open_commuter_page();
  pick("Command10(7)", "sample/commute_Sales.txt");
  as_handler([this] { program.form3.Unload(); });
  show();
  EXPECT_EQ(program.form3.PickCount, 1);
  EXPECT_EQ(program.form3.PickCode(1), "7");
  EXPECT_TRUE(program.form3->Command10(7).is_enabled());
}

TEST_F(AnalysisForm, the_number_of_zones_read_after_an_unload_is_the_stored_one) {
  program.form2.Show();
  analyst.type("MaskEdBox1", "99");
  EXPECT_EQ(program.form2->MaskEdBox1.text(), "99__");
  program.form2.unload_without_storing();
  EXPECT_EQ(program.form2->MaskEdBox1.text(), "24__");
}

using DistrictRow = AnalysisForm;

TEST_F(DistrictRow, is_shown_by_its_check_box_and_hidden_again_where_the_design_puts_it) {
  show();
  analyst.click("Check1");
  EXPECT_TRUE(analyst.can_use("Command7"));
  EXPECT_TRUE(analyst.sees("Text3"));
  EXPECT_FALSE(analyst.can_use("Text3"));
  EXPECT_EQ(place(program.form3->Command7), "4440 2110 2175 375");
  analyst.click("Check1");
  EXPECT_FALSE(analyst.sees("Command7"));
  EXPECT_FALSE(analyst.sees("Text3"));
}

TEST_F(DistrictRow, stands_above_the_options_on_the_commuter_page) {
  open_commuter_page();
  analyst.click("Check1");
  EXPECT_EQ(place(program.form3->Command7), "4440 4200 2935 315");
  EXPECT_EQ(place(program.form3->Text3), "0 4200 4335 315");
}

TEST_F(DistrictRow, shown_again_after_a_pick_cannot_be_typed_into) {
  open_commuter_page();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  EXPECT_TRUE(program.form3->Text3.is_enabled());
  analyst.click("Check1");
  analyst.click("Check1");
  EXPECT_TRUE(analyst.sees("Text3"));
  EXPECT_FALSE(program.form3->Text3.is_enabled());
  EXPECT_EQ(analyst.text_of("Text3"), app.file("sample/districts.txt").string());
}

TEST_F(DistrictRow, checked_and_cleared_again_keeps_the_picked_file) {
  open_commuter_page();
  analyst.click("Check1");
  pick("Command7", "sample/districts.txt");
  analyst.click("Check1");
  EXPECT_FALSE(analyst.sees("Text3"));
  EXPECT_EQ(program.form3.DistrictFile, app.file("sample/districts.txt").string());
}

using ReliabilityRow = AnalysisForm;

TEST_F(ReliabilityRow, stands_at_top_4480_on_the_commuter_page) {
  open_commuter_page();
  analyst.click("Option4(1)");
  EXPECT_EQ(place(program.form3->Command9), "4440 4480 2935 315");
  EXPECT_EQ(place(program.form3->Text4), "0 4480 4335 315");
  EXPECT_TRUE(analyst.can_use("Command9"));
  EXPECT_TRUE(analyst.sees("Text4"));
  EXPECT_FALSE(analyst.can_use("Text4"));
}

TEST_F(ReliabilityRow, stands_at_top_3000_without_the_commuter_mark) {
  show();
  analyst.click("Option4(1)");
  EXPECT_EQ(place(program.form3->Command9), "4440 3000 1575 375");
  EXPECT_EQ(place(program.form3->Text4), "0 3000 4335 371");
  EXPECT_FALSE(program.form3->Text4.is_enabled());
}

TEST_F(ReliabilityRow, shown_again_after_a_pick_cannot_be_typed_into) {
  for (const bool commuter : {true, false}) {
    if (commuter) {
      open_commuter_page();
    } else {
      show();
    }
    analyst.click("Option4(1)");
    pick("Command9", "sample/reliability.txt");
    EXPECT_TRUE(program.form3->Text4.is_enabled());
    analyst.click("Option4(2)");
    analyst.click("Option4(1)");
    EXPECT_TRUE(analyst.sees("Text4"));
    EXPECT_FALSE(program.form3->Text4.is_enabled());
    as_handler([this] { program.form3.Unload(); });
  }
}

TEST_F(ReliabilityRow, its_place_depends_on_the_mark_and_nothing_else) {
  open_commuter_page();
  program.form3->Label2.set_caption("Commute");
  analyst.click("Option4(1)");
  EXPECT_EQ(program.form3->Command9.top(), 3000);
  analyst.click("Option4(0)");
  program.form3->Label2.set_caption("commute");
  analyst.click("Option4(1)");
  EXPECT_EQ(program.form3->Command9.top(), 4480);
}

TEST_F(ReliabilityRow, is_hidden_by_either_other_option_and_the_path_stays_in_the_table) {
  app.sql("update Anfiles set relFile = 'kept.txt'");
  open_commuter_page();
  for (const char* other : {"Option4(0)", "Option4(2)"}) {
    analyst.click("Option4(1)");
    EXPECT_TRUE(analyst.sees("Command9"));
    analyst.click(other);
    EXPECT_FALSE(analyst.sees("Command9")) << other;
    EXPECT_FALSE(analyst.sees("Text4")) << other;
  }
  EXPECT_EQ(program.form3->Text4.text(), "kept.txt");
  EXPECT_THAT(app.rows("select relFile from Anfiles"), ElementsAre("kept.txt"));
}

}  // namespace
