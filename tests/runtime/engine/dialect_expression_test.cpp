#include "runtime/engine/dialect_expression.h"

namespace runtime::engine::dialect {
namespace {

TEST(ExpressionSql, is_fully_bracketed_with_names_as_the_table_has_them) {
  EXPECT_EQ(sql_of("zone = 1 And [unit cost] > 2.5 Or Not INDEX <> 3"),
            R"((-((("Zone" = 1) AND ("Unit Cost" > 2.5e+00)) OR (NOT ("index" <> 3)))))");
  EXPECT_EQ(sql_of("2 * Sales + 1"), R"(q_calc('+', q_calc('*', 2, "Sales"), 1))");
}

TEST(ExpressionSql, as_a_condition_needs_no_number) {
  EXPECT_EQ(condition_to_sql("zone = 1", names), R"(("Zone" = 1))");
  EXPECT_EQ(condition_to_sql("zone", names), R"("Zone")");
}

TEST(ExpressionSql, says_beforehand_that_a_comparison_with_null_never_holds) {
  EXPECT_EQ(condition_to_sql("Sales = NULL", names), R"((NULL AND ("Sales" = NULL)))");
  EXPECT_EQ(condition_to_sql("Null <> zone", names), R"((NULL AND (NULL COLLATE NOCASE <> "Zone")))");
}

TEST_F(Expression, of_a_comparison_with_null_is_null) {
  for (const char* text :
       {"zone = Null", "Null = Null", "Null <> 1", "Not zone = Null", "description < Null"})
    EXPECT_EQ(value_of(text), "Null") << text;
  EXPECT_FALSE(holds("Not zone = Null"));
  EXPECT_TRUE(holds("zone = Null Or zone = 7"));
}

TEST_F(Expression, follows_the_order_of_its_operators) {
  EXPECT_EQ(value_of("2 + 3 * 4"), "14 whole");
  EXPECT_EQ(value_of("(2 + 3) * 4"), "20 whole");
  EXPECT_EQ(value_of("-2 ^ 2"), "-4");
  EXPECT_EQ(value_of("2 ^ -1"), "0.5");
  EXPECT_EQ(value_of("2 ^ 3 ^ 2"), "64");
  EXPECT_EQ(value_of("7 Mod 4 * 2"), "7 whole");
  EXPECT_EQ(value_of("100 \\ 7 / 2"), "25 whole");
  EXPECT_EQ(value_of("20 - 5 - 3"), "12 whole");
  EXPECT_EQ(value_of("1 + 2 & 3 + 4"), "37 text");
  EXPECT_EQ(value_of("1 = 1 And 2 = 3 Or 4 = 4"), "-1 whole");
  EXPECT_EQ(value_of("Not 1 = 2"), "-1 whole");
  EXPECT_EQ(value_of("1 < 2 = -1"), "-1 whole");
  EXPECT_EQ(value_of("- -+2"), "2 whole");
}

TEST_F(Expression, divides_as_numbers) {
  EXPECT_EQ(value_of("7 / 2"), "3.5");
  EXPECT_EQ(value_of("zone / 2"), "3.5");
  EXPECT_EQ(value_of("6 / 2"), "3");
}

TEST_F(Expression, divided_by_zero_faults) {
  EXPECT_EQ(value_of("1 / 0"), "fault 11");
  EXPECT_EQ(value_of("1 \\ 0"), "fault 11");
  EXPECT_EQ(value_of("1 \\ 0.5"), "fault 11");
  EXPECT_EQ(value_of("1 Mod 0"), "fault 11");
  EXPECT_EQ(value_of("zone / (zone - 7)"), "fault 11");
}

TEST_F(Expression, rounds_to_even_before_it_divides_whole) {
  EXPECT_EQ(value_of("10 \\ 2.5"), "5 whole");
  EXPECT_EQ(value_of("10 \\ 3.5"), "2 whole");
  EXPECT_EQ(value_of("10.5 Mod 4"), "2 whole");
  EXPECT_EQ(value_of("11.5 Mod 5"), "2 whole");
  EXPECT_EQ(value_of("-7 \\ 2"), "-3 whole");
  EXPECT_EQ(value_of("-7 Mod 3"), "-1 whole");
  EXPECT_EQ(value_of("3000000000 \\ 2"), "fault 6");
}

TEST_F(Expression, too_large_faults) {
  EXPECT_EQ(value_of("1E300 * 1E300"), "fault 6");
  EXPECT_EQ(value_of("10 ^ 400"), "fault 6");
  EXPECT_EQ(value_of("1E999"), "fault 6");
  EXPECT_EQ(value_of("9223372036854775807 + 1"), "9223372036854775808");
}

TEST_F(Expression, without_a_result_faults) {
  EXPECT_EQ(value_of("(-8) ^ 0.5"), "fault 5");
  EXPECT_EQ(value_of("0 ^ -1"), "fault 5");
  EXPECT_EQ(value_of("Sqr(-1)"), "fault 5");
  EXPECT_EQ(value_of("Left('a', -1)"), "fault 5");
  EXPECT_EQ(value_of("Mid('a', 0)"), "fault 5");
}

TEST_F(Expression, compared_gives_minus_one_or_zero) {
  EXPECT_EQ(value_of("zone = 7"), "-1 whole");
  EXPECT_EQ(value_of("zone <> 7"), "0 whole");
  EXPECT_EQ(value_of("(zone >= 7) + (zone <= 7)"), "-2 whole");
  EXPECT_EQ(value_of("zone < 'a'"), "fault 3464");
}

TEST_F(Expression, compares_texts_without_regard_to_case) {
  EXPECT_EQ(value_of("'Sales' = \"SALES\""), "-1 whole");
  EXPECT_EQ(value_of("description = 'ZOë'"), "-1 whole");
  EXPECT_EQ(value_of("description In ('x', 'zOë')"), "-1 whole");
  EXPECT_EQ(value_of("'b' Between 'A' And 'C'"), "-1 whole");
}

TEST_F(Expression, with_null_is_null_unless_it_is_joined) {
  EXPECT_EQ(value_of("[Unit Cost] + 1"), "Null");
  EXPECT_EQ(value_of("[Unit Cost] = Null"), "Null");
  EXPECT_EQ(value_of("-[Unit Cost]"), "Null");
  EXPECT_EQ(value_of("[Unit Cost] Like '*'"), "Null");
  EXPECT_EQ(value_of("'a' & [Unit Cost] & 'b'"), "ab text");
  EXPECT_EQ(value_of("Null & Null"), "Null");
  EXPECT_EQ(value_of("[Unit Cost] Is Null"), "-1 whole");
  EXPECT_EQ(value_of("[Unit Cost] Is Not Null"), "0 whole");
}

TEST_F(Expression, joins_numbers_in_their_plain_form) {
  EXPECT_EQ(value_of("4.0 & '/' & 0.5 & '/' & 1/3"), "4/0.5/0.333333333333333 text");
  EXPECT_EQ(value_of("'a' + 'b'"), "ab text");
  EXPECT_EQ(value_of("'5' + 1"), "6");
  EXPECT_EQ(value_of("'five' + 1"), "fault 13");
}

TEST_F(Expression, knows_lists_ranges_and_patterns_and_their_negation) {
  EXPECT_EQ(value_of("zone In (1, 7)"), "-1 whole");
  EXPECT_EQ(value_of("zone Not In (1, 7)"), "0 whole");
  EXPECT_EQ(value_of("zone Between 7 And 9"), "-1 whole");
  EXPECT_EQ(value_of("zone Not Between 7 And 9"), "0 whole");
  EXPECT_EQ(value_of("zone Between 8 And 9 Or zone = 7"), "-1 whole");
  EXPECT_EQ(value_of("description Like 'z?ë'"), "-1 whole");
  EXPECT_EQ(value_of("description Not Like 'z*'"), "0 whole");
}

TEST_F(Expression, calls_the_allowed_functions) {
  EXPECT_EQ(value_of("Abs(-3)"), "3 whole");
  EXPECT_EQ(value_of("Int(-2.5)"), "-3");
  EXPECT_EQ(value_of("Fix(-2.5)"), "-2");
  EXPECT_EQ(value_of("Sgn(-2.5)"), "-1 whole");
  EXPECT_EQ(value_of("Sqr(6.25)"), "2.5");
  EXPECT_EQ(value_of("Round(2.5)"), "2");
  EXPECT_EQ(value_of("Round(0.125, 2)"), "0.12");
  EXPECT_EQ(value_of("Len(description)"), "3 whole");
  EXPECT_EQ(value_of("Left(description, 2)"), "Zo text");
  EXPECT_EQ(value_of("Right(description, 1)"), "ë text");
  EXPECT_EQ(value_of("Mid(description, 2)"), "oë text");
  EXPECT_EQ(value_of("Mid(description, 2, 1)"), "o text");
  EXPECT_EQ(value_of("UCase('ab') & LCase('AB')"), "ABab text");
  EXPECT_EQ(value_of("Trim('  a ')"), "a text");
  EXPECT_EQ(value_of("IIf(zone > 5, 'big', 1 / 0)"), "big text");
  EXPECT_EQ(value_of("IsNull([Unit Cost])"), "-1 whole");
  EXPECT_EQ(value_of("Nz([Unit Cost], 4) + Nz([Unit Cost])"), "4 whole");
  EXPECT_EQ(value_of("Val(' 12.5 km')"), "12.5");
  EXPECT_EQ(value_of("Val('inf')"), "0");
  EXPECT_EQ(value_of("CDbl('0.5')"), "0.5");
  EXPECT_EQ(value_of("CLng(2.5)"), "2 whole");
  EXPECT_EQ(value_of("CInt(40000)"), "fault 6");
  EXPECT_EQ(value_of("CLng(3000000000)"), "fault 6");
  EXPECT_EQ(value_of("CSng(0.1)"), "0.10000000149011612");
  EXPECT_EQ(value_of("CStr(0.5)"), "0.5 text");
  EXPECT_EQ(value_of("Str(0.5) & Str(-0.5) & Str(12)"), " .5-.5 12 text");
  EXPECT_EQ(value_of("CLng(Null)"), "fault 94");
  EXPECT_EQ(value_of("Abs(Null)"), "Null");
}

TEST_F(Expression, as_a_condition_holds_for_any_number_but_zero) {
  EXPECT_TRUE(holds("zone"));
  EXPECT_TRUE(holds("zone > 5 And Sales < 3"));
  EXPECT_FALSE(holds("zone - 7"));
  EXPECT_FALSE(holds("[Unit Cost]"));
}

TEST_F(Expression, keeps_a_whole_number_that_is_too_large_for_a_fraction) {
  const std::string largest = "9223372036854775807";
  for (const char* function : {"Int", "Fix", "Abs", "Round"})
    EXPECT_EQ(value_of(std::string(function) + "(" + largest + ")"), largest + " whole") << function;
  EXPECT_EQ(value_of("Round(" + largest + ", 2)"), largest + " whole");
  EXPECT_EQ(value_of("Int(9223372036854775808)"), "9223372036854775808");
  EXPECT_EQ(value_of("Fix(1E300)"), "1e+300");
}

TEST_F(Expression, of_tests_or_powers_in_a_row_goes_from_left_to_right) {
  EXPECT_EQ(value_of("zone = 7 = -1 = 0"), "0 whole");
  EXPECT_EQ(value_of("2 ^ 3 ^ 2"), "64");
  EXPECT_EQ(value_of("2 ^ -1 ^ 2"), "0.25");
  std::string powers = "2";
  for (int i = 0; i < 100; ++i) powers += " ^ 1";
  EXPECT_EQ(value_of(powers), "2");
}

// Each step of a chain that held all steps before it would take minutes.
TEST_F(Expression, of_a_chain_without_end_is_refused_and_takes_no_time) {
  for (const std::string link : {"=1", "<>zone", " Like 'a'", " Between 1 And 2", " In (1)", " Is Null"}) {
    std::string chain = "zone";
    for (int i = 0; i < 1'000'000; ++i) chain += link;
    EXPECT_EQ(value_of(chain), "fault 3360") << link;
  }
  std::string chain = "2";
  for (int i = 0; i < 100'000; ++i) chain += "^1";
  EXPECT_EQ(value_of(chain), "refused: too many arguments on function q_calc");
}

TEST_F(Expression, may_be_long) {
  std::string sum = "1";
  std::string choice = "zone = 1";
  for (int i = 0; i < 100; ++i) {
    sum += " + 1";
    choice += " Or zone = 7";
  }
  EXPECT_EQ(value_of(sum), "101 whole");
  EXPECT_EQ(value_of(choice), "-1 whole");
}

TEST_F(Expression, nested_deeply_is_evaluated_or_refused_but_never_lost) {
  const auto nested = [](int depth, const std::string& open) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += open;
    return text + "1" + std::string(static_cast<std::size_t>(depth), ')');
  };
  EXPECT_EQ(value_of(nested(14, "(1 + ")), "15 whole");
  EXPECT_EQ(value_of(nested(14, "Abs(")), "1 whole");
  EXPECT_EQ(value_of(nested(100000, "(1 + ")), "fault 3075");
  EXPECT_EQ(value_of(nested(100000, "Abs(")), "fault 3075");
  for (const char sign : {'-', '+'}) EXPECT_EQ(value_of(std::string(100000, sign) + "1"), "fault 3075");
  std::string nots;
  for (int i = 0; i < 100000; ++i) nots += "not ";
  EXPECT_EQ(value_of(nots + "1"), "fault 3075");
}

TEST(ExpressionFaults, tell_an_unknown_name) {
  EXPECT_EQ(fault_of_expression("nosuch = 1"), 3061);
  EXPECT_EQ(fault_of_expression("\"text\" = nosuch"), 3061);
  EXPECT_EQ(fault_of_expression("other.zone"), 3061);
  EXPECT_EQ(fault_of_expression("[]"), 3075);
}

TEST(ExpressionFaults, tell_an_unknown_function) {
  EXPECT_EQ(fault_of_expression("load_extension('x')"), 3085);
  EXPECT_EQ(fault_of_expression("Shell('x')"), 3085);
}

TEST(ExpressionFaults, tell_what_is_no_single_expression) {
  for (const char* text : {"",
                           " ",
                           "1 2",
                           "zone = 1;",
                           "1; DROP TABLE t",
                           "zone =",
                           "= 1",
                           "(1",
                           "1)",
                           "zone And",
                           "1 + * 2",
                           "'open",
                           "\"open",
                           "[open",
                           "zone = 1 order",
                           "5abc",
                           "1,2",
                           "#1/1/2000#",
                           "?",
                           "zone Not 5",
                           "zone Is 5",
                           "zone In ()",
                           "zone Between 1",
                           "Abs()",
                           "Abs(1, 2)",
                           "IIf(1)",
                           "select",
                           "zone -- 1 from",
                           "/* c */ 1",
                           "{1}"}) {
    EXPECT_EQ(fault_of_expression(text), 3075) << text;
  }
}

TEST(ExpressionFaults, bear_the_number_that_their_use_asks_for) {
  EXPECT_EQ(fault_of([&] { expression_to_sql("1; 2", names, 3144); }), 3144);
  EXPECT_EQ(fault_of([&] { expression_to_sql("nosuch", names, 3144); }), 3061);
}

TEST(ExpressionFaults, tell_a_text_where_a_number_belongs) {
  EXPECT_EQ(fault_of_expression("zone = '7'"), 3464);
  EXPECT_EQ(fault_of_expression("zone In (1, 'a')"), 3464);
  EXPECT_EQ(fault_of_expression("description Between 1 And 2"), 3464);
  EXPECT_EQ(fault_of_expression("description And 1"), 3464);
}

TEST(Sort, takes_columns_with_their_direction) {
  EXPECT_EQ(sort_to_sql("zone, [unit cost] DESC, Sales asc", names),
            R"("Zone" COLLATE NOCASE, "Unit Cost" COLLATE NOCASE DESC, "Sales" COLLATE NOCASE)");
}

TEST(Sort, takes_nothing_else) {
  EXPECT_EQ(fault_of([] { sort_to_sql("nosuch", names); }), 3061);
  EXPECT_EQ(fault_of([] { sort_to_sql("zone desc desc", names); }), 3075);
  EXPECT_EQ(fault_of([] { sort_to_sql("zone,", names); }), 3075);
  EXPECT_EQ(fault_of([] { sort_to_sql("zone + 1", names); }), 3075);
  EXPECT_EQ(fault_of([] { sort_to_sql("'zone'", names); }), 3075);
  EXPECT_EQ(fault_of([] { sort_to_sql("", names); }), 3075);
}

}  // namespace
}  // namespace runtime::engine::dialect
