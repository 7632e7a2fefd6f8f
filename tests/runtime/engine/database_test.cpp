#include "runtime/engine/database.h"

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing::rest_of;

class Execute : public testing::ProjectFile {
 protected:
  std::string all_of(const std::string& table) {
    auto rows = database.OpenRecordset(table);
    return rest_of(rows);
  }
  int fault_of_statement(const std::string& sql) {
    return fault_of([&] { database.Execute(sql); });
  }

  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

using ExecuteOn = Execute;

TEST_F(Execute, deletes_all_rows) {
  database.Execute("DELETE * from COMMUTER");
  EXPECT_EQ(all_of("Commuter"), "");
}

TEST_F(Execute, makes_fills_and_drops_a_table) {
  database.Execute("CREATE TABLE sosec (Zone integer,Sales DOUBLE,Service DOUBLE)");
  database.Execute("insert into sosec select index, sigma, NULL from Commuter");
  database.Execute("update sosec set Service = 2.5 where zone= 1 ");
  EXPECT_EQ(all_of("SOSEC"), "0 11.27 -|1 11.35 2.5|7 13.05 -|");
  database.Execute("DROP TABLE sosec");
  EXPECT_EQ(fault_of_statement("DROP TABLE sosec"), 3078);
}

TEST_F(Execute, gives_the_room_of_a_dropped_table_free_at_once_unless_a_level_guards_it) {
  database.Execute("CREATE TABLE a (Zone integer)");
  database.Execute("CREATE TABLE b (Zone integer)");
  database.Execute("DROP TABLE a");
  EXPECT_EQ(ask("SELECT count(*) FROM sqlite_schema WHERE name IN ('a', 'b')"), "1");
  workspace.BeginTrans();
  database.Execute("DROP TABLE b");
  workspace.Rollback();
  EXPECT_EQ(all_of("b"), "");
}

TEST_F(Execute, pours_one_table_into_another) {
  database.Execute("CREATE TABLE population (Zone integer, Sales DOUBLE)");
  database.Execute("CREATE TABLE sosec (Zone integer, Sales DOUBLE)");
  database.Execute("insert into sosec select index, sigma from Commuter");
  database.Execute("insert into population select * from sosec ");
  EXPECT_EQ(all_of("population"), "0 11.27|1 11.35|7 13.05|");
}

TEST_F(Execute, joins_two_tables_where_their_fields_are_equal) {
  database.Execute("CREATE TABLE population (Zone integer, Sales DOUBLE)");
  database.Execute("CREATE TABLE sosec (Zone integer, Sales DOUBLE)");
  database.Execute("CREATE TABLE pairs (Zone integer, Sales DOUBLE, Sales_emp DOUBLE)");
  database.Execute("insert into population select index, sigma from Commuter");
  database.Execute("insert into sosec select index, wage from Commuter where index > 0");
  database.Execute(
      "INSERT INTO pairs select population.Zone, population.Sales, sosec.Sales as Sales_emp from population, "
      " "
      "sosec where population.zone=sosec.zone;");
  EXPECT_EQ(all_of("pairs"), "1 11.35 120.64|7 13.05 125.2|");
}

TEST_F(Execute, finds_no_row_equal_to_null) {
  database.Execute("UPDATE Commuter set sigma = NULL where index = 1");
  database.Execute("UPDATE Commuter set sigma=0 where sigma = NULL ");
  EXPECT_EQ(all_of("select * from Commuter where index = 1"), "1 - 120.64 Transport|");
}

TEST_F(Execute, refuses_a_word_in_a_number_field) {
  database.Execute("CREATE TABLE sosec (Zone integer, Sales DOUBLE)");
  EXPECT_EQ(fault_of_statement("insert into sosec select index, description from Commuter"), 3421);
  EXPECT_EQ(all_of("sosec"), "");
}

TEST_F(Execute, of_a_table_that_is_there_already_faults_with_its_name) {
  try {
    database.Execute("CREATE TABLE commuter (a integer)");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, 3010);
    EXPECT_STREQ(fault.what(), "Table 'commuter' already exists");
  }
}

