#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>

#include "inputs/form2.h"
#include "inputs_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The form that lies on top in the main window.
std::string on_top(forms::Program& program) {
  const auto* window = program.desktop.mdi_area->activeSubWindow();
  return window == nullptr ? "none" : window->windowTitle().toStdString();
}

class IndustryChoice : public testing_aids::InputsPage {
 protected:
  IndustryChoice() { store_numbers("2", "1"); }

  void choose(const std::vector<int>& boxes) {
    analyst.choose("CommerTdata");
    tick(boxes);
  }
  std::vector<std::string> industries() { return app.rows("select * from Industries"); }

  static constexpr const char* go_ahead = "Command1";
};

TEST_F(IndustryChoice, rewrites_the_rows_with_codes_and_names_of_the_chosen_ones_alone) {
  choose({1});
  press(program.form2, go_ahead);
  EXPECT_THAT(industries(), ElementsAre("1|null|null", "2|2|Mining", "3|null|null", "4|null|null"));
  EXPECT_THAT(app.rows("select description from industries where industry_number >0"), ElementsAre("Mining"));
}

TEST_F(IndustryChoice, rewrites_all_rows_when_all_are_chosen) {
  app.sql("delete from Industries");
  choose({0, 1, 2, 3});
  press(program.form2, go_ahead);
  EXPECT_THAT(industries(), ElementsAre("1|4|Manufacturing", "2|2|Mining", "3|1|Agriculture", "4|9|Service"));
}

