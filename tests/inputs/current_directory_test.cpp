// Buttons that find the study whatever directory is current when they are pressed.
#include "grid_page.h"
#include "inputs/grid_save.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FromAnotherDirectory : public testing_aids::GridPage {
 protected:
  void leave() { std::filesystem::current_path(app.file("results")); }

  void expect_to_be_back() {
    EXPECT_EQ(program.desktop.files.current_directory(), app.path());
    EXPECT_THAT(app.names_in("results"), IsEmpty());
    EXPECT_THAT(analyst.boxes(), IsEmpty());
  }

  /// Saves from the chooser into "study".
  void save_from_elsewhere() {
    std::filesystem::create_directory(app.file("study"));
    choose_directory(app.file("study").string());
    leave();
    press(program.frmdirget, "cmdExit");
    expect_to_be_back();
  }
};

TEST_F(FromAnotherDirectory, the_industries_go_ahead) {
  set_zones(1);
  analyst.choose("CommerTdata");
  tick({1});
  leave();
  press(program.form2, "Command1");
  expect_to_be_back();
  EXPECT_THAT(sosec(), ElementsAre("1|1|null"));
}

TEST_F(FromAnotherDirectory, the_occupations_go_ahead) {
  set_zones(1);
  analyst.choose("Comm_pop");
  tick({7});
  leave();
  press(program.form2, "Command3");
  expect_to_be_back();
  EXPECT_THAT(sosec(), ElementsAre("1|null"));
}

TEST_F(FromAnotherDirectory, distances_and_times_are_saved) {
  open_times(1);
  press_on_grid("cmdClose");
  save_from_elsewhere();
  EXPECT_THAT(app.names_in("study"), ElementsAre("base_time.txt", "distance.txt", "imp_time.txt"));
}

TEST_F(FromAnotherDirectory, trips_are_saved) {
  open_trips(1, {1});
  press_on_grid("cmdClose");
  save_from_elsewhere();
  EXPECT_THAT(app.names_in("study"), ElementsAre("trips_Mining.txt"));
}

TEST_F(FromAnotherDirectory, commuters_are_saved) {
  open_employment(1, {7});
  press_on_grid("cmdClose");
  save_from_elsewhere();
  EXPECT_THAT(app.names_in("study"), ElementsAre("commute _Sales.txt"));
}

TEST_F(FromAnotherDirectory, daily_trips_are_saved) {
  open_daily_trips(1);
  std::filesystem::create_directory(app.file("study"));
  choose_directory(app.file("study").string());
  leave();
  as_handler([this] { inputs::frmdatagrid::savcommutrip(program); });
  expect_to_be_back();
  EXPECT_THAT(app.names_in("study"), ElementsAre("commutrip.txt"));
}

}  // namespace
