#include "runtime/engine/recordset.h"

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing::rest_of;

class RecordsetTest : public testing::ProjectFile {
 protected:
  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

using Opening = RecordsetTest;
using Moving = RecordsetTest;
using Fields = RecordsetTest;
using Editing = RecordsetTest;

TEST(UnsetRecordset, faults_at_every_use) {
  Recordset rows;
  EXPECT_FALSE(rows.is_set());
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.eof()); }), 91);
  EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), 91);
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 91);
  EXPECT_EQ(fault_of([&] { rows.Close(); }), 91);
}

TEST_F(Opening, stands_on_the_first_row) {
  auto rows = database.OpenRecordset("commuter");
  EXPECT_FALSE(rows.eof());
  EXPECT_FALSE(rows.bof());
  EXPECT_EQ(rest_of(rows), "0 11.27 129.6 Production|1 11.35 120.64 Transport|7 13.05 125.2 Sales|");
}

TEST_F(Opening, of_an_empty_table_is_at_both_ends) {
  auto rows = database.OpenRecordset("empty_one");
  EXPECT_TRUE(rows.eof());
  EXPECT_TRUE(rows.bof());
  EXPECT_EQ(rows.RecordCount(), 0);
}

TEST_F(Opening, of_a_selection_shows_the_rows_that_meet_it) {
  auto rows = database.OpenRecordset("select * from Commuter where index =7 ");
  EXPECT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rest_of(rows), "7 13.05 125.2 Sales|");
}

TEST_F(Opening, of_what_is_not_there_faults) {
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("nosuch"); }), 3078);
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("select * from nosuch where a = 1"); }), 3078);
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("select * from Commuter where nosuch = 1"); }), 3061);
  EXPECT_EQ(fault_of([&] { database.OpenRecordset("select * from Commuter where"); }), 3075);
  EXPECT_EQ(fault_of([&] { database.OpenRecordset(""); }), 3075);
}

TEST_F(Moving, past_the_last_row_is_the_end_and_no_further) {
  auto rows = database.OpenRecordset("Commuter");
  rows.MoveLast();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{7}));
  rows.MoveNext();
  EXPECT_TRUE(rows.eof());
  EXPECT_FALSE(rows.bof());
  EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), 3021);
  rows.MovePrevious();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{7}));
}

TEST_F(Moving, before_the_first_row_is_the_start_and_no_further) {
  auto rows = database.OpenRecordset("Commuter");
  rows.MovePrevious();
  EXPECT_TRUE(rows.bof());
  EXPECT_FALSE(rows.eof());
  EXPECT_EQ(fault_of([&] { rows.MovePrevious(); }), 3021);
  rows.MoveNext();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{0}));
}

TEST_F(Moving, in_an_empty_table_faults) {
  auto rows = database.OpenRecordset("empty_one");
  EXPECT_EQ(fault_of([&] { rows.MoveFirst(); }), 3021);
  EXPECT_EQ(fault_of([&] { rows.MoveLast(); }), 3021);
  EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), 3021);
  EXPECT_EQ(fault_of([&] { rows.MovePrevious(); }), 3021);
}

TEST_F(Moving, goes_on_from_a_row_that_another_handle_deleted) {
  auto rows = database.OpenRecordset("Commuter");
  workspace.OpenDatabase(file.string()).Execute("DELETE * from commuter where index = 0");
  rows.MoveNext();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{1}));
}

TEST_F(Moving, drops_an_edit) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("sigma", 1.0);
  rows.MoveFirst();
  EXPECT_EQ(rows.field("sigma"), Value(11.27));
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 3020);
}

TEST_F(Moving, leaves_nothing_under_way_that_would_keep_a_table_from_being_dropped) {
  auto rows = database.OpenRecordset("Commuter");
  rows.MoveNext();
  database.Execute("DROP TABLE Commuter");
  EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), 3078);
}

TEST_F(Moving, to_the_next_row_by_key_sees_no_row_twice_while_rows_change) {
  auto rows = database.OpenRecordset("Commuter");
  int steps = 0;
  for (; !rows.eof() && steps < 10; ++steps) {
    rows.Edit();
    rows.set("index", std::int64_t{100});
    rows.Update();
    rows.MoveNext();
  }
  EXPECT_EQ(steps, 3);
}

class LongWalk : public RecordsetTest {
 protected:
  LongWalk() {
    for (int i = 0; i < 6; ++i) database.Execute("insert into Commuter select * from Commuter");
    workspace.handler_ended();
    rows = database.OpenRecordset("Commuter");
    for (; steps < 100; ++steps) rows.MoveNext();
  }
  std::string write_from_outside() const { return ask("UPDATE Commuter SET wage = 1"); }

  int steps = 0;
  Recordset rows;
};

