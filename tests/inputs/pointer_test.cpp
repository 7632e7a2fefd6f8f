// Of all the long work on zone data only the exports show the hourglass: the writing of the skeleton, the
// load and a fill leave the pointer as it is.
#include <set>

#include "grid_page.h"
#include "other_program.h"
#include "pointer_watch.h"

namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::EndsWith;

class PointerAtWork : public testing_aids::BesideOtherProgram<testing_aids::GridPage> {
 protected:
  /// From now on each text file that is written, or read as a table, is noted with the pointer by then.
  void look_at_files() {
    program.desktop.files.held_elsewhere = [this](const std::filesystem::path& file) {
      seen.insert("written: " + file.filename().string() + ", " + testing_aids::hourglass());
      return false;
    };
    auto& resolve = program.desktop.workspace.resolve_name;
    resolve = [this, before = resolve](std::string_view name) {
      const auto file = before(name);
      seen.insert("read: " + file.filename().string() + ", " + testing_aids::hourglass());
      return file;
    };
  }

  std::set<std::string> seen;
};

TEST_F(PointerAtWork, is_normal_while_the_skeleton_is_written_and_loaded) {
  look_at_files();
  open_times(2);
  ASSERT_TRUE(program.frmDataGrid.visible());
  EXPECT_THAT(seen, AllOf(Contains("written: trips.csv, normal"), Contains("read: trips.csv, normal"),
                          Each(EndsWith("normal"))));
}

TEST_F(PointerAtWork, is_normal_while_the_chosen_columns_are_written_and_loaded) {
  look_at_files();
  open_trips(2, {1});
  press_on_grid("Cmdquit");
  open_employment(2, {7});
  ASSERT_TRUE(program.frmDataGrid.EmploymentPass);
  EXPECT_THAT(seen, AllOf(Contains("written: trips.csv, normal"), Contains("read: trips.csv, normal"),
                          Each(EndsWith("normal"))));
}

TEST_F(PointerAtWork, is_normal_while_a_fill_waits_its_turn) {
  open_times(1);
  program.desktop.workspace.waiting = [this](bool) { seen.insert(testing_aids::hourglass()); };
  expect_refusal({}, [this] { fill(2, {"0", "1", "0", "1", "4"}); });
  EXPECT_THAT(seen, ::testing::ElementsAre("normal"));
}

}  // namespace
