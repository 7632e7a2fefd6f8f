// Where the pages of the markets get the number of zones from when they are opened.
#include <QApplication>
#include <QTest>

#include "commercial_page.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MarketOpening : public testing_aids::CommercialPage, public ::testing::WithParamInterface<const char*> {
 protected:
  void open_number_of_zones() {
    save_time_files();
    // Nobody hands the focus over without a window manager, and the box is gone.
    QApplication::setActiveWindow(&program.mdiform1.window());
    analyst.choose("Zones");
    analyst.forget_boxes();
  }

  void expect_page_of_the_stored_zones() {
    EXPECT_THAT(analyst.boxes(), IsEmpty());
    EXPECT_TRUE(analyst.sees("Form3"));
    EXPECT_EQ(program.form2->MaskEdBox1.text(), "24__");
    EXPECT_THAT(app.rows("SELECT numzones FROM zones"), ElementsAre("24"));
  }
};

TEST_P(MarketOpening, counts_no_number_of_zones_that_was_typed_and_not_saved) {
  open_number_of_zones();
  analyst.type("MaskEdBox1", "0");
  ASSERT_EQ(program.form2->MaskEdBox1.text(), "0___");
  analyst.choose(GetParam());
  expect_page_of_the_stored_zones();
}

TEST_P(MarketOpening, counts_no_box_that_was_emptied) {
  open_number_of_zones();
  analyst.find("MaskEdBox1")->setFocus();
  QTest::keyClick(analyst.find("MaskEdBox1"), Qt::Key_Delete);
  ASSERT_EQ(program.form2->MaskEdBox1.text(), "____");
  analyst.choose(GetParam());
  expect_page_of_the_stored_zones();
}

TEST_P(MarketOpening, comes_to_the_application_directory_before_it_opens_the_database) {
  save_time_files();
  std::filesystem::current_path(app.file("results"));
  analyst.forget_boxes();
  analyst.choose(GetParam());
  expect_page_of_the_stored_zones();
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

INSTANTIATE_TEST_SUITE_P(, MarketOpening, ::testing::Values("spec_comm", "Spec_commercial"));

}  // namespace
