#include "runtime/engine/result_codes.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace runtime::engine {
namespace {

std::string told(int code, const std::string& message) {
  const auto fault = fault_of(code, message, "zelmor.mdb");
  return std::to_string(fault.number) + " " + fault.what();
}

TEST(ResultCodes, of_the_file_carry_its_name) {
  EXPECT_EQ(told(SQLITE_BUSY, "x"), "3260 The project database is in use by another program: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_READONLY, "x"),
            "3027 The project database cannot be changed; it is read-only: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_READONLY_DBMOVED, "x"),
            "1032 The database file was replaced while it was in use: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_CORRUPT_INDEX, "x"),
            "3049 The project database is damaged and cannot be read: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_NOTADB, "x"), "3343 This file is not a project database: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_IOERR_READ, "x"), "57 The file could not be read or written: zelmor.mdb");
  EXPECT_EQ(told(SQLITE_CANTOPEN_ISDIR, "x"), "75 Path/File access error: zelmor.mdb");
}

TEST(ResultCodes, of_a_full_disk_are_told_so) {
  EXPECT_EQ(told(SQLITE_FULL, "x"), "3026 Not enough space on disk");
}

TEST(ResultCodes, of_a_statement_carry_the_name_at_fault) {
  EXPECT_EQ(told(SQLITE_ERROR, "no such table: sosec"), "3078 The table 'sosec' was not found");
  EXPECT_EQ(told(SQLITE_ERROR, "no such column: Mining"), "3061 Too few parameters: 'Mining' is not known");
  EXPECT_EQ(told(SQLITE_ERROR, "table \"sosec\" already exists"), "3010 Table 'sosec' already exists");
  EXPECT_EQ(told(SQLITE_ERROR, "duplicate column name: Mining"),
            "3191 Field 'Mining' is defined more than once");
  EXPECT_EQ(told(SQLITE_ERROR, "table sosec has 6 columns but 3 values were supplied"),
            "3346 The number of values does not match the number of fields");
  EXPECT_EQ(told(SQLITE_ERROR, "too many arguments on function q_calc"),
            "3360 The expression is too complex");
  EXPECT_EQ(told(SQLITE_ERROR, "parser stack overflow"), "3360 The expression is too complex");
  EXPECT_EQ(told(SQLITE_ERROR, "Expression tree is too large (maximum depth 1000)"),
            "3360 The expression is too complex");
}

TEST(ResultCodes, of_the_programs_own_statements_are_no_syntax_error_of_the_analyst) {
  EXPECT_EQ(told(SQLITE_ERROR, "cannot change out of wal mode from within a transaction"),
            "51 Internal error: cannot change out of wal mode from within a transaction");
}

TEST(ResultCodes, of_what_an_analyst_may_not_touch_are_told_as_an_error_of_the_expression) {
  EXPECT_EQ(told(SQLITE_AUTH, "not authorized"), "3075 Syntax error in expression: not authorized");
}

TEST(ResultCodes, of_a_value_in_the_wrong_field_are_told_so) {
  EXPECT_EQ(told(SQLITE_CONSTRAINT_DATATYPE, "cannot store TEXT value in REAL column t.a"),
            "3421 The value has the wrong type for its field: cannot store TEXT value in REAL column t.a");
}

TEST(ResultCodes, without_a_place_of_their_own_keep_the_words) {
  EXPECT_EQ(told(SQLITE_MISUSE, "bad parameter"), "51 Internal error: bad parameter");
}

}  // namespace
}  // namespace runtime::engine