TEST_F(LongWalk, meets_every_row_once_also_when_it_writes_on_the_way) {
  for (; !rows.eof(); ++steps) {
    rows.Edit();
    rows.set("wage", 2.0);
    rows.Update();
    rows.MoveNext();
  }
  EXPECT_EQ(steps, 192);
  workspace.handler_ended();
  EXPECT_EQ(ask("SELECT count(*) FROM Commuter WHERE wage = 2"), "92");
}

TEST_F(LongWalk, lets_other_programs_write_when_it_has_come_to_its_end) {
  EXPECT_EQ(write_from_outside(), "error: database is locked");
  while (!rows.eof()) rows.MoveNext();
  EXPECT_EQ(write_from_outside(), "");
}

TEST_F(LongWalk, lets_other_programs_write_when_its_handler_ends) {
  workspace.handler_ended();
  EXPECT_EQ(write_from_outside(), "");
}

TEST_F(LongWalk, lets_an_external_program_write_also_within_a_level) {
  workspace.BeginTrans();
  workspace.make_durable();
  EXPECT_EQ(write_from_outside(), "");
}

TEST_F(LongWalk, lets_other_programs_write_when_its_file_is_closed) {
  rows.Close();
  database.Close();
  EXPECT_EQ(write_from_outside(), "");
}

TEST_F(Fields, are_found_by_name_in_any_case_and_by_position) {
  auto rows = database.OpenRecordset("Commuter");
  EXPECT_EQ(rows.field_count(), 4);
  EXPECT_EQ(rows.field_name(3), "description");
  EXPECT_EQ(rows.field("DESCRIPTION"), Value(std::string("Production")));
  EXPECT_EQ(rows.field(3), Value(std::string("Production")));
}

TEST_F(Fields, that_do_not_exist_fault) {
  auto rows = database.OpenRecordset("Commuter");
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.field("nosuch")); }), 3265);
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.field(4)); }), 3265);
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.field(-1)); }), 3265);
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.field_name(4)); }), 3265);
}

TEST_F(Fields, without_a_current_record_fault) {
  auto rows = database.OpenRecordset("empty_one");
  EXPECT_EQ(fault_of([&] { static_cast<void>(rows.field("a")); }), 3021);
  EXPECT_EQ(fault_of([&] { rows.Edit(); }), 3021);
}

TEST_F(Fields, are_those_read_at_the_last_move) {
  auto rows = database.OpenRecordset("Commuter");
  database.Execute("UPDATE Commuter set sigma = 5");
  EXPECT_EQ(rows.field("sigma"), Value(11.27));
  rows.Requery();
  EXPECT_EQ(rows.field("sigma"), Value(5.0));
}

TEST_F(Fields, of_single_precision_are_read_and_stored_as_such) {
  auto rows = database.OpenRecordset("Commercial");
  EXPECT_EQ(rows.field("sigma"), Value(14.51F));
  rows.Edit();
  rows.set("sigma", 4.62);
  rows.Update();
  EXPECT_EQ(rows.field("sigma"), Value(4.62F));
  workspace.handler_ended();
  EXPECT_EQ(ask("SELECT sigma = 4.61999988555908203125 FROM Commercial"), "1");
}

TEST_F(Fields, need_no_table_of_types) {
  database.Execute("DROP TABLE field_types");
  auto rows = database.OpenRecordset("Commercial");
  EXPECT_EQ(rows.field("sigma"), Value(14.510000228881836));
}

TEST_F(Editing, writes_only_the_fields_that_were_set) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("sigma", 1.5);
  database.Execute("UPDATE Commuter set wage = 9 where index = 0");
  rows.Update();
  EXPECT_EQ(rest_of(rows), "0 1.5 9 Production|1 11.35 120.64 Transport|7 13.05 125.2 Sales|");
}

TEST_F(Editing, adds_a_record_at_the_end_with_null_in_what_was_not_set) {
  auto rows = database.OpenRecordset("Commuter");
  rows.AddNew();
  rows.set("index", std::int64_t{12});
  rows.set(2, std::int64_t{3});
  rows.Update();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{0}));
  rows.MoveLast();
  EXPECT_EQ(rest_of(rows), "12 - 3 -|");
}

TEST_F(Editing, stands_on_the_first_record_that_an_empty_table_gets) {
  auto rows = database.OpenRecordset("empty_one");
  rows.AddNew();
  rows.set("b", std::string("first"));
  rows.Update();
  EXPECT_EQ(rest_of(rows), "- first|");
}

TEST_F(Editing, adds_a_record_of_nulls_when_nothing_is_set) {
  auto rows = database.OpenRecordset("empty_one");
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(rest_of(rows), "- -|");
}

TEST_F(Editing, shows_what_was_set_until_it_is_cancelled) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("sigma", std::int64_t{2});
  EXPECT_EQ(rows.field("sigma"), Value(2.0));
  rows.CancelUpdate();
  EXPECT_EQ(rows.field("sigma"), Value(11.27));
}

