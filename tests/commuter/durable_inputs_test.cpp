// What the page has stored is in the database file when a program of the run starts, so that whatever ends
// the run, or reads the file meanwhile, meets it.
#include "chain_test.h"

namespace {

using ::testing::ElementsAre;

class DurableInputs : public testing_aids::CommuterChain {
 protected:
  /// Each program leaves a copy of the database as it finds it.
  void let_programs_copy_the_database() {
    programs_do("copy ../zelmor.mdb seen/1.mdb", "copy ../zelmor.mdb seen/2.mdb",
                "copy ../zelmor.mdb seen/3.mdb");
  }
  void expect_in_every_copy(const std::string& path) {
    for (const char* copy : {"1.mdb", "2.mdb", "3.mdb"}) {
      app.put_file("zelmor.mdb", app.bytes(std::string("commuter/seen/") + copy));
      EXPECT_THAT(app.rows("SELECT base_time FROM timdist"), ElementsAre(path)) << copy;
    }
  }
};

TEST_F(DurableInputs, hold_the_paths_of_the_page) {
  let_programs_copy_the_database();
  make_ready();
  by_code([this] { program.form3->Text1(6).set_text("sample/imp_time.txt"); });
  run();
  EXPECT_EQ(verdict(), completed);
  expect_in_every_copy("sample/imp_time.txt");
}

TEST_F(DurableInputs, hold_the_paths_of_the_page_after_a_run_that_left_its_transaction) {
  let_programs_copy_the_database();
  make_ready();
  press_and_answer({"No"});
  by_code([this] { program.form3->Text1(6).set_text("sample/imp_time.txt"); });
  run();
  EXPECT_EQ(verdict(), completed);
  expect_in_every_copy("sample/imp_time.txt");
}

}  // namespace
