#include <algorithm>
#include <filesystem>

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing::rest_of;
using testing::text_of;

class RowOrderTest : public testing::ProjectFile {
 protected:
  RowOrderTest() {
    ask("CREATE TABLE pairs (Origin INTEGER, Destination INTEGER, name TEXT, trips REAL) STRICT;"
        "INSERT INTO pairs VALUES (1, 1, 'Ada', 5), (1, 2, 'bob', 2.5), (2, 1, NULL, 5), (2, 2, 'Bea', NULL),"
        " (3, 1, 'cy', -1)");
  }

  Recordset narrowed(const std::string& filter, const std::string& sort) {
    auto rows = database.OpenRecordset("pairs");
    rows.set_Filter(filter);
    rows.set_Sort(sort);
    return rows.OpenRecordset();
  }
  std::string all(const std::string& filter, const std::string& sort) {
    auto rows = narrowed(filter, sort);
    return rest_of(rows);
  }
  std::string list(const Recordset& rows, std::int64_t first, int count) {
    std::string text;
    for (const auto& row : rows.GetRows(first, count)) {
      for (const auto& value : row) text += (&value == &row.front() ? "" : " ") + text_of(value);
      text += "|";
    }
    return text;
  }
  std::ptrdiff_t files() const {
    return std::distance(std::filesystem::directory_iterator(directory),
                         std::filesystem::directory_iterator());
  }

  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

using Positions = RowOrderTest;
using Filtering = RowOrderTest;
using Sorting = RowOrderTest;
using Cloning = RowOrderTest;
using SettingEach = RowOrderTest;

TEST_F(Positions, count_from_the_first_row_in_table_order) {
  auto rows = database.OpenRecordset("pairs");
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  rows.set_AbsolutePosition(3);
  EXPECT_EQ(text_of(rows.field("name")), "Bea");
  EXPECT_EQ(rows.AbsolutePosition(), 3);
  rows.MoveNext();
  EXPECT_EQ(rows.AbsolutePosition(), 4);
  rows.MoveNext();
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_EQ(rows.RecordCount(), 5);
}

TEST_F(Positions, where_no_row_is_fault_and_leave_the_walk_where_it_stands) {
  auto rows = database.OpenRecordset("pairs");
  rows.MoveNext();
  EXPECT_EQ(fault_of([&] { rows.set_AbsolutePosition(5); }), 3021);
  EXPECT_EQ(fault_of([&] { rows.set_AbsolutePosition(-1); }), 3021);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  auto none = database.OpenRecordset("empty_one");
  EXPECT_EQ(fault_of([&] { none.set_AbsolutePosition(0); }), 3021);
  EXPECT_EQ(none.AbsolutePosition(), -1);
  EXPECT_EQ(list(none, 0, 5), "");
}

TEST_F(Positions, step_over_gaps_between_the_keys) {
  database.Execute("DELETE * from pairs where origin = 1 and destination = 2");
  database.Execute("DELETE * from pairs where origin = 2 and destination = 2");
  auto rows = database.OpenRecordset("pairs");
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_EQ(list(rows, 0, 10), "1 1 Ada 5|2 1 - 5|3 1 cy -1|");
  rows.set_AbsolutePosition(2);
  EXPECT_EQ(text_of(rows.field("name")), "cy");
  rows.MovePrevious();
  EXPECT_EQ(rows.AbsolutePosition(), 1);
}

TEST_F(Positions, follow_the_rows_that_come_and_go) {
  auto rows = database.OpenRecordset("pairs");
  EXPECT_EQ(rows.RecordCount(), 5);
  database.Execute("DELETE * from pairs where origin = 2");
  EXPECT_EQ(list(rows, 1, 5), "1 2 bob 2.5|3 1 cy -1|");
  rows.AddNew();
  rows.set("name", std::string("new"));
  rows.Update();
  EXPECT_EQ(list(rows, 2, 5), "3 1 cy -1|- - new -|");
  workspace.BeginTrans();
  database.Execute("DELETE * from pairs");
  EXPECT_EQ(rows.RecordCount(), 0);
  workspace.Rollback();
  EXPECT_EQ(rows.RecordCount(), 4);
}

TEST_F(Positions, follow_the_rows_that_another_program_adds) {
  auto rows = database.OpenRecordset("pairs");
  EXPECT_EQ(rows.RecordCount(), 5);
  ask("INSERT INTO pairs VALUES (9, 9, 'far', 0)");
  EXPECT_EQ(list(rows, 4, 9), "3 1 cy -1|9 9 far 0|");
}

TEST_F(Positions, are_those_of_the_rows_that_meet_the_condition) {
  auto rows = database.OpenRecordset("select * from pairs where trips > 0");
  EXPECT_EQ(list(rows, 1, 9), "1 2 bob 2.5|2 1 - 5|");
  rows.set_AbsolutePosition(2);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  database.Execute("UPDATE pairs set trips = 0 where origin = 1");
  EXPECT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rows.AbsolutePosition(), 0);
}

