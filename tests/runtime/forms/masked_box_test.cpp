#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "assistive_tool.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Kind;
using rf::no_index;
using ::testing::ElementsAre;
using testing_aids::bound_row;
using testing_aids::data_row;
using testing_aids::SmallForm;

class MaskedBox : public testing_aids::SmallFormTest {
 protected:
  void show_with(const std::string& stored) {
    app.sql("update zones set numzones = " + stored);
    form.Show();
    QApplication::setActiveWindow(&window);
  }
  void unload() {
    as_handler([this] { form.Unload(); });
  }
  std::vector<std::string> stored() { return app.rows("select numzones from zones"); }

  SmallForm form{
      desktop,
      {data_row(0, "zones"), bound_row("MaskEdBox1", no_index, Kind::MaskEdBox, "####", 0, "numzones")}};
};

TEST_F(MaskedBox, shows_the_number_and_a_prompt_for_each_place_without_a_digit) {
  show_with("24");
  EXPECT_EQ(form->MaskEdBox1.text(), "24__");
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "24__");
}

TEST_F(MaskedBox, shows_prompts_alone_for_null) {
  show_with("null");
  EXPECT_EQ(form->MaskEdBox1.text(), "____");
}

TEST_F(MaskedBox, a_stored_number_that_is_longer_than_the_mask_is_never_cut) {
  show_with("40000");
  EXPECT_EQ(form->MaskEdBox1.text(), "40000");
  EXPECT_EQ(analyst.text_of("MaskEdBox1"), "40000");
  unload();
  EXPECT_THAT(stored(), ElementsAre("40000"));
}

TEST_F(MaskedBox, typed_digits_replace_the_number_and_the_unload_stores_them) {
  show_with("24");
  analyst.type("MaskEdBox1", "3000");
  EXPECT_EQ(form->MaskEdBox1.text(), "3000");
  unload();
  EXPECT_THAT(stored(), ElementsAre("3000"));
}

TEST_F(MaskedBox, a_single_digit_replaces_the_whole_number_that_a_tab_came_to) {
  show_with("24");
  analyst.type("MaskEdBox1", "7");
  EXPECT_EQ(form->MaskEdBox1.text(), "7___");
}

TEST_F(MaskedBox, takes_at_most_four_digits_and_no_sign_letter_or_point) {
  show_with("24");
  analyst.type("MaskEdBox1", "-1+a.234567");
  EXPECT_EQ(form->MaskEdBox1.text(), "1234");
}

TEST_F(MaskedBox, without_a_digit_stores_null) {
  show_with("24");
  analyst.find("MaskEdBox1")->setFocus();
  QTest::keyClick(analyst.find("MaskEdBox1"), Qt::Key_Delete);
  EXPECT_EQ(form->MaskEdBox1.text(), "____");
  EXPECT_TRUE(runtime::is_null(form->MaskEdBox1.held_value()));
  unload();
  EXPECT_THAT(stored(), ElementsAre("null"));
}

TEST_F(MaskedBox, with_a_gap_stores_the_number_before_it) {
  show_with("1234");
  auto* edit = qobject_cast<QLineEdit*>(analyst.find("MaskEdBox1"));
  edit->setFocus();
  edit->setCursorPosition(2);
  edit->deselect();
  QTest::keyClick(edit, Qt::Key_Backspace);
  EXPECT_EQ(form->MaskEdBox1.text(), "1_34");
  unload();
  EXPECT_THAT(stored(), ElementsAre("1"));
}

TEST_F(MaskedBox, a_click_behind_the_digits_still_takes_what_is_typed) {
  show_with("24");
  QWidget* box = analyst.find("MaskEdBox1");
  QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 4, box->height() / 2));
  QTest::keyClicks(box, QStringLiteral("7"));
  EXPECT_EQ(form->MaskEdBox1.text(), "247_");
}

TEST_F(MaskedBox, what_an_assistive_tool_puts_in_is_stored) {
  show_with("24");
  testing_aids::put_by_assistive_tool(*analyst.find("MaskEdBox1"), "37");
  EXPECT_EQ(form->MaskEdBox1.text(), "37__");
  unload();
  EXPECT_THAT(stored(), ElementsAre("37"));
}

TEST_F(MaskedBox, what_the_program_shows_in_it_is_not_stored) {
  show_with("24");
  form->MaskEdBox1.show_value(std::int64_t{40000});
  form->MaskEdBox1.set_caption("##");
  EXPECT_FALSE(form->MaskEdBox1.changed);
  unload();
  EXPECT_THAT(stored(), ElementsAre("24"));
}

TEST_F(MaskedBox, nothing_typed_stores_nothing) {
  show_with("24");
  app.sql("update zones set numzones = 77");
  unload();
  EXPECT_THAT(stored(), ElementsAre("77"));
}

}  // namespace