TEST_F(Editing, that_could_not_be_stored_is_dropped) {
  ask("CREATE TRIGGER no_change BEFORE UPDATE ON Commuter BEGIN SELECT raise(abort, 'no'); END");
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("sigma", 99.0);
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 3421);
  EXPECT_EQ(rows.field("sigma"), Value(11.27));
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 3020);
}

TEST_F(Editing, that_was_taken_back_is_read_again) {
  auto rows = database.OpenRecordset("Commuter");
  rows.MoveNext();
  workspace.BeginTrans();
  rows.Edit();
  rows.set("sigma", 99.0);
  rows.Update();
  workspace.Rollback();
  rows.ReadAgain();
  EXPECT_EQ(rows.field("sigma"), Value(11.35));
  EXPECT_EQ(rest_of(rows), "1 11.35 120.64 Transport|7 13.05 125.2 Sales|");
  rows.ReadAgain();
  EXPECT_TRUE(rows.eof());
}

TEST_F(Editing, without_having_begun_faults) {
  auto rows = database.OpenRecordset("Commuter");
  EXPECT_EQ(fault_of([&] { rows.set("sigma", 1.0); }), 3020);
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 3020);
  EXPECT_EQ(fault_of([&] { rows.CancelUpdate(); }), 3020);
}

TEST_F(Editing, keeps_the_current_record_though_it_no_longer_meets_the_condition) {
  auto rows = database.OpenRecordset("select * from Commuter where index < 2");
  rows.Edit();
  rows.set("index", std::int64_t{50});
  rows.Update();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{50}));
  rows.MoveNext();
  EXPECT_EQ(rest_of(rows), "1 11.35 120.64 Transport|");
  EXPECT_EQ(rows.RecordCount(), 1);
}

TEST_F(Editing, of_a_row_that_is_gone_faults) {
  auto rows = database.OpenRecordset("Commuter");
  database.Execute("DELETE * from Commuter");
  rows.Edit();
  rows.set("sigma", 1.0);
  EXPECT_EQ(fault_of([&] { rows.Update(); }), 3021);
}

TEST_F(Editing, refuses_what_a_field_can_not_take) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  const auto fault_of_set = [&](const char* field, Value value) {
    return fault_of([&] { rows.set(field, std::move(value)); });
  };
  EXPECT_EQ(fault_of_set("sigma", std::string("word")), 3421);
  EXPECT_EQ(fault_of_set("sigma", std::string("")), 3421);
  EXPECT_EQ(fault_of_set("sigma", std::string("inf")), 3421);
  EXPECT_EQ(fault_of_set("sigma", std::numeric_limits<double>::infinity()), 3421);
  EXPECT_EQ(fault_of_set("sigma", std::numeric_limits<double>::quiet_NaN()), 3421);
  EXPECT_EQ(fault_of_set("index", 1.5), 3421);
  EXPECT_EQ(fault_of_set("index", 3e9), 3421);
  EXPECT_EQ(fault_of_set("index", std::int64_t{9999999999}), 3421);
  auto singles = database.OpenRecordset("Commercial");
  singles.Edit();
  EXPECT_EQ(fault_of([&] { singles.set("sigma", 1e300); }), 3421);
}

TEST_F(Editing, takes_what_a_field_can_hold_in_its_own_form) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("index", 4.0);
  rows.set("sigma", std::string(" 2.5 "));
  rows.set("wage", Value());
  rows.set("description", 0.5);
  rows.Update();
  EXPECT_EQ(testing::text_of(rows.field(0)) + " " + testing::text_of(rows.field(1)) + " " +
                testing::text_of(rows.field(2)) + " " + testing::text_of(rows.field(3)),
            "4 2.5 - 0.5");
}

TEST_F(Editing, is_seen_by_all_handles_at_once) {
  auto other = workspace.OpenDatabase(file.string());
  auto rows = database.OpenRecordset("Commuter");
  rows.Edit();
  rows.set("sigma", 1.5);
  rows.Update();
  EXPECT_EQ(other.OpenRecordset("Commuter").field("sigma"), Value(1.5));
}

TEST_F(RecordsetTest, stays_usable_when_its_database_is_closed) {
  auto rows = database.OpenRecordset("Commuter");
  database.Close();
  EXPECT_FALSE(database.is_set());
  rows.MoveNext();
  EXPECT_EQ(rows.field("index"), Value(std::int64_t{1}));
}

TEST_F(RecordsetTest, is_not_set_after_its_close) {
  auto rows = database.OpenRecordset("Commuter");
  rows.Close();
  EXPECT_FALSE(rows.is_set());
}

TEST_F(RecordsetTest, takes_up_the_new_fields_of_a_table_made_anew) {
  auto rows = database.OpenRecordset("Commuter");
  database.Execute("DROP TABLE Commuter");
  database.Execute("CREATE TABLE Commuter (Zone integer, Sales DOUBLE)");
  rows.Requery();
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(rows.field_name(1), "Sales");
}

}  // namespace
}  // namespace runtime::engine