TEST_F(IndustryChoice, makes_description_and_skeleton_in_the_order_of_the_list_whatever_was_ticked_first) {
  choose({3, 0, 2});
  press(program.form2, go_ahead);
  EXPECT_EQ(app.bytes("schema.ini"), app.bytes("schema.inp") +
                                         "COL3=Manufacturing DOUBLE\r\n"
                                         "COL4=Agriculture DOUBLE\r\n"
                                         "COL5=Service DOUBLE\r\n");
  EXPECT_EQ(app.bytes("trips.csv"),
            "\r\n"
            " 1 ,           1 \r\n"
            " 1 ,           2 \r\n"
            " 2 ,           1 \r\n"
            " 2 ,           2 \r\n");
  EXPECT_EQ(column_list(), ",Manufacturing DOUBLE,Agriculture DOUBLE,Service DOUBLE");
  EXPECT_THAT(planned(),
              ElementsAre("trips_Manufacturing.txt", "trips_Agriculture.txt", "trips_Service.txt"));
  EXPECT_EQ(open_files(), "");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(IndustryChoice, shows_the_grid_of_the_pairs) {
  choose({1});
  press(program.form2, go_ahead);
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "Save Commercial Trips and Return to Main Menu");
  EXPECT_EQ(on_top(program), "frmDataGrid");
  EXPECT_THAT(app.rows("select * from sosec"), ElementsAre("1|1|null", "1|2|null", "2|1|null", "2|2|null"));
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(IndustryChoice, with_nothing_ticked_says_so_and_leaves_rows_without_codes) {
  choose({});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("No Industries Selected!"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("OK"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
  EXPECT_THAT(industries(), ElementsAre("1|null|null", "2|null|null", "3|null|null", "4|null|null"));
  EXPECT_FALSE(program.frmDataGrid.loaded());
  EXPECT_FALSE(program.frmdirget.loaded());
  EXPECT_EQ(app.bytes("trips.csv"), "(none)");
  EXPECT_TRUE(analyst.sees(go_ahead));
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(IndustryChoice, can_be_made_anew_after_nothing_was_ticked) {
  choose({});
  click_and_answer(go_ahead, {"OK"});
  tick({1});
  press(program.form2, go_ahead);
  EXPECT_THAT(industries(), ElementsAre("1|null|null", "2|2|Mining", "3|null|null", "4|null|null"));
}

TEST_F(IndustryChoice, without_zones_asks_for_them_and_leaves_a_level_open) {
  store_numbers("0", "0");
  const auto before = industries();
  choose({1});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Please enter the number of zones!"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("OK"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
  EXPECT_EQ(industries(), before);
  EXPECT_EQ(new_levels(), 1);
  EXPECT_TRUE(analyst.sees(go_ahead));
}

TEST_F(IndustryChoice, the_level_left_open_holds_nothing_of_the_later_work_back) {
  store_numbers("null", "null");
  choose({1});
  click_and_answer(go_ahead, {"OK"});
  as_handler([this] { inputs::form2::Command2_Click(program); });
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "2");
  click_and_answer("Command5", {"Yes"});
  EXPECT_EQ(stored(), "2|null");
  choose({1});
  press(program.form2, go_ahead);
  EXPECT_THAT(industries(), ElementsAre("1|null|null", "2|2|Mining", "3|null|null", "4|null|null"));
  EXPECT_EQ(new_levels(), 1);
}

TEST_F(IndustryChoice, takes_the_zones_of_the_box_also_when_they_are_not_saved) {
  choose({1});
  analyst.type("MaskEdBox1", "1");
  press(program.form2, go_ahead);
  EXPECT_EQ(app.bytes("trips.csv"), "\r\n 1 ,           1 \r\n");
  EXPECT_EQ(stored(), "2|1");
}

TEST_F(IndustryChoice, pressed_again_puts_the_columns_behind_those_of_the_first_time_until_the_load_fails) {
  choose({1});
  press(program.form2, go_ahead);
  as_handler([this] { program.frmDataGrid.unload_without_storing(); });
  analyst.forget_boxes();
  // The list then names a column twice, which the grid's table cannot have.
  analyst.will_press("OK");
  as_handler([this] { inputs::form2::Command1_Click(program); });
  EXPECT_EQ(last_box(), "Run-time error '3191':\n\nField 'Mining' is defined more than once");
  EXPECT_EQ(column_list(), ",Mining DOUBLE");
  EXPECT_EQ(app.bytes("schema.ini"), app.bytes("schema.inp") + "COL3=Mining DOUBLE\r\n");
}

TEST_F(IndustryChoice, of_fewer_industries_leaves_the_later_planned_files_of_an_earlier_one) {
  choose({0, 1, 2});
  press(program.form2, go_ahead);
  as_handler([this] {
    program.frmDataGrid.unload_without_storing();
    program.form2.Unload();
  });
  choose({3});
  press(program.form2, go_ahead);
  EXPECT_THAT(planned(), ElementsAre("trips_Service.txt", "trips_Mining.txt", "trips_Agriculture.txt"));
}

TEST_F(IndustryChoice, without_the_template_ends_in_a_run_time_error_with_the_rows_rewritten) {
  std::filesystem::remove(app.file("schema.inp"));
  choose({1});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Run-time error '53':\n\nFile not found: schema.inp"));
  EXPECT_THAT(industries(), ElementsAre("1|null|null", "2|2|Mining", "3|null|null", "4|null|null"));
  EXPECT_THAT(planned(), ElementsAre("trips_Mining.txt"));
  EXPECT_EQ(column_list(), "");
  EXPECT_EQ(open_files(), "");
  EXPECT_FALSE(program.frmDataGrid.loaded());
}

TEST_F(IndustryChoice, leaves_no_file_open_when_the_skeleton_cannot_be_written) {
  std::filesystem::create_directory(app.file("trips.csv"));
  choose({1});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(open_files(), "");
  std::filesystem::remove(app.file("trips.csv"));
  as_handler([this] { inputs::form2::Command2_Click(program); });
  choose({1});
  press(program.form2, go_ahead);
  EXPECT_TRUE(program.frmDataGrid.visible());
}

TEST_F(IndustryChoice, is_left_by_quit_with_the_menus_on) {
  choose({1});
  as_handler([this] { program.mdiform1.Inputs.set_enabled(false); });
  analyst.click("Command2");
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
}

class OccupationChoice : public testing_aids::InputsPage {
 protected:
  OccupationChoice() { store_numbers("3", "1"); }

  void choose(const std::vector<int>& boxes) {
    analyst.choose("Comm_pop");
    tick(boxes);
  }
  std::vector<std::string> occupations() { return app.rows("select * from Occupations"); }

  static constexpr const char* go_ahead = "Command3";
};

TEST_F(OccupationChoice, rewrites_the_rows_with_codes_and_names_of_the_chosen_ones_alone) {
  choose({15, 7, 11});
  press(program.form2, go_ahead);
  EXPECT_THAT(occupations(),
              ElementsAre("1|null|null", "2|null|null", "3|null|null", "4|4|Sales", "5|null|null",
                          "6|null|null", "7|null|null", "8|8|Service", "9|null|null", "10|null|null",
                          "11|null|null", "12|12|Handlers_equipment_cleaners_helpers", "13|null|null"));
}

TEST_F(OccupationChoice, of_all_boxes_on_the_screen_takes_all_but_the_armed_forces) {
  choose({4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  EXPECT_FALSE(analyst.sees("Chcktrp(16)"));
  press(program.form2, go_ahead);
  EXPECT_THAT(
      occupations(),
      ElementsAre("1|1|Executive_Adminstrative_Managerial", "2|2|Professional_Specialty",
                  "3|3|Technicians_and_Related_Support", "4|4|Sales", "5|5|Administrative_Support",
                  "6|6|Private_Household", "7|7|Protective_Service", "8|8|Service",
                  "9|9|Precision_production_craft_and_repair",
                  "10|10|Machine_operators_assemblers_inspectors", "11|11|Transportation_and_material_moving",
                  "12|12|Handlers_equipment_cleaners_helpers", "13|null|null"));
}

TEST_F(OccupationChoice, counts_to_thirteen_when_the_hidden_box_is_ticked_by_code) {
  choose({});
  as_handler([this] { program.form2->Chcktrp(16).set_value(1); });
  press(program.form2, go_ahead);
  EXPECT_EQ(occupations().back(), "13|13|Armed_Forces");
  EXPECT_THAT(planned(), ElementsAre("commute_Armed_Forces.txt"));
}

TEST_F(OccupationChoice, makes_description_and_skeleton_in_the_order_of_the_list_whatever_was_ticked_first) {
  choose({11, 4});
  press(program.form2, go_ahead);
  EXPECT_EQ(app.bytes("schema.ini"), app.bytes("schema3.inp") +
                                         "COL2=Executive_Adminstrative_Managerial DOUBLE\r\n"
                                         "COL3=Service DOUBLE\r\n");
  EXPECT_EQ(app.bytes("trips.csv"), "\r\n 1 \r\n 2 \r\n 3 \r\n");
  EXPECT_EQ(column_list(), ",Executive_Adminstrative_Managerial DOUBLE,Service DOUBLE");
  EXPECT_THAT(planned(),
              ElementsAre("commute_Executive_Adminstrative_Managerial.txt", "commute_Service.txt"));
  EXPECT_EQ(open_files(), "");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(OccupationChoice, shows_the_grid_of_the_zones_with_a_caption_of_its_own) {
  choose({7});
  press(program.form2, go_ahead);
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_EQ(program.frmDataGrid.caption(), "Enter the number of persons living in each zone by occupation");
  EXPECT_EQ(program.frmDataGrid.font_size(), 24);
  EXPECT_EQ(on_top(program), "Enter the number of persons living in each zone by occupation");
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "&Save Population by Occupation and Continue");
  EXPECT_THAT(app.rows("select * from sosec"), ElementsAre("1|null", "2|null", "3|null"));
}

TEST_F(OccupationChoice, would_ask_for_the_workers_under_another_mode_word) {
  choose({7});
  press(program.form2, go_ahead);  // the grid is loaded by now, which knows no such word
  as_handler([this] {
    program.form2->Text1(2).set_text("employment");
    inputs::form2::Command3_Click(program);
  });
  EXPECT_EQ(program.frmDataGrid.caption(), "Enter the number of persons who work in each zone by occupation");
}

TEST_F(OccupationChoice, with_nothing_ticked_says_so_and_leaves_rows_without_codes) {
  choose({});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("No Occupations Selected!"));
  EXPECT_THAT(app.rows("select \"index\" from Occupations where Occupation_Number is null"),
              ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"));
  EXPECT_FALSE(program.frmDataGrid.loaded());
  EXPECT_TRUE(analyst.sees(go_ahead));
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
}

TEST_F(OccupationChoice, without_zones_asks_for_them_and_ends_its_level) {
  store_numbers("null", "null");
  const auto before = occupations();
  choose({7});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Please enter the number of zones!"));
  EXPECT_EQ(occupations(), before);
  EXPECT_EQ(new_levels(), 0);
  EXPECT_TRUE(analyst.sees(go_ahead));
}

TEST_F(OccupationChoice, without_the_template_ends_in_a_run_time_error) {
  std::filesystem::remove(app.file("schema3.inp"));
  choose({7});
  click_and_answer(go_ahead, {"OK"});
  EXPECT_EQ(last_box(), "Run-time error '53':\n\nFile not found: schema3.inp");
}

TEST_F(OccupationChoice, is_left_by_quit_with_the_menus_on_again) {
  choose({7});
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  analyst.click("Command2");
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
}

TEST_F(OccupationChoice, is_left_by_the_second_quit_button_too) {
  choose({7});
  as_handler([this] { inputs::form2::Command4_Click(program); });
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
}

}  // namespace