TEST_F(Execute, of_unknown_names_faults) {
  EXPECT_EQ(fault_of_statement("DELETE * from nosuch"), 3078);
  EXPECT_EQ(fault_of_statement("UPDATE Commuter set nosuch = 1"), 3061);
  EXPECT_EQ(fault_of_statement("UPDATE Commuter set sigma = nosuch"), 3061);
  EXPECT_EQ(fault_of_statement("UPDATE Commuter set sigma = Nosuch(1)"), 3085);
}

TEST_F(Execute, of_a_malformed_statement_faults_by_its_kind) {
  EXPECT_EQ(fault_of_statement(""), 3129);
  EXPECT_EQ(fault_of_statement("select * from Commuter"), 3129);
  EXPECT_EQ(fault_of_statement("PRAGMA user_version = 1"), 3129);
  EXPECT_EQ(fault_of_statement("update Commuter set  = 5 where index= 1"), 3144);
  EXPECT_EQ(fault_of_statement("update Commuter set sigma =  where index= 1"), 3144);
  EXPECT_EQ(fault_of_statement("update Commuter set sigma = 1; DROP TABLE Commuter"), 3144);
  EXPECT_EQ(fault_of_statement("update Commuter set sigma = 'open"), 3144);
  EXPECT_EQ(fault_of_statement("insert into Commuter values (1)"), 3134);
  EXPECT_EQ(fault_of_statement("CREATE TABLE sosec (Zone nonsense)"), 3290);
  EXPECT_EQ(fault_of_statement("DROP sosec"), 3295);
  EXPECT_EQ(fault_of_statement("DELETE Commuter"), 3075);
}

TEST_F(Execute, that_faults_midway_changes_nothing) {
  EXPECT_EQ(fault_of_statement("UPDATE Commuter set sigma = 1 / (index - 7)"), 11);
  EXPECT_EQ(all_of("Commuter"), "0 11.27 129.6 Production|1 11.35 120.64 Transport|7 13.05 125.2 Sales|");
}

TEST_F(Execute, leaves_a_file_that_other_tools_open) {
  database.Execute("CREATE TABLE sosec (Zone integer, Sales DOUBLE)");
  workspace.handler_ended();
  EXPECT_EQ(ask("SELECT sql FROM sqlite_schema WHERE name = 'sosec'"),
            "CREATE TABLE \"sosec\" (\"Zone\" INTEGER, \"Sales\" REAL) STRICT");
}

TEST_F(ExecuteOn, reaches_the_named_table_only) {
  EXPECT_EQ(fault_of([&] { database.ExecuteOn("commuter", "UPDATE Commuter set sigma = wage + 1"); }), 0);
  EXPECT_EQ(all_of("select * from Commuter where index = 0"), "0 130.6 129.6 Production|");
  EXPECT_EQ(fault_of([&] { database.ExecuteOn("sosec", "UPDATE Commuter set sigma = 1"); }), 3075);
  EXPECT_EQ(fault_of([&] { database.ExecuteOn("Commuter", "DROP TABLE empty_one"); }), 3075);
  EXPECT_EQ(fault_of([&] {
              database.ExecuteOn("empty_one",
                                 "insert into empty_one select index, description from Commuter");
            }),
            3075);
}

TEST_F(ExecuteOn, binds_no_statement_before_or_after_it) {
  const std::string sql = "UPDATE Commuter set sigma = 1";
  EXPECT_EQ(fault_of([&] { database.Execute(sql); }), 0);
  EXPECT_EQ(fault_of([&] { database.ExecuteOn("sosec", sql); }), 3075);
  EXPECT_EQ(fault_of([&] { database.Execute(sql); }), 0);
}

}  // namespace
}  // namespace runtime::engine
