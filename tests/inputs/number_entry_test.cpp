#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>

#include "assistive_tool.h"
#include "inputs/form2.h"
#include "inputs_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NumberEntry : public testing_aids::InputsPage {
 protected:
  /// Opens the entry, types a number and saves it.
  void save_zones(const std::string& number, const std::vector<std::string>& answers) {
    analyst.choose("Zones");
    analyst.type("MaskEdBox1", number);
    click_and_answer("Command5", answers);
  }
  void save_districts(const std::string& number, const std::vector<std::string>& answers) {
    analyst.choose("Districts");
    analyst.type("MaskEdBox2", number);
    click_and_answer("Command5", answers);
  }
  void empty(const std::string& box) {
    analyst.find(box)->setFocus();
    QTest::keyClick(analyst.find(box), Qt::Key_Delete);
  }
};

TEST_F(NumberEntry, asks_about_the_zones_as_typed_with_the_prompts_of_the_mask) {
  save_zones("30", {"No"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 30__ zones   Is this correct?"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
  EXPECT_EQ(analyst.last_box().title, "Quelar");
}

TEST_F(NumberEntry, asks_about_the_districts_as_typed_with_the_prompts_of_the_mask) {
  save_districts("7", {"No"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 7___ districts.  Is this correct?"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
}

TEST_F(NumberEntry, asks_with_the_gap_that_the_box_has_and_stores_the_number_before_it) {
  store_numbers("1234", "1");
  analyst.choose("Zones");
  QWidget* box = analyst.find("MaskEdBox1");
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Home);
  QTest::keyClick(box, Qt::Key_Right);
  QTest::keyClick(box, Qt::Key_Delete);
  click_and_answer("Command5", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 1_34 zones   Is this correct?"));
  EXPECT_EQ(stored(), "1|1");
}

TEST_F(NumberEntry, confirmed_is_stored_and_leaves_the_form) {
  save_zones("30", {"Yes"});
  EXPECT_EQ(stored(), "30|4");
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_EQ(new_levels(), 0);
  save_districts("30", {"Yes"});
  EXPECT_EQ(stored(), "30|30");
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(NumberEntry, denied_stays_on_the_screen_and_is_not_stored) {
  save_zones("30", {"No"});
  EXPECT_EQ(stored(), "24|4");
  EXPECT_TRUE(analyst.sees("Command5"));
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "30__");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(NumberEntry, denied_can_be_corrected_and_saved) {
  save_zones("30", {"No"});
  QApplication::setActiveWindow(&program.mdiform1.window());  // the box is gone
  analyst.find("Command6")->setFocus();
  analyst.type("MaskEdBox1", "31");
  click_and_answer("Command5", {"Yes"});
  EXPECT_EQ(stored(), "31|4");
}

TEST_F(NumberEntry, fewer_zones_than_districts_are_asked_about_first_and_refused_after_a_yes) {
  save_zones("3", {"Yes", "OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 3___ zones   Is this correct?",
                                           "Number of Districts (4) greater than Number of Zones! (24)"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("OK"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
  EXPECT_EQ(stored(), "24|4");
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "3___");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(NumberEntry, fewer_zones_than_districts_are_refused_after_a_no_as_well) {
  save_zones("3", {"No", "OK"});
  EXPECT_EQ(last_box(), "Number of Districts (4) greater than Number of Zones! (24)");
  EXPECT_TRUE(analyst.sees("Command5"));
}

TEST_F(NumberEntry, a_refusal_tells_the_districts_as_typed_and_the_zones_as_stored) {
  analyst.choose("Districts");
  analyst.type("MaskEdBox2", "9");
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "3");
  click_and_answer("Command5", {"Yes", "OK"});
  EXPECT_EQ(last_box(), "Number of Districts (9) greater than Number of Zones! (24)");
  EXPECT_EQ(stored(), "24|4");
}

TEST_F(NumberEntry, a_question_is_left_by_its_buttons_alone) {
  for (const auto& [item, box, save] : {std::tuple("Zones", "MaskEdBox1", "Command5"),
                                        {"Districts", "MaskEdBox2", "Command5"},
                                        {"Zones", "MaskEdBox1", "Command6"}}) {
    analyst.choose(item);
    analyst.type(box, "7");
    analyst.will_do([this](QDialog& question) {
      QTest::keyClick(&question, Qt::Key_Escape);
      question.close();
      EXPECT_TRUE(question.isVisible());
      EXPECT_EQ(stored(), "24|4");
      QTest::mouseClick(qobject_cast<QMessageBox*>(&question)->button(QMessageBox::No), Qt::LeftButton);
    });
    press(program.form2, save);
    EXPECT_TRUE(program.form2.loaded()) << item;
    EXPECT_EQ(stored(), "24|4");
    as_handler([this] { program.form2.Unload(); });
  }
}

TEST_F(NumberEntry, what_an_assistive_tool_puts_into_the_box_is_asked_about_and_stored) {
  analyst.choose("Zones");
  testing_aids::put_by_assistive_tool(*analyst.find("MaskEdBox1"), "30");
  click_and_answer("Command5", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 30__ zones   Is this correct?"));
  EXPECT_EQ(stored(), "30|4");
}

TEST_F(NumberEntry, the_box_bears_its_labels_present_words_for_an_assistive_tool) {
  for (const auto& [item, box] : {std::pair("Zones", "MaskEdBox1"),
                                  {"Districts", "MaskEdBox2"},
                                  {"Zones", "MaskEdBox1"},
                                  {"CommerTdata", "MaskEdBox1"},
                                  {"Comm_pop", "MaskEdBox1"}}) {
    analyst.choose(item);
    EXPECT_EQ(analyst.find(box)->accessibleName().toStdString(), analyst.text_of("Label1")) << item;
  }
  as_handler([this] { program.form2.Unload(); });
  EXPECT_EQ(program.form2->MaskEdBox1.widget()->accessibleName().toStdString(), "Enter Number of Zones");
}

TEST_F(NumberEntry, as_many_zones_as_districts_pass) {
  save_zones("4", {"Yes"});
  EXPECT_EQ(stored(), "4|4");
}

TEST_F(NumberEntry, as_many_districts_as_stored_zones_pass) {
  save_districts("24", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 24__ districts.  Is this correct?"));
  EXPECT_EQ(stored(), "24|24");
}

TEST_F(NumberEntry, one_district_more_than_stored_zones_is_refused_without_a_question) {
  save_districts("25", {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Number of Districts (25) greater than Number of Zones! (24)"));
  EXPECT_EQ(stored(), "24|4");
  EXPECT_EQ(analyst.text_of("MaskEdBox2"), "25__");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(NumberEntry, districts_are_held_against_the_stored_zones_and_not_the_typed_ones) {
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "30");
  save_districts("25", {"OK"});
  EXPECT_EQ(last_box(), "Number of Districts (25) greater than Number of Zones! (24)");
}

TEST_F(NumberEntry, a_save_stores_every_box_that_was_changed) {
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "30");
  save_districts("7", {"Yes"});
  EXPECT_EQ(stored(), "30|7");
}

TEST_F(NumberEntry, zero_is_asked_about_and_stored) {
  store_numbers("24", "0");
  save_zones("0", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered 0___ zones   Is this correct?"));
  EXPECT_EQ(stored(), "0|0");
  analyst.will_press("OK");
  analyst.choose("Times");
  EXPECT_EQ(last_box(), "Please enter the number of zones!");
}

TEST_F(NumberEntry, an_empty_box_is_stored_as_null) {
  store_numbers("24", "null");
  analyst.choose("Zones");
  empty("MaskEdBox1");
  click_and_answer("Command5", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("you have entered ____ zones   Is this correct?"));
  EXPECT_EQ(stored(), "null|null");
}

TEST_F(NumberEntry, without_stored_zones_every_district_is_too_many) {
  store_numbers("null", "null");
  save_districts("1", {"OK"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Number of Districts (1) greater than Number of Zones! ()"));
}

TEST_F(NumberEntry, four_digits_are_the_largest_number) {
  save_zones("9999", {"Yes"});
  EXPECT_EQ(stored(), "9999|4");
}

TEST_F(NumberEntry, leaves_the_menus_enabled) {
  analyst.choose("Zones");
  EXPECT_TRUE(analyst.item_enabled("Inputs"));
  EXPECT_TRUE(analyst.item_enabled("Run"));
}

TEST_F(NumberEntry, cancelled_returns_to_the_menu_and_stores_nothing) {
  analyst.choose("Zones");
  analyst.type("MaskEdBox1", "30");
  click_and_answer("Command6", {"Yes"});
  EXPECT_THAT(analyst.texts(), ElementsAre("Return to Main Menu?"));
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("Yes", "No"));
  EXPECT_EQ(analyst.last_box().icon, QMessageBox::NoIcon);
  EXPECT_FALSE(program.form2.loaded());
  EXPECT_EQ(stored(), "24|4");
  EXPECT_EQ(new_levels(), 0);
}

TEST_F(NumberEntry, a_cancel_puts_the_stored_numbers_back_before_it_asks) {
  analyst.choose("Districts");
  analyst.type("MaskEdBox2", "9");
  std::string while_asked;
  analyst.when_box_shows = [&](const analyst::Box&) { while_asked = analyst.text_of("MaskEdBox2"); };
  click_and_answer("Command6", {"No"});
  EXPECT_EQ(while_asked, "4___");
  EXPECT_TRUE(analyst.sees("Command6"));
  EXPECT_EQ(analyst.text_of("MaskEdBox2"), "4___");
  EXPECT_EQ(new_levels(), 0);
  click_and_answer("Command5", {"Yes"});
  EXPECT_EQ(stored(), "24|4");
}

TEST_F(NumberEntry, a_cancel_reads_the_stored_numbers_anew) {
  analyst.choose("Zones");
  store_numbers("12", "3");
  click_and_answer("Command6", {"No"});
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "12__");
}

TEST_F(NumberEntry, shows_a_fault_of_the_store_and_keeps_the_form) {
  app.sql("create trigger refuse before update on zones begin select raise(abort, 'no'); end");
  save_zones("30", {"Yes", "OK"});
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_TRUE(analyst.sees("Command5"));
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "30__");
  EXPECT_EQ(stored(), "24|4");
}

TEST_F(NumberEntry, the_frame_would_fill_the_form_if_anything_could_be_dragged) {
  analyst.choose("Zones");
  program.form2.set_window_state(runtime::forms::WindowState::normal);
  as_handler([this] { inputs::form2::Frame1_DragDrop(program); });
  EXPECT_GT(program.form2->Frame1.width(), 8895 - 100);
  EXPECT_GT(program.form2->Frame1.height(), 5160 - 100);
  EXPECT_THAT(analyst.boxes(), IsEmpty());
}

}  // namespace
