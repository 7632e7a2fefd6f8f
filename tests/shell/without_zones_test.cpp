// The three roads to a run while the number of zones is not known: the way is barred, and out of the program
// alone a way is left.
#include "event_loop.h"
#include "program_test.h"

namespace {

using ::testing::ElementsAre;

class WithoutZones : public testing_aids::ProgramTest, public ::testing::WithParamInterface<const char*> {
 protected:
  /// The road is chosen with the form of the numbers in front, with another directory current.
  void choose_road() {
    app.sql("UPDATE zones SET numzones = 0");
    as_handler([this] {
      program.mdiform1.spec_CuCo.set_enabled(true);
      program.mdiform1.spec_comm.set_enabled(true);
      program.mdiform1.Spec_commercial.set_enabled(true);
    });
    analyst.choose("Zones");
    ASSERT_TRUE(analyst.sees("Form2"));
    std::filesystem::current_path(app.file("results"));
    analyst.will_press("OK");
    analyst.choose(GetParam());
  }

  std::string open_items() {
    std::string all;
    for (const char* item : {"Inputs", "Run", "Mnu_exit"}) {
      if (analyst.item_enabled(item)) all += std::string(all.empty() ? "" : " ") + item;
    }
    return all;
  }
};

TEST_P(WithoutZones, tells_so_with_both_menus_off_and_the_number_form_hidden) {
  std::string items_at_the_box;
  bool number_form_is_seen = true;
  analyst.when_box_shows = [&](const analyst::Box&) {
    items_at_the_box = open_items();
    number_form_is_seen = analyst.sees("Form2");
  };
  choose_road();
  EXPECT_THAT(analyst.texts(), ElementsAre("The number of zones for this analysis has not been specified!"));
  EXPECT_EQ(items_at_the_box, "Mnu_exit");
  EXPECT_FALSE(number_form_is_seen);
  EXPECT_EQ(open_items(), "Mnu_exit");
  EXPECT_FALSE(analyst.sees("Form2"));
  EXPECT_THAT(program.desktop.loaded_forms, ElementsAre(&program.form2));
}

TEST_P(WithoutZones, has_gone_to_the_application_directory_by_then) {
  choose_road();
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
}

TEST_P(WithoutZones, leaves_exit_as_the_way_out) {
  choose_road();
  EXPECT_EQ(testing_aids::in_event_loop([this] { analyst.choose("Mnu_exit"); }), 0);
}

INSTANTIATE_TEST_SUITE_P(, WithoutZones, ::testing::Values("spec_timdist", "spec_comm", "Spec_commercial"));

}  // namespace
