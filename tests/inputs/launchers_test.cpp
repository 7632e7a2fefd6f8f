#include <QMdiArea>

#include "inputs_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Launchers : public testing_aids::InputsPage {
 protected:
  std::string place(const runtime::forms::Control& control) {
    const auto& place = control.place();
    return std::to_string(place.left) + ' ' + std::to_string(place.top) + ' ' + std::to_string(place.width) +
           ' ' + std::to_string(place.height);
  }
  void leave_the_application_directory() { std::filesystem::current_path(app.file("results")); }
  std::string current() { return program.desktop.files.current_directory(); }
};

TEST_F(Launchers, of_the_zones_arrange_the_number_entry) {
  analyst.choose("Zones");
  EXPECT_EQ(place(program.form2->Command2), "0 120 1225 855");
  EXPECT_EQ(program.form2->Command2.caption(), "save");
  EXPECT_FALSE(analyst.sees("Command2"));
  EXPECT_TRUE(program.form2->Command4.visible());
  EXPECT_FALSE(analyst.sees("Command4"));
  EXPECT_EQ(program.form2->Command5.left(), 120);
  EXPECT_EQ(program.form2->Command5.top(), 1080);
  EXPECT_EQ(program.form2->Command6.left(), 840);
  EXPECT_EQ(program.form2->Command6.top(), 1080);
  EXPECT_EQ(program.form2.window_state(), runtime::forms::WindowState::maximized);
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "24__");
}

TEST_F(Launchers, of_the_districts_put_their_box_in_the_place_of_the_zones) {
  analyst.choose("Districts");
  EXPECT_EQ(place(program.form2->MaskEdBox2), place(program.form2->MaskEdBox1));
  EXPECT_EQ(analyst.text_of("MaskEdBox2"), "4___");
}

TEST_F(Launchers, go_to_the_application_directory) {
  for (const char* item : {"Zones", "Districts", "CommerTdata", "Comm_pop"}) {
    leave_the_application_directory();
    analyst.choose(item);
    EXPECT_EQ(current(), app.path()) << item;
  }
}

TEST_F(Launchers, twice_in_a_row_leave_one_form) {
  analyst.choose("Zones");
  analyst.choose("Zones");
  EXPECT_THAT(program.desktop.loaded_forms, ElementsAre(&program.form2));
  EXPECT_EQ(program.desktop.mdi_area->subWindowList().size(), 1);
}

