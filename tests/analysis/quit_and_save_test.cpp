#include "analysis/form3.h"
#include "assistive_tool.h"
#include "program_test.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LeavingThePage : public testing_aids::ProgramTest {
 protected:
  void have_picks(std::int16_t count) {
    forms::Form3& form3 = program.form3;
    for (int i = 0; i <= 13; ++i) {
      form3.PickCode(i) = "code";
      form3.PickPath(i) = "path";
      form3.PickLabel(i) = "label";
    }
    form3.PickCount = count;
    form3.LastPickIndex = 7;
    form3.OutputFile = "out";
    form3.DistrictFile = "district";
  }
  int filled_entries() {
    int filled = 0;
    for (int i = 0; i <= 13; ++i) {
      EXPECT_EQ(program.form3.PickCode(i).empty(), program.form3.PickPath(i).empty());
      if (!program.form3.PickPath(i).empty()) ++filled;
    }
    return filled;
  }
  void set_paths(const std::string& distance, const std::string& base, const std::string& improvement) {
    app.sql("update timdist set distance = '" + distance + "', base_time = '" + base +
            "', improvement_time = '" + improvement + "'");
  }
  void save_and(const std::string& answer) {
    analyst.will_press(answer);
    analyst.click("Command8");
  }
  std::vector<std::string> timdist() { return app.rows("select * from timdist"); }
};

using Save = LeavingThePage;

TEST_F(Save, names_the_boxes_one_place_off) {
  set_paths("the distance", "the base", "the improvement");
  analyst.choose("spec_timdist");
  save_and("No");
  EXPECT_EQ(last_box(),
            "The Base Time File is the distance\n\n"
            "The ImprovementTime File is the base\n\n"
            "The Distance File is the improvement\n\n"
            "Do you wish to continue?");
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, 0);
}

TEST_F(Save, answered_no_leaves_the_page_up) {
  analyst.choose("spec_timdist");
  save_and("No");
  EXPECT_TRUE(analyst.sees("Form3"));
  EXPECT_TRUE(analyst.can_use("Command4(5)"));
  EXPECT_FALSE(analyst.item_enabled("Run"));
}

TEST_F(Save, answered_yes_stores_the_picked_paths_and_leaves_the_page) {
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/imp_time.txt");
  save_and("Yes");
  EXPECT_FALSE(program.form3.loaded());
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_THAT(timdist(), ElementsAre(app.file("sample/imp_time.txt").string() +
                                     "|sample/base_time.txt|sample/imp_time.txt"));
}

TEST_F(Save, without_a_pick_reuses_the_stored_paths) {
  const auto before = timdist();
  analyst.choose("spec_timdist");
  save_and("Yes");
  EXPECT_EQ(timdist(), before);
  EXPECT_TRUE(analyst.item_enabled("spec_comm"));
}

TEST_F(Save, with_a_box_empty_passes) {
  set_paths("sample/distance.txt", "", "sample/imp_time.txt");
  analyst.choose("spec_timdist");
  save_and("Yes");
  EXPECT_TRUE(analyst.item_enabled("spec_comm"));
  EXPECT_FALSE(program.form3.loaded());
}

TEST_F(Save, with_three_empty_boxes_passes) {
  set_paths("", "", "");
  analyst.choose("spec_timdist");
  save_and("Yes");
  EXPECT_EQ(last_box(),
            "The Base Time File is \n\nThe ImprovementTime File is \n\nThe Distance File is \n\n"
            "Do you wish to continue?");
  EXPECT_TRUE(analyst.item_enabled("spec_comm"));
}

TEST_F(Save, keeps_the_run_state) {
  analyst.choose("spec_timdist");
  have_picks(3);
  save_and("Yes");
  EXPECT_EQ(program.form3.PickCount, 3);
  EXPECT_EQ(filled_entries(), 14);
  EXPECT_EQ(program.form3.OutputFile, "out");
}

using Quit = LeavingThePage;

