// Each launch on a form that an earlier launch has arranged: what the later one does not set stays.
#include <map>

#include "inputs/launchers.h"
#include "inputs_page.h"

namespace {

using Launch = void (*)(forms::Program&);

class LauncherPairs : public testing_aids::InputsPage {
 protected:
  LauncherPairs() { store_numbers("2", "1"); }

  /// A launch as the menu would make it; the menu itself may be off by then.
  void launch(const std::string& name) {
    static const std::map<std::string, Launch> launches{
        {"", [](forms::Program&) {}},
        {"Zones", inputs::mdiform1::Zones_Click},
        {"Districts", inputs::mdiform1::Districts_Click},
        {"Times", inputs::mdiform1::Times_Click},
        {"Comm_pop", inputs::mdiform1::Comm_pop_Click},
        {"CommerTdata", inputs::mdiform1::CommerTdata_Click},
    };
    as_handler([&] { launches.at(name)(program); });
  }

  /// The name of a group of boxes that are shown, the number of these before it when some are not, "" when
  /// none is.
  std::string shown_boxes(int first, int last, const std::string& group) {
    int shown = 0;
    for (int i = first; i <= last; ++i) shown += program.form2->Chcktrp(i).visible() ? 1 : 0;
    if (shown == 0) return "";
    return shown == last - first + 1 ? group : " " + std::to_string(shown) + group;
  }

  /// What Form2 shows, were it on top: the captions of frame and label, the number boxes, whether the frame
  /// of the markets is there, which ticks, which buttons; and what it keeps.
  std::string look() {
    auto& form2 = program.form2;
    std::string text = (form2.visible() ? "" : "(hidden) ") + form2->Frame1.caption() + " / " +
                       form2->Label1.caption() + " /";
    if (form2->MaskEdBox1.visible()) text += " zones";
    if (form2->MaskEdBox2.visible()) text += " districts";
    const bool markets = form2->Frame2.visible();
    if (markets) text += " markets";
    text += shown_boxes(0, 3, " industries") + shown_boxes(4, 15, " occupations") +
            shown_boxes(16, 16, " armed forces") + " / ";
    const auto in_markets = [&](const runtime::forms::Control& button, char digit) {
      if (markets && button.visible()) text += digit;
    };
    in_markets(form2->Command1, '1');
    in_markets(form2->Command2, '2');
    in_markets(form2->Command3, '3');
    in_markets(form2->Command4, '4');
    if (form2->Command5.visible()) text += '5';
    if (form2->Command6.visible()) text += '6';
    return text + " / " + mode_word() + " / " + program.mdiform1.NumberEntryKind + "\n";
  }

  std::string after(const std::string& first, const std::string& second) {
    launch(first);
    launch(second);
    const std::string text = (first.empty() ? "" : first + ", ") + second + ": " + look();
    as_handler([this] {
      program.frmDataGrid.unload_without_storing();
      program.frmdirget.unload_without_storing();
      program.form2.unload_without_storing();
      program.mdiform1.NumberEntryKind.clear();
    });
    return text;
  }
};

// Frame / label / what is to be seen / buttons by number / mode word / kind of number.
TEST_F(LauncherPairs, on_a_form_that_was_not_loaded) {
  std::string table;
  for (const char* second : {"Zones", "Districts", "Times", "Comm_pop", "CommerTdata"}) {
    table += after("", second);
  }
  EXPECT_EQ(table, R"(Zones: Enter Number of Zones / Enter Number of Zones / zones / 56 /  / zone
Districts: Enter Number of Districts / Number of Districts / districts / 56 /  / district
Times: (hidden) Develop Commercial Market Inputs / Enter Number of Zones / zones markets industries occupations / 12 / timdist / 
Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / zones markets occupations / 23 / commuter_data / 
CommerTdata: Develop Commercial Market Inputs / Number of Zones / zones markets industries / 12 / commercial / 
)");
}

TEST_F(LauncherPairs, after_each_other_leave_what_the_later_one_does_not_set) {
  std::string table;
  for (const char* first : {"Zones", "Districts", "Times", "Comm_pop", "CommerTdata"}) {
    for (const char* second : {"Zones", "Districts", "Times", "Comm_pop", "CommerTdata"}) {
      table += after(first, second);
    }
  }
  EXPECT_EQ(table, R"(Zones, Zones: Enter Number of Zones / Enter Number of Zones / zones / 56 /  / zone
Zones, Districts: Enter Number of Districts / Number of Districts / districts / 56 /  / district
Zones, Times: Enter Number of Zones / Enter Number of Zones / zones / 56 / timdist / zone
Zones, Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / zones / 56 / commuter_data / zone
Zones, CommerTdata: Enter Number of Zones / Number of Zones / zones / 56 / commercial / zone
Districts, Zones: Enter Number of Zones / Number of Districts / zones districts / 56 /  / zone
Districts, Districts: Enter Number of Districts / Number of Districts / districts / 56 /  / district
Districts, Times: Enter Number of Districts / Number of Districts / districts / 56 / timdist / district
Districts, Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / districts / 56 / commuter_data / district
Districts, CommerTdata: Enter Number of Districts / Number of Zones / districts / 56 / commercial / district
Times, Zones: Enter Number of Zones / Enter Number of Zones / zones / 56 / timdist / zone
Times, Districts: Enter Number of Districts / Number of Districts / districts / 56 / timdist / district
Times, Times: (hidden) Develop Commercial Market Inputs / Enter Number of Zones / zones markets industries occupations / 12 / timdist / 
Times, Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / zones markets occupations / 23 / commuter_data / 
Times, CommerTdata: Develop Commercial Market Inputs / Number of Zones / zones markets industries / 12 / commercial / 
Comm_pop, Zones: Enter Number of Zones / Number of Zones / zones / 56 / commuter_data / zone
Comm_pop, Districts: Enter Number of Districts / Number of Districts / districts / 56 / commuter_data / district
Comm_pop, Times: Choose Occupations for Commuting Sector / Number of Zones / zones markets occupations / 23 / timdist / 
Comm_pop, Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / zones markets occupations / 23 / commuter_data / 
Comm_pop, CommerTdata: Choose Occupations for Commuting Sector / Number of Zones / zones markets / 23 / commercial / 
CommerTdata, Zones: Enter Number of Zones / Number of Zones / zones / 56 / commercial / zone
CommerTdata, Districts: Enter Number of Districts / Number of Districts / districts / 56 / commercial / district
CommerTdata, Times: Develop Commercial Market Inputs / Number of Zones / zones markets industries / 12 / timdist / 
CommerTdata, Comm_pop: Choose Occupations for Commuting Sector / Number of Zones / zones markets / 23 / commuter_data / 
CommerTdata, CommerTdata: Develop Commercial Market Inputs / Number of Zones / zones markets industries / 12 / commercial / 
)");
}

TEST_F(LauncherPairs, put_the_box_that_was_shown_last_on_top) {
  launch("Districts");
  launch("Zones");
  const QWidget* zones = program.form2->MaskEdBox1.widget();
  QWidget* frame = zones->parentWidget();
  EXPECT_EQ(frame->childAt(zones->geometry().center()), zones);
}

}  // namespace