TEST_F(Launchers, of_the_occupations_stop_the_menus_and_no_other_does) {
  for (const char* item : {"Zones", "Districts", "CommerTdata"}) {
    analyst.choose(item);
    EXPECT_TRUE(analyst.item_enabled("Inputs")) << item;
    EXPECT_TRUE(analyst.item_enabled("Run")) << item;
  }
  analyst.choose("Comm_pop");
  EXPECT_FALSE(analyst.item_enabled("Inputs"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
}

TEST_F(Launchers, of_the_occupations_put_the_go_ahead_where_that_of_the_industries_stood) {
  analyst.choose("Comm_pop");
  EXPECT_EQ(place(program.form2->Command3), "120 1920 1575 855");
  EXPECT_TRUE(analyst.can_use("Command3"));
  EXPECT_TRUE(analyst.can_use("Command2"));
}

TEST_F(Launchers, of_the_markets_take_the_number_of_zones_out_of_the_tab_order) {
  for (const char* item : {"CommerTdata", "Comm_pop"}) {
    analyst.choose(item);
    EXPECT_EQ(analyst.find("MaskEdBox1")->focusPolicy() & Qt::TabFocus, 0) << item;
    EXPECT_EQ(analyst.text_of("MaskEdBox1"), "24__") << item;
    press(program.form2, "Command2");
  }
}

TEST_F(Launchers, of_a_number_leave_the_mode_word_of_an_earlier_command) {
  analyst.choose("CommerTdata");
  analyst.choose("Zones");
  EXPECT_EQ(mode_word(), "commercial");
  analyst.choose("Districts");
  EXPECT_EQ(mode_word(), "commercial");
}

TEST_F(Launchers, follow_each_other_on_the_number_entry) {
  analyst.choose("Zones");
  EXPECT_EQ(program.mdiform1.NumberEntryKind, "zone");
  analyst.choose("Districts");
  EXPECT_EQ(program.mdiform1.NumberEntryKind, "district");
  EXPECT_FALSE(analyst.sees("MaskEdBox1"));
  EXPECT_TRUE(analyst.can_use("MaskEdBox2"));
  analyst.choose("CommerTdata");
  EXPECT_EQ(program.mdiform1.NumberEntryKind, "district");
}

class TimesLauncher : public Launchers {
 protected:
  TimesLauncher() { store_numbers("2", "1"); }
};

TEST_F(TimesLauncher, without_zones_asks_for_them_and_goes_no_further) {
  store_numbers("null", "null");
  analyst.will_press("OK");
  analyst.choose("Times");
  EXPECT_THAT(analyst.texts(), ElementsAre("Please enter the number of zones!"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("OK"));
  EXPECT_THAT(program.desktop.loaded_forms, ElementsAre(&program.form2));
  EXPECT_FALSE(program.form2.visible());
  EXPECT_EQ(mode_word(), "");
  EXPECT_EQ(app.bytes("schema.ini"), "(none)");
  EXPECT_EQ(app.bytes("trips.csv"), "(none)");
}

TEST_F(TimesLauncher, makes_description_and_skeleton_and_plans_three_files) {
  leave_the_application_directory();
  analyst.choose("Times");
  EXPECT_EQ(app.bytes("schema.ini"), app.bytes("schema.inp") +
                                         "COL3=distance DOUBLE\r\n"
                                         "COL4=Base_Travel_Times DOUBLE\r\n"
                                         "COL5=Improvement_Travel_Times DOUBLE\r\n");
  EXPECT_EQ(app.bytes("trips.csv"),
            "\r\n"
            " 1 ,           1 \r\n"
            " 1 ,           2 \r\n"
            " 2 ,           1 \r\n"
            " 2 ,           2 \r\n");
  EXPECT_THAT(planned(), ElementsAre("distance.txt", "base_time.txt", "imp_time.txt"));
  EXPECT_EQ(column_list(), ",distance double,Base_Travel_Times double,Improvement_Travel_Times double");
  EXPECT_EQ(mode_word(), "timdist");
  EXPECT_EQ(open_files(), "");
}

TEST_F(TimesLauncher, shows_the_grid_and_not_the_form_of_the_numbers) {
  analyst.choose("Times");
  EXPECT_TRUE(program.frmDataGrid.visible());
  EXPECT_FALSE(program.form2.visible());
  EXPECT_EQ(program.frmDataGrid->cmdClose.caption(), "Save Distance and Time and Return to Main Menu");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_EQ(program.mdiform1.NumberEntryKind, "");
  EXPECT_THAT(app.rows("select * from sosec"), ElementsAre("1|1|null|null|null", "1|2|null|null|null",
                                                           "2|1|null|null|null", "2|2|null|null|null"));
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(TimesLauncher, of_one_zone_makes_one_pair) {
  store_numbers("1", "1");
  analyst.choose("Times");
  EXPECT_EQ(app.bytes("trips.csv"), "\r\n 1 ,           1 \r\n");
}

TEST_F(TimesLauncher, twice_puts_the_columns_behind_those_of_the_first_time_which_nothing_reads) {
  analyst.choose("Times");
  analyst.choose("Times");
  EXPECT_EQ(column_list(),
            ",distance double,Base_Travel_Times double,Improvement_Travel_Times double"
            ",distance double,Base_Travel_Times double,Improvement_Travel_Times double");
  EXPECT_THAT(planned(), ElementsAre("distance.txt", "base_time.txt", "imp_time.txt"));
}

TEST_F(TimesLauncher, without_the_template_stops_with_a_run_time_error_at_the_copy) {
  std::filesystem::remove(app.file("schema.inp"));
  analyst.will_press("OK");
  analyst.choose("Times");
  EXPECT_THAT(analyst.texts(), ElementsAre("Run-time error '53':\n\nFile not found: schema.inp"));
  EXPECT_THAT(planned(), ElementsAre("distance.txt", "base_time.txt", "imp_time.txt"));
  EXPECT_EQ(column_list(), "");
  EXPECT_EQ(mode_word(), "");
  EXPECT_FALSE(program.frmDataGrid.loaded());
}

}  // namespace