TEST_F(Positions, are_right_after_an_insertion_into_a_new_table_and_into_a_filled_one) {
  database.Execute("CREATE TABLE copy (Origin integer, Destination integer, name text, trips double)");
  database.Execute("INSERT INTO copy SELECT * FROM pairs");
  auto rows = database.OpenRecordset("copy");
  EXPECT_EQ(rows.RecordCount(), 5);
  database.Execute("INSERT INTO copy SELECT * FROM pairs where origin = 3");
  EXPECT_EQ(rows.RecordCount(), 6);
  EXPECT_EQ(list(rows, 5, 5), "3 1 cy -1|");
}

TEST_F(Positions, show_what_is_stored_and_not_what_is_being_edited) {
  auto rows = database.OpenRecordset("pairs");
  rows.Edit();
  rows.set("name", std::string("typed"));
  EXPECT_EQ(list(rows, 0, 1), "1 1 Ada 5|");
  rows.Update();
  EXPECT_EQ(list(rows, 0, 1), "1 1 typed 5|");
}

TEST_F(Filtering, shows_the_records_that_meet_the_condition) {
  EXPECT_EQ(all("trips > 2.5", ""), "1 1 Ada 5|2 1 - 5|");
  EXPECT_EQ(all("trips = 77", ""), "");
  EXPECT_EQ(all("name like \"b*\"", ""), "1 2 bob 2.5|2 2 Bea -|");
  EXPECT_EQ(all("name Like '?ob' Or [trips] Is Null", ""), "1 2 bob 2.5|2 2 Bea -|");
  EXPECT_EQ(all("Origin Between 2 And 3 and not destination <> 1", ""), "2 1 - 5|3 1 cy -1|");
  EXPECT_EQ(all("origin In (1, 3) And trips Is Not Null", ""), "1 1 Ada 5|1 2 bob 2.5|3 1 cy -1|");
  EXPECT_EQ(all("(origin + destination) Mod 2 = 1", ""), "1 2 bob 2.5|2 1 - 5|");
  EXPECT_EQ(all("origin \\ 2 = 1 and origin ^ 2 > 4", ""), "3 1 cy -1|");
  EXPECT_EQ(all("origin & \"-\" & destination = \"2-2\"", ""), "2 2 Bea -|");
  EXPECT_EQ(all("trips / 2 = 1.25", ""), "1 2 bob 2.5|");
}

TEST_F(Filtering, of_what_is_filtered_narrows_it_further) {
  auto rows = narrowed("trips = 5", "");
  rows.set_Filter("origin = 2");
  auto fewer = rows.OpenRecordset();
  EXPECT_EQ(rest_of(fewer), "2 1 - 5|");
  EXPECT_EQ(rest_of(rows), "1 1 Ada 5|2 1 - 5|");
}

TEST_F(Filtering, of_what_is_sorted_keeps_the_order) {
  auto rows = narrowed("", "trips desc");
  rows.set_Filter("trips > 0");
  auto fewer = rows.OpenRecordset();
  EXPECT_EQ(rest_of(fewer), "1 1 Ada 5|2 1 - 5|1 2 bob 2.5|");
}

