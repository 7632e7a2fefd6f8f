#include <gtest/gtest.h>

#include "common/numbers.h"
#include "common/report.h"
#include "common/verdict.h"

namespace model {
namespace {

TEST(ParseNumber, takes_the_forms_that_the_front_end_writes) {
  EXPECT_EQ(parse_number(" 12 "), 12);
  EXPECT_EQ(parse_number(" .25 "), 0.25);
  EXPECT_EQ(parse_number("-3.5 "), -3.5);
  EXPECT_EQ(parse_number("1E-16"), 1e-16);
}

TEST(ParseNumber, takes_nothing_else) {
  for (const auto* const text : {"", " ", "inf", "nan", "Information", "1e400", "1,5", "1 2", "0x10", "+1"}) {
    EXPECT_EQ(parse_number(text), std::nullopt) << text;
  }
}

TEST(Grouped, puts_a_comma_between_thousands) {
  EXPECT_EQ(grouped(1234567.891, 2), "1,234,567.89");
  EXPECT_EQ(grouped(999, 0), "999");
  EXPECT_EQ(grouped(1000, 0), "1,000");
  EXPECT_EQ(grouped(-123456, 1), "-123,456.0");
}

TEST(Grouped, zero_has_no_sign) {
  EXPECT_EQ(grouped(-0.001, 2), "0.00");
}

TEST(Verdict, sentence_survives_a_reader_that_stops_at_commas_and_lines) {
  EXPECT_EQ(verdict_text("in a,b\n\"c\": no"), "1, in a b 'c': no\r\n");
}

TEST(Verdict, success_is_a_nought) {
  EXPECT_EQ(verdict_text(""), "0\r\n");
}

TEST(Table, aligns_words_at_the_left_and_numbers_at_the_right) {
  Table table({{"", "Name", Column::Align::Left}, {"Cost", "dollars"}});
  table.add_row({"Sales", "7"});
  table.add_rule();
  table.add_row({"All", "1,000,000"});
  EXPECT_EQ(table.text(),
            "            Cost\n"
            "Name     dollars\n"
            "----------------\n"
            "Sales          7\n"
            "----------------\n"
            "All    1,000,000\n");
}

}  // namespace
}  // namespace model
