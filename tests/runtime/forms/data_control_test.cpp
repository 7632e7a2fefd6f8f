#include <filesystem>
#include <optional>

#include "runtime/text/numbers.h"
#include "small_disk.h"
#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Kind;
using rf::no_index;
using ::testing::ElementsAre;
using testing_aids::bound_row;
using testing_aids::data_row;
using testing_aids::fault_of;
using testing_aids::Rows;
using testing_aids::SmallForm;

rf::ControlDesign path_row(int index, int data, const char* field) {
  return bound_row("Text1", index, Kind::TextBox, "", data, field);
}

class BoundBoxes : public testing_aids::SmallFormTest {
 protected:
  BoundBoxes() {
    app.sql("update timdist set distance = 'd', base_time = 'b', improvement_time = 'i'");
    app.sql("update Anfiles set Agfile = 'ag', Minfile = 'min'");
  }

  void unload(SmallForm& form) {
    as_handler([&] { form.Unload(); });
  }
  std::optional<testing_aids::SmallDisk> small_disk;

  std::vector<std::string> timdist() { return app.rows("select * from timdist"); }
  std::vector<std::string> anfiles() { return app.rows("select Agfile, Minfile from Anfiles"); }

  SmallForm paths{desktop,
                  {data_row(0, "timdist"), path_row(0, 0, "distance"), path_row(1, 0, "base_time"),
                   path_row(2, 0, "base_time")},
                  "Paths"};
  SmallForm doubled{
      desktop,
      {data_row(0, "Anfiles"), data_row(2, "Anfiles"), path_row(0, 0, "Agfile"), path_row(1, 2, "Minfile")},
      "Doubled"};
};

TEST_F(BoundBoxes, show_the_fields_of_the_first_record_when_the_form_loads) {
  EXPECT_EQ(paths->Text1(0).text(), "d");
  EXPECT_EQ(paths->Text1(1).text(), "b");
}

TEST_F(BoundBoxes, find_their_field_and_table_without_regard_to_case) {
  SmallForm form(desktop, {data_row(0, "TIMDIST"), path_row(0, 0, "Distance")}, "Other");
  EXPECT_EQ(form->Text1(0).text(), "d");
}

TEST_F(BoundBoxes, store_nothing_before_the_record_moves_or_the_form_unloads) {
  as_handler([&] { paths->Text1(0).set_text("new"); });
  EXPECT_THAT(timdist(), ElementsAre("d|b|i"));
  EXPECT_EQ(std::get<std::string>(paths->Data1(0).field("distance")), "d");
}

TEST_F(BoundBoxes, store_a_changed_text_at_the_unload) {
  as_handler([&] { paths->Text1(0).set_text("new"); });
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("new|b|i"));
}

TEST_F(BoundBoxes, store_a_typed_text_at_the_unload) {
  paths.Show();
  paths->Text1(0).set_place({0, 600, 1500, 375});
  analyst.type("Text1(0)", "!");
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("d!|b|i"));
}

TEST_F(BoundBoxes, store_when_the_record_moves) {
  as_handler([&] {
    paths->Text1(0).set_text("new");
    paths->Data1(0).MoveFirst();
  });
  EXPECT_THAT(timdist(), ElementsAre("new|b|i"));
  EXPECT_EQ(paths->Text1(0).text(), "new");
}

TEST_F(BoundBoxes, store_changed_fields_only) {
  as_handler([&] { paths->Text1(0).set_text("new"); });
  app.sql("update timdist set base_time = 'outside', improvement_time = 'too'");
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("new|outside|too"));
}

TEST_F(BoundBoxes, of_several_on_one_field_the_changed_one_is_stored) {
  as_handler([&] { paths->Text1(2).set_text("second"); });
  EXPECT_EQ(paths->Text1(1).text(), "b");
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("d|second|i"));
}

TEST_F(BoundBoxes, of_two_data_controls_on_one_record_keep_each_others_fields) {
  as_handler([&] {
    doubled->Text1(0).set_text("new ag");
    doubled->Text1(1).set_text("new min");
  });
  unload(doubled);
  EXPECT_THAT(anfiles(), ElementsAre("new ag|new min"));
}

TEST_F(BoundBoxes, read_the_table_anew_at_a_refresh_and_drop_what_they_held) {
  as_handler([&] { paths->Text1(0).set_text("new"); });
  app.sql("update timdist set distance = 'outside'");
  as_handler([&] { paths->Data1(0).Refresh(); });
  EXPECT_EQ(paths->Text1(0).text(), "outside");
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("outside|b|i"));
}

