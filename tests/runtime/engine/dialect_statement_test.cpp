#include "runtime/engine/dialect/statement.h"

#include "runtime/engine/project_file.h"

namespace runtime::engine::dialect {
namespace {

using testing::fault_of;

TEST(StatementSql, of_each_kind_that_the_program_issues) {
  EXPECT_EQ(statement_to_sql("DELETE * from Industries"), R"(DELETE FROM "Industries")");
  EXPECT_EQ(statement_to_sql("Drop TABLE csvtable"), R"(DROP TABLE "csvtable")");
  EXPECT_EQ(statement_to_sql("CREATE TABLE sosec (Origin integer, Destination integer, Daily_Trips double )"),
            R"(CREATE TABLE "sosec" ("Origin" INTEGER, "Destination" INTEGER, "Daily_Trips" REAL) STRICT)");
  EXPECT_EQ(statement_to_sql("insert into sosec select * from csvtable"),
            R"(INSERT INTO "sosec" SELECT * FROM "csvtable")");
  EXPECT_EQ(statement_to_sql("INSERT INTO csvtable SELECT origin, destination, Mining from sosec"),
            R"(INSERT INTO "csvtable" SELECT "origin", "destination", "Mining" FROM "sosec")");
  EXPECT_EQ(statement_to_sql("update sosec set Mining = 2.5 where zone= 1 "),
            R"(UPDATE "sosec" SET "Mining" = 2.5e+00 WHERE ("zone" COLLATE NOCASE = 1))");
}

TEST(StatementSql, takes_names_with_blanks_in_brackets) {
  EXPECT_EQ(statement_to_sql("UPDATE Commercial set [Unit Cost] = 0, index = 1"),
            R"(UPDATE "Commercial" SET "Unit Cost" = 0, "index" = 1)");
}

TEST(Selection, is_a_table_or_a_select_with_its_condition_as_written) {
  EXPECT_EQ(parse_selection("Commuter").table, "Commuter");
  EXPECT_EQ(parse_selection("[my table]").table, "my table");
  const auto selection = parse_selection("select * from industries where industry_number >0");
  EXPECT_EQ(selection.table, "industries");
  EXPECT_EQ(selection.condition, "industry_number >0");
}

TEST(Selection, is_nothing_else) {
  for (const char* source : {"", "select sigma from Commuter", "select * from", "select * from a, b", "a b",
                             "select * from Commuter where", "select * from Commuter where index = 1 2",
                             "select * from Commuter; select * from b"}) {
    EXPECT_EQ(fault_of([source] { parse_selection(source); }), 3075) << source;
  }
}

}  // namespace
}  // namespace runtime::engine::dialect
