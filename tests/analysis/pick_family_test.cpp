// What all the pick buttons have in common, each called by itself.
#include "analysis/picks.h"
#include "pick_test.h"
#include "typed_file_name.h"

namespace {

using ::testing::IsEmpty;

struct Pick {
  const char* name;
  void (*handler)(forms::Program&);
  runtime::forms::TextBox& (*box)(forms::Program&);
  /// What an empty box leaves of the pick before: "name", "directory", or both.
  const char* kept;
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

TEST_P(PickFamily, takes_a_path_that_is_typed_in_any_way_and_stores_it_absolute_and_clean) {
  app.put_file("results/\u00fcber,1.txt", "");
  for (const auto& [typed, picked_file] :
       {std::pair(std::string("../sample/distance.txt"), "sample/distance.txt"),
        {"./../results/../sample/./distance.txt", "sample/distance.txt"},
        {"../sample/DISTANCE.TXT", "sample/DISTANCE.TXT"},
        {"../results/\u00fcber,1.txt", "results/\u00fcber,1.txt"},
        {path("sample/distance.txt"), "sample/distance.txt"},
        {path("results/../sample/distance.txt"), "sample/distance.txt"}}) {
    analyst.will_do([name = typed](QDialog& box) { testing_aids::type_file_name(box, name); });
    as_handler([this] { GetParam().handler(program); });
    EXPECT_EQ(GetParam().box(program).text(), path(picked_file)) << typed;
  }
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_P(PickFamily, takes_a_typed_directory_and_a_typed_wildcard_for_no_file) {
  analyst.will_do([](QDialog& box) {
    testing_aids::type_file_name(box, "../results");
    EXPECT_TRUE(box.isVisible());
    testing_aids::type_file_name(box, "../sample/*.txt");
    EXPECT_TRUE(box.isVisible());
    testing_aids::type_file_name(box, "distance.txt");
  });
  as_handler([this] { GetParam().handler(program); });
  EXPECT_EQ(GetParam().box(program).text(), path("sample/distance.txt"));
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_P(PickFamily, with_an_empty_box_keeps_what_the_pick_before_left_in_its_dialog) {
  // An occupation looks at the box of the last one first.
  if (GetParam().name == std::string("occupation")) program.form3.LastPickIndex = 7;
  as_handler([this] { GetParam().box(program).set_text(""); });
  cdbox1().init_dir = path("truck");
  cdbox1().file_name = path("results/before.txt");
  begin_and_cancel();
  const std::string kept = GetParam().kept;
  EXPECT_EQ(dialog().text, kept.find("name") == std::string::npos ? "" : "before.txt");
  // Without a directory of its own the dialog opens where the name that it has lies.
  EXPECT_EQ(dialog().directory, path(kept.find("directory") == std::string::npos ? "results" : "truck"));
}

using namespace analysis::form3;

constexpr const char* name_and_directory = "name, directory";

INSTANTIATE_TEST_SUITE_P(
    , PickFamily,
    ::testing::Values(
        Pick{"trips", [](forms::Program& program) { Command1_Click(program, 2); },
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text1(2); },
             name_and_directory},
        Pick{"occupation", [](forms::Program& program) { Command10_Click(program, 7); },
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text5(7); },
             name_and_directory},
        Pick{"distance", [](forms::Program& program) { Command4_Click(program, 5); },
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text1(5); },
             "directory"},
        Pick{"commercial_output", Command5_Click,
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text2; },
             "directory"},
        Pick{"districts", Command7_Click,
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text3; },
             name_and_directory},
        Pick{"reliability", Command9_Click,
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text4; },
             "name"},
        Pick{"commuter_output", Command12_Click,
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text6; },
             "name"},
        Pick{"tons", Command15_Click,
             [](forms::Program& program) -> runtime::forms::TextBox& { return program.form3->Text7; },
             name_and_directory}),
    [](const auto& pick) { return pick.param.name; });

}  // namespace