TEST_F(BoundBoxes, keep_what_was_read_until_the_next_refresh) {
  EXPECT_EQ(std::get<std::string>(paths->Data1(0).field("distance")), "d");
  app.sql("update timdist set distance = 'outside'");
  EXPECT_EQ(std::get<std::string>(paths->Data1(0).field("distance")), "d");
  EXPECT_EQ(paths->Text1(0).text(), "d");
}

TEST_F(BoundBoxes, on_an_empty_table_stay_empty_and_store_nowhere) {
  app.sql("delete from timdist");
  EXPECT_EQ(paths->Text1(0).text(), "");
  as_handler([&] { paths->Text1(0).set_text("new"); });
  unload(paths);
  EXPECT_FALSE(paths.loaded());
  EXPECT_TRUE(timdist().empty());
  EXPECT_TRUE(analyst.boxes().empty());
}

TEST_F(BoundBoxes, a_fault_of_the_storing_keeps_the_form_and_what_it_holds) {
  SmallForm numbers(desktop, {data_row(0, "zones"), path_row(0, 0, "numzones")}, "Numbers");
  numbers.Show();
  numbers->Text1(0).set_text("many");
  EXPECT_EQ(fault_of([&] { numbers.Unload(); }), 3421);
  EXPECT_TRUE(numbers.loaded());
  EXPECT_TRUE(analyst.sees("Numbers"));
  EXPECT_EQ(numbers->Text1(0).text(), "many");
  as_handler([&] {
    numbers->Text1(0).set_text("9");
    numbers.Unload();
  });
  EXPECT_THAT(app.rows("select numzones from zones"), ElementsAre("9"));
}

TEST_F(BoundBoxes, a_fault_of_the_storing_leaves_the_field_as_it_is_stored) {
  SmallForm numbers(desktop, {data_row(0, "zones"), path_row(0, 0, "numzones"), path_row(1, 0, "numdstrct")},
                    "Numbers");
  app.sql("update zones set numzones = 24, numdstrct = 3");
  numbers->Text1(0).set_text("9");
  numbers->Text1(1).set_text("many");
  EXPECT_EQ(fault_of([&] { numbers->Data1(0).MoveFirst(); }), 3421);
  EXPECT_EQ(runtime::text::joined(numbers->Data1(0).field("numzones")), "24");
}

// Nothing becomes durable while another program reads, and what can't stay is taken back on a full disk.
TEST_F(BoundBoxes, hold_what_was_taken_back_until_it_is_stored) {
  const std::string path(100'000, 'x');
  paths->Text1(0).set_text("new");
  analyst.will_press("OK");
  as_handler([&] {
    paths->Data1(0).MoveFirst();
    EXPECT_EQ(runtime::text::joined(paths->Data1(0).field("distance")), "new");
    desktop.workspace.OpenDatabase("zelmor.mdb").Execute("update timdist set base_time = '" + path + "'");
    small_disk.emplace(std::filesystem::file_size(app.file("zelmor.mdb")));
  });
  small_disk.reset();
  EXPECT_EQ(runtime::text::joined(paths->Data1(0).field("distance")), "d");
  EXPECT_EQ(paths->Text1(0).text(), "new");
  unload(paths);
  EXPECT_THAT(timdist(), ElementsAre("new|b|i"));
}

TEST_F(BoundBoxes, are_dropped_by_an_unload_without_storing) {
  as_handler([&] {
    paths->Text1(0).set_text("new");
    paths.unload_without_storing();
  });
  EXPECT_THAT(timdist(), ElementsAre("d|b|i"));
  EXPECT_EQ(paths->Text1(0).text(), "d");
}

TEST_F(BoundBoxes, can_be_loaded_only_while_the_databases_directory_is_current) {
  desktop.files.ChDir("results");
  EXPECT_EQ(fault_of([&] { paths.hide(); }), 3024);
  EXPECT_FALSE(paths.loaded());
  EXPECT_THAT(app.names_in("results"), ::testing::IsEmpty());
  desktop.files.ChDir(app.path());
  EXPECT_EQ(fault_of([&] { paths.hide(); }), 0);
}

TEST_F(BoundBoxes, a_data_control_without_a_table_waits_for_its_recordset) {
  SmallForm form(desktop, {data_row(0, nullptr)}, "Handed");
  EXPECT_EQ(fault_of([&] { form.hide(); }), 0);
  EXPECT_EQ(fault_of([&] { form->Data1(0).field(0); }), 91);
}

}  // namespace