TEST_F(Filtering, is_refused_when_it_is_no_condition_on_the_table) {
  const auto fault = [&](const char* filter) { return fault_of([&] { narrowed(filter, ""); }); };
  EXPECT_EQ(fault("trips >"), 3075);
  EXPECT_EQ(fault("trips = 1; drop table pairs"), 3075);
  std::string long_sum = "trips = 0";
  for (int i = 0; i < 200; ++i) long_sum += " + 1";
  EXPECT_EQ(fault(long_sum.c_str()), 3360);
  EXPECT_EQ(fault("trips = 1, origin = 2"), 3075);
  EXPECT_EQ(fault("trips in (select sigma from Commuter)"), 3075);
  EXPECT_EQ(fault(" "), 3075);
  EXPECT_EQ(fault("nosuch = 1"), 3061);
  EXPECT_EQ(fault("\"a\" = nosuch"), 3061);
  EXPECT_EQ(fault("Commuter.sigma = 1"), 3061);
  EXPECT_EQ(fault("load_extension('x') = 1"), 3085);
  EXPECT_EQ(fault("trips = 'five'"), 3464);
  EXPECT_EQ(fault("1 / (origin - 2) > 0"), 11);
  EXPECT_EQ(all("", ""), "1 1 Ada 5|1 2 bob 2.5|2 1 - 5|2 2 Bea -|3 1 cy -1|");
}

TEST_F(Sorting, puts_null_first_and_ties_in_table_order) {
  EXPECT_EQ(all("", "trips"), "2 2 Bea -|3 1 cy -1|1 2 bob 2.5|1 1 Ada 5|2 1 - 5|");
  EXPECT_EQ(all("", "trips Desc"), "1 1 Ada 5|2 1 - 5|1 2 bob 2.5|3 1 cy -1|2 2 Bea -|");
}

TEST_F(Sorting, orders_texts_without_regard_to_case) {
  EXPECT_EQ(all("origin < 3", "name"), "2 1 - 5|1 1 Ada 5|2 2 Bea -|1 2 bob 2.5|");
}

TEST_F(Sorting, goes_by_several_columns) {
  EXPECT_EQ(all("", "[Destination] desc, trips asc"), "2 2 Bea -|1 2 bob 2.5|3 1 cy -1|1 1 Ada 5|2 1 - 5|");
}

TEST_F(Sorting, of_what_is_filtered_keeps_the_filter_and_of_what_is_sorted_replaces_the_order) {
  auto rows = narrowed("trips is not null", "trips desc");
  rows.set_Sort("destination");
  auto sorted = rows.OpenRecordset();
  EXPECT_EQ(rest_of(sorted), "1 1 Ada 5|2 1 - 5|3 1 cy -1|1 2 bob 2.5|");
}

TEST_F(Sorting, is_refused_when_it_names_no_columns) {
  const auto fault = [&](const char* sort) { return fault_of([&] { narrowed("", sort); }); };
  EXPECT_EQ(fault("nosuch"), 3061);
  EXPECT_EQ(fault("trips,"), 3075);
  EXPECT_EQ(fault("trips + 1"), 3075);
  EXPECT_EQ(fault("trips; drop table pairs"), 3075);
}

TEST_F(Sorting, stands_while_fields_change_and_is_made_anew_by_a_requery) {
  auto rows = narrowed("trips > 0", "trips");
  rows.Edit();
  rows.set("trips", 99.0);
  rows.Update();
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_EQ(list(rows, 0, 9), "1 2 bob 99|1 1 Ada 5|2 1 - 5|");
  rows.Edit();
  rows.set("trips", -9.0);
  rows.Update();
  EXPECT_EQ(rest_of(rows), "1 2 bob -9|1 1 Ada 5|2 1 - 5|");
  rows.Requery();
  EXPECT_EQ(rest_of(rows), "1 1 Ada 5|2 1 - 5|");
}

TEST_F(Sorting, takes_a_new_record_in_at_a_requery) {
  auto rows = narrowed("", "trips desc");
  rows.AddNew();
  rows.set("trips", 70.0);
  rows.Update();
  EXPECT_EQ(rows.RecordCount(), 5);
  EXPECT_EQ(text_of(rows.field("name")), "Ada");
  rows.Requery();
  EXPECT_EQ(list(rows, 0, 2), "- - - 70|1 1 Ada 5|");
}

