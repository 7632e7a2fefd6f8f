// What stands between the operators: quoted texts, names in brackets, Nulls in ranges and lists, and numbers
// before a pattern.
#include "runtime/engine/dialect_expression.h"

namespace runtime::engine::dialect {
namespace {

TEST(ExpressionSql, takes_a_reserved_word_in_brackets_for_a_name) {
  const Names reserved{{"and", Kind::Number}, {"Null", Kind::Number}};
  EXPECT_EQ(condition_to_sql("[And] = 1 And [null] = 2", reserved), R"((("and" = 1) AND ("Null" = 2)))");
  EXPECT_EQ(fault_of([&] { condition_to_sql("And = 1", reserved); }), 3075);
}

TEST_F(Expression, takes_a_doubled_quote_inside_quotes_for_one) {
  EXPECT_EQ(value_of("'it''s'"), "it's text");
  EXPECT_EQ(value_of(R"("a""b")"), R"(a"b text)");
  EXPECT_EQ(value_of("''''"), "' text");
  EXPECT_EQ(value_of(R"('say "it"' & "'s")"), R"(say "it"'s text)");
  EXPECT_EQ(value_of("'it's'"), "fault 3075");
}

TEST_F(Expression, of_a_range_or_a_list_with_a_null_is_null_unless_the_value_is_found) {
  EXPECT_EQ(value_of("[Unit Cost] Between 1 And 9"), "Null");
  EXPECT_EQ(value_of("zone Between Null And 9"), "Null");
  EXPECT_EQ(value_of("zone Between 1 And Null"), "Null");
  EXPECT_EQ(value_of("zone Not Between 1 And Null"), "Null");
  EXPECT_EQ(value_of("[Unit Cost] In (1, 2)"), "Null");
  EXPECT_EQ(value_of("zone In (1, Null)"), "Null");
  EXPECT_EQ(value_of("zone Not In (1, Null)"), "Null");
  EXPECT_EQ(value_of("zone In (Null, 7)"), "-1 whole");
  EXPECT_EQ(value_of("zone Not In (Null, 7)"), "0 whole");
  EXPECT_FALSE(holds("zone Not In (1, Null)"));
}

TEST_F(Expression, compares_the_text_of_a_number_with_a_pattern) {
  EXPECT_EQ(value_of("zone Like '[!0-9]'"), "0 whole");
  EXPECT_EQ(value_of("zone Like '[0-9]'"), "-1 whole");
  EXPECT_EQ(value_of("[index] Like '[!0-9]#'"), "-1 whole");
  EXPECT_EQ(value_of("Sales Like '2[!0-9]5'"), "-1 whole");
  EXPECT_EQ(value_of("Sales Not Like '*[!0-9]*'"), "0 whole");
  EXPECT_EQ(value_of("[Unit Cost] Like '[!0-9]'"), "Null");
}

}  // namespace
}  // namespace runtime::engine::dialect
