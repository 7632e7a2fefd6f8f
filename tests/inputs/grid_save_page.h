// The fixture of tests of the grid's save: into a directory, into one that fails, and with a report.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "grid_page.h"
#include "pointer_watch.h"

namespace testing_aids {

class GridSavePage : public GridPage {
 protected:
  void save_times_into(const std::string& directory) {
    press_on_grid("cmdClose");
    save_into(directory);
  }

  /// Saves into a directory that will fail: it is made, chosen and then spoilt.
  void save_into_spoilt(const std::function<void(const std::filesystem::path&)>& spoil) {
    const auto directory = app.file("spoilt");
    std::filesystem::create_directories(directory);
    choose_directory(directory.string());
    spoil(directory);
    analyst.forget_boxes();
    analyst.will_press("OK");
    press(program.frmdirget, "cmdExit");
    EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  }

  /// Saves into "study", which ends in a report before the hourglass comes and before a file is touched.
  void save_and_expect(const std::string& fault) {
    std::filesystem::create_directories(app.file("study"));
    const auto before = files_in("study");
    analyst.forget_boxes();
    analyst.will_press("OK");
    save_into("study");
    EXPECT_THAT(last_box(), ::testing::StartsWith("Run-time error '" + fault + "':"));
    EXPECT_EQ(files_in("study"), before);
    EXPECT_EQ(hourglass(), "normal");
  }
};

}  // namespace testing_aids