TEST_F(Sorting, is_walked_from_end_to_end_in_both_directions) {
  auto rows = narrowed("", "trips");
  rows.MoveLast();
  EXPECT_EQ(rows.AbsolutePosition(), 4);
  rows.MoveNext();
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), 3021);
  std::string names;
  for (rows.MovePrevious(); !rows.bof(); rows.MovePrevious()) names += text_of(rows.field("name")) + " ";
  EXPECT_EQ(names, "- Ada bob cy Bea ");
  EXPECT_EQ(fault_of([&] { rows.MovePrevious(); }), 3021);
  rows.MoveNext();
  EXPECT_EQ(text_of(rows.field("name")), "Bea");
}

TEST_F(Sorting, steps_over_a_record_that_is_gone) {
  auto rows = narrowed("", "trips");
  database.Execute("DELETE * from pairs where name = 'bob'");
  EXPECT_EQ(list(rows, 1, 3), "3 1 cy -1|- - - -|1 1 Ada 5|");
  EXPECT_EQ(fault_of([&] { rows.set_AbsolutePosition(2); }), 3021);
  EXPECT_EQ(rest_of(rows), "2 2 Bea -|3 1 cy -1|1 1 Ada 5|2 1 - 5|");
}

TEST_F(Sorting, takes_an_empty_table_and_one_row) {
  auto none = database.OpenRecordset("empty_one");
  none.set_Sort("a");
  auto sorted = none.OpenRecordset();
  EXPECT_TRUE(sorted.eof());
  EXPECT_TRUE(sorted.bof());
  EXPECT_EQ(sorted.RecordCount(), 0);
  EXPECT_EQ(fault_of([&] { sorted.MoveFirst(); }), 3021);
  auto one = narrowed("origin = 3", "trips");
  EXPECT_EQ(one.RecordCount(), 1);
  EXPECT_EQ(rest_of(one), "3 1 cy -1|");
}

TEST_F(Sorting, shows_every_record_in_its_order) {
  std::string seen;
  narrowed("", "trips desc").for_each([&](const RecordView& row) { seen += text_of(row.value(2)) + " "; });
  EXPECT_EQ(seen, "Ada - bob cy Bea ");
}

TEST_F(Sorting, leaves_no_file_and_nothing_under_way) {
  const auto before = files();
  {
    auto rows = narrowed("origin < 9", "trips");
    EXPECT_EQ(files(), before);
    EXPECT_EQ(fault_of([&] { database.Execute("DROP TABLE empty_one"); }), 0);
    workspace.handler_ended();
  }
  EXPECT_EQ(files(), before);
}

TEST_F(Sorting, tells_how_far_it_is_and_ends_at_the_whole) {
  std::int64_t last_done = 0;
  std::int64_t last_total = -1;
  workspace.progress = [&](std::int64_t done, std::int64_t total) {
    EXPECT_GE(done, last_done);
    last_done = done;
    last_total = total;
  };
  narrowed("", "trips");
  EXPECT_EQ(last_done, last_total);
}

TEST_F(Cloning, gives_a_walk_of_its_own_that_stands_on_no_record) {
  auto rows = narrowed("", "trips desc");
  auto clone = rows.Clone();
  EXPECT_EQ(clone.AbsolutePosition(), -1);
  EXPECT_EQ(fault_of([&] { static_cast<void>(clone.field("name")); }), 3021);
  clone.MoveFirst();
  clone.MoveNext();
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_EQ(rest_of(clone), "2 1 - 5|1 2 bob 2.5|3 1 cy -1|2 2 Bea -|");
}

TEST_F(Cloning, outlives_the_original_and_its_requery) {
  auto rows = narrowed("", "trips desc");
  auto clone = rows.Clone();
  database.Execute("UPDATE pairs set trips = 100 where origin = 3");
  rows.Requery();
  EXPECT_EQ(list(rows, 0, 1), "3 1 cy 100|");
  rows.Close();
  clone.MoveNext();
  EXPECT_EQ(rest_of(clone), "1 1 Ada 5|2 1 - 5|1 2 bob 2.5|3 1 cy 100|2 2 Bea -|");
}

TEST_F(Cloning, of_table_order_and_of_nothing) {
  auto clone = database.OpenRecordset("pairs").Clone();
  clone.MoveNext();
  EXPECT_EQ(clone.AbsolutePosition(), 0);
  auto none = database.OpenRecordset("empty_one").Clone();
  EXPECT_TRUE(none.eof());
  EXPECT_EQ(fault_of([&] { none.MoveNext(); }), 3021);
}

