// The fixture of tests that press "Convert Tons to Trucks", with a stand-in in the place of the converter.
#pragma once

#include <QApplication>
#include <QTimer>

#include "commercial_page.h"

namespace testing_aids {

class ConversionPage : public CommercialPage {
 protected:
  ConversionPage() {
    run_button = "Command13";
    app.put_stand_in("truck/tontotruck.exe");
    app.put_file("sample/tons.txt", "1 2 300\r\n");
  }

  void open_truck_page() {
    analyst.choose("mnu_tonstotrucks");
    pick("Command15", "sample/tons.txt");
  }

  /// Presses the button; a report of that number comes, and the program ends with 1.
  void press_to_the_end(const std::string& number) {
    QTimer::singleShot(0, [this] {
      press_and_answer({"OK"});
      if (analyst.last_box().name != "RuntimeError") QApplication::exit(0);  // nothing else ends the wait
    });
    EXPECT_EQ(QApplication::exec(), 1);
    ASSERT_EQ(analyst.boxes().size(), 1U);
    EXPECT_EQ(analyst.last_box().name, "RuntimeError");
    EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '" + number + "':"));
  }
};

}  // namespace testing_aids