TEST_F(Quit, forgets_the_picks_up_to_their_count_and_nothing_of_the_rest) {
  open_commuter_page();
  have_picks(5);
  analyst.click("Command3");
  EXPECT_EQ(filled_entries(), 14 - 6);
  EXPECT_EQ(program.form3.PickCode(5), "");
  EXPECT_EQ(program.form3.PickCode(6), "code");
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(program.form3.OutputFile, "");
  EXPECT_EQ(program.form3.DistrictFile, "");
  EXPECT_EQ(program.form3.LastPickIndex, 7);
  EXPECT_EQ(program.form3.PickLabel(1), "label");
}

TEST_F(Quit, with_no_picks_empties_the_first_entry_only) {
  open_commuter_page();
  have_picks(0);
  analyst.click("Command3");
  EXPECT_EQ(filled_entries(), 13);
  EXPECT_EQ(program.form3.PickPath(0), "");
}

TEST_F(Quit, after_a_pick_behind_the_last_entry_empties_all_there_are) {
  open_commuter_page();
  have_picks(14);
  analyst.click("Command3");
  EXPECT_EQ(filled_entries(), 0);
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

TEST_F(Quit, closes_the_file_numbers_1_and_2_and_unloads_the_forms) {
  open_commuter_page();
  program.form1.hide();
  for (int number = 1; number <= 3; ++number) {
    program.desktop.files.open_for_output(number, "results/" + std::to_string(number));
  }
  analyst.click("Command3");
  EXPECT_FALSE(program.desktop.files.is_open(1));
  EXPECT_FALSE(program.desktop.files.is_open(2));
  EXPECT_TRUE(program.desktop.files.is_open(3));
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
}

TEST_F(Quit, stores_the_paths_that_were_picked) {
  open_commuter_page();
  pick("Command10(7)", "sample/trips_Mining.txt");
  analyst.click("Command3");
  EXPECT_THAT(app.rows("select Salesfiles from Anfiles"),
              ElementsAre(app.file("sample/trips_Mining.txt").string()));
}

TEST_F(Quit, of_the_time_and_distance_page_stores_them_too) {
  analyst.choose("spec_timdist");
  pick("Command4(6)", "sample/imp_time.txt");
  analyst.click("Command3");
  EXPECT_THAT(app.rows("select base_time from timdist"),
              ElementsAre(app.file("sample/imp_time.txt").string()));
}

TEST_F(Quit, of_the_truck_page_does_the_same) {
  open_commuter_page();
  program.form1.hide();
  have_picks(5);
  program.desktop.files.open_for_output(2, "results/2");
  program.form3->Command14.set_visible(true);
  analyst.click("Command14");
  EXPECT_EQ(filled_entries(), 14 - 6);
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(program.form3.OutputFile, "");
  EXPECT_EQ(program.form3.DistrictFile, "");
  EXPECT_FALSE(program.desktop.files.is_open(2));
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
}

/// Leaving while something can't be stored.
class LeavingUnstored : public LeavingThePage {
 protected:
  void refuse(const std::string& table) {
    app.sql("create trigger refuse_" + table + " before update on " + table +
            " begin select raise(abort, 'refused'); end");
  }
  /// A commuter page with a pick that can't be stored, Form1 loaded before it and Form2 after.
  void open_page_that_cannot_be_stored() {
    open_commuter_page();
    program.form1.hide();
    pick("Command10(7)", "sample/trips_Mining.txt");
    have_picks(5);
    for (const int number : {1, 2}) {
      program.desktop.files.open_for_output(number, "results/" + std::to_string(number));
    }
    refuse("Anfiles");
    analyst.forget_boxes();
    analyst.will_press("OK");
  }
  /// An editor of Form1 with a change that can't be stored.
  void have_change_that_cannot_be_stored() {
    program.form1.hide();
    as_handler([this] {
      program.form1->DBGrid2.set_edit_active(true);
      testing_aids::put_by_assistive_tool(
          *program.form1->DBGrid2.widget()->findChild<QWidget*>(QStringLiteral("CellEditor")), "21");
    });
    ASSERT_TRUE(program.form1->DBGrid2.current_cell_modified());
    refuse("var_input");
  }
  std::string loaded() {
    std::string names;
    for (const auto* form : program.desktop.loaded_forms) names += std::string(form->name()) + ' ';
    return names;
  }
  std::string menus() {
    std::string states;
    for (const char* item : {"Inputs", "Run", "spec_timdist", "spec_CuCo", "spec_comm", "Spec_commercial"}) {
      states += analyst.item_enabled(item) ? "on " : "off ";
    }
    return states;
  }
  static constexpr const char* market_page_menus = "off off off on on on ";
};

TEST_F(LeavingUnstored, a_save_reports_and_keeps_the_page_the_menus_and_the_run_state) {
  analyst.choose("spec_timdist");
  pick("Command4(5)", "sample/imp_time.txt");
  have_picks(3);
  refuse("timdist");
  const std::string menus_before = menus();
  analyst.forget_boxes();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command8");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(menus(), menus_before);
  EXPECT_EQ(menus_before, "off off on off off off ");
  EXPECT_EQ(loaded(), "Form3 Form2 ");
  EXPECT_TRUE(analyst.sees("Form3"));
  EXPECT_EQ(analyst.text_of("Text1(5)"), app.file("sample/imp_time.txt").string());
  EXPECT_EQ(filled_entries(), 14);
  app.sql("drop trigger refuse_timdist");
  save_and("Yes");
  EXPECT_EQ(loaded(), "");
  EXPECT_THAT(app.rows("select distance from timdist"),
              ElementsAre(app.file("sample/imp_time.txt").string()));
}

TEST_F(LeavingUnstored,
       a_quit_reports_with_the_picks_forgotten_and_form1_gone_and_keeps_the_page_and_the_menus) {
  open_page_that_cannot_be_stored();
  ASSERT_EQ(loaded(), "Form3 Form2 Form1 ");
  analyst.click("Command3");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(loaded(), "Form3 Form2 ");
  EXPECT_EQ(menus(), market_page_menus);
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(filled_entries(), 14 - 6);
  EXPECT_EQ(program.form3.OutputFile, "");
  EXPECT_FALSE(program.desktop.files.is_open(1));
  EXPECT_FALSE(program.desktop.files.is_open(2));
  EXPECT_TRUE(analyst.sees("Form3"));
}

TEST_F(LeavingUnstored, a_quit_of_the_truck_page_reports_before_form1_goes) {
  open_page_that_cannot_be_stored();
  program.form3->Command14.set_visible(true);
  analyst.click("Command14");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(loaded(), "Form3 Form2 Form1 ");
  EXPECT_EQ(menus(), market_page_menus);
  EXPECT_EQ(program.form3.PickCount, 0);
  EXPECT_EQ(filled_entries(), 14 - 6);
  EXPECT_FALSE(program.desktop.files.is_open(1));
}

TEST_F(LeavingUnstored, a_quit_stores_form1_first_and_that_of_the_truck_page_last) {
  open_commuter_page();
  have_change_that_cannot_be_stored();
  analyst.will_press("OK");
  analyst.click("Command3");
  EXPECT_EQ(loaded(), "Form3 Form2 Form1 ");
  EXPECT_EQ(menus(), market_page_menus);
  program.form3->Command14.set_visible(true);
  analyst.will_press("OK");
  analyst.click("Command14");
  EXPECT_EQ(loaded(), "Form1 ");
  EXPECT_EQ(menus(), market_page_menus);
}

TEST_F(LeavingThePage, the_second_save_is_seen_on_no_page_and_only_unloads) {
  analyst.choose("spec_timdist");
  EXPECT_FALSE(analyst.sees("Command6"));
  have_picks(2);
  as_handler([this] { analysis::form3::Command6_Click(program); });
  EXPECT_THAT(program.desktop.loaded_forms, IsEmpty());
  EXPECT_EQ(program.form3.PickCount, 2);
  EXPECT_FALSE(analyst.item_enabled("Run"));
}

}  // namespace