std::int64_t tens(std::int64_t position) {
  return 10 * (position + 1);
}

TEST_F(SettingEach, changes_the_first_records_in_table_order) {
  auto rows = database.OpenRecordset("pairs");
  rows.set_each("origin", 2, tens);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  EXPECT_EQ(list(rows, 0, 9), "10 1 Ada 5|20 2 bob 2.5|2 1 - 5|2 2 Bea -|3 1 cy -1|");
  rows.set_each("Origin", 5, tens);
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(list(rows, 2, 9), "30 1 - 5|40 2 Bea -|50 1 cy -1|");
}

TEST_F(SettingEach, goes_by_the_order_of_a_sorted_walk) {
  auto rows = narrowed("", "trips desc");
  rows.set_each("origin", 3, tens);
  EXPECT_EQ(rows.AbsolutePosition(), 3);
  EXPECT_EQ(rest_of(rows), "3 1 cy -1|2 2 Bea -|");
  EXPECT_EQ(all("", ""), "10 1 Ada 5|30 2 bob 2.5|20 1 - 5|2 2 Bea -|3 1 cy -1|");
}

TEST_F(SettingEach, of_more_records_than_there_are_faults_after_those_that_there_are) {
  auto rows = narrowed("origin = 2", "");
  EXPECT_EQ(fault_of([&] { rows.set_each("origin", 3, tens); }), 3021);
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(all("", ""), "1 1 Ada 5|1 2 bob 2.5|10 1 - 5|20 2 Bea -|3 1 cy -1|");
  auto whole = database.OpenRecordset("pairs");
  EXPECT_EQ(fault_of([&] { whole.set_each("origin", 6, tens); }), 3021);
  EXPECT_TRUE(whole.eof());
  EXPECT_EQ(all("", ""), "10 1 Ada 5|20 2 bob 2.5|30 1 - 5|40 2 Bea -|50 1 cy -1|");
  auto none = database.OpenRecordset("empty_one");
  EXPECT_EQ(fault_of([&] { none.set_each("a", 1, tens); }), 3021);
}

TEST_F(SettingEach, steps_over_gaps_and_rows_that_do_not_meet_the_condition) {
  database.Execute("DELETE * from pairs where origin = 1 and destination = 2");
  auto rows = database.OpenRecordset("pairs");
  rows.set_each("origin", 4, tens);
  EXPECT_EQ(list(rows, 0, 9), "10 1 Ada 5|20 1 - 5|30 2 Bea -|40 1 cy -1|");
  auto some = database.OpenRecordset("select * from pairs where destination = 1");
  some.set_each("destination", 2, tens);
  EXPECT_EQ(list(rows, 0, 9), "10 10 Ada 5|20 20 - 5|30 2 Bea -|40 1 cy -1|");
}

TEST_F(SettingEach, stops_at_a_value_that_the_field_can_not_take) {
  const auto far = [](std::int64_t position) { return position == 1 ? 3'000'000'000 : 7; };
  for (const char* sort : {"", "trips desc"}) {
    auto rows = narrowed("", sort);
    EXPECT_EQ(fault_of([&] { rows.set_each("origin", 3, far); }), 3421);
    EXPECT_EQ(rows.AbsolutePosition(), 1);
  }
  EXPECT_EQ(all("", ""), "7 1 Ada 5|1 2 bob 2.5|2 1 - 5|2 2 Bea -|3 1 cy -1|");
}

TEST_F(SettingEach, writes_no_record_that_holds_its_value) {
  auto rows = database.OpenRecordset("pairs");
  rows.set_each("origin", 5, tens);
  workspace.handler_ended();
  rows.set_each("origin", 5, tens);
  EXPECT_EQ(fault_of([&] { rows.set_each("nosuch", 1, tens); }), 3265);
  EXPECT_EQ(fault_of([&] { rows.set_each("name", 1, tens); }), 3421);
  EXPECT_EQ(list(rows, 4, 1), "50 1 cy -1|");
}

TEST_F(SettingEach, of_no_records_stands_on_the_first) {
  auto rows = database.OpenRecordset("pairs");
  rows.MoveLast();
  rows.set_each("origin", 0, tens);
  EXPECT_EQ(rows.AbsolutePosition(), 0);
}

}  // namespace
}  // namespace runtime::engine
