// What all the pick buttons have in common, each called by itself.
#include "analysis/picks.h"
#include "pick_test.h"

namespace {

using ::testing::IsEmpty;

struct Pick {
  const char* name;
  void (*handler)(forms::Program&);
};

void PrintTo(const Pick& pick, std::ostream* stream) {
  *stream << pick.name;
}

class PickFamily : public testing_aids::PickTest, public ::testing::WithParamInterface<Pick> {
 protected:
  PickFamily() {
    show_form();
    program.form3->cdbox1.cancel_error = true;  // which the district pick does not ask for itself
  }

  void begin_and_cancel() {
    analyst.will_cancel_file();
    as_handler([this] { GetParam().handler(program); });
    EXPECT_THAT(messages(), IsEmpty());
  }
};

TEST_P(PickFamily, comes_to_the_application_directory_before_its_dialog) {
  program.desktop.files.ChDir("truck");
  begin_and_cancel();
  EXPECT_EQ(program.desktop.files.current_directory(), app.path());
  EXPECT_THAT(dialog().directory, ::testing::AnyOf(path("sample"), path("results")));
}

TEST_P(PickFamily, asks_its_dialog_anew_to_keep_the_current_directory) {
  cdbox1().flags = runtime::forms::CommonDialog::extension_different;
  int flags_at_showing = 0;
  analyst.when_box_shows = [&](const analyst::Box&) { flags_at_showing = cdbox1().flags; };
  begin_and_cancel();
  EXPECT_EQ(flags_at_showing, 8);
  EXPECT_EQ(cdbox1().flags, 8);
}

using namespace analysis::form3;

INSTANTIATE_TEST_SUITE_P(
    , PickFamily,
    ::testing::Values(Pick{"trips", [](forms::Program& program) { Command1_Click(program, 2); }},
                      Pick{"occupation", [](forms::Program& program) { Command10_Click(program, 7); }},
                      Pick{"distance", [](forms::Program& program) { Command4_Click(program, 5); }},
                      Pick{"commercial_output", Command5_Click}, Pick{"districts", Command7_Click},
                      Pick{"reliability", Command9_Click}, Pick{"commuter_output", Command12_Click},
                      Pick{"tons", Command15_Click}),
    [](const auto& pick) { return pick.param.name; });

}  // namespace
