#include "runtime/text/numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>
#include <optional>

#include "comma_locale.h"
#include "faults.h"

namespace runtime::text {
namespace {

using testing_aids::fault_of;

TEST(Val, is_the_number_at_the_start) {
  EXPECT_EQ(val("12"), 12);
  EXPECT_EQ(val("-3.5 km"), -3.5);
  EXPECT_EQ(val("+7"), 7);
  EXPECT_EQ(val(".5"), 0.5);
  EXPECT_EQ(val("5."), 5);
  EXPECT_EQ(val("-.25"), -0.25);
  EXPECT_EQ(val("1.2.3"), 1.2);
  EXPECT_EQ(val("1,5"), 1);
}

TEST(Val, reads_an_exponent_only_when_it_is_whole) {
  EXPECT_EQ(val("1e3"), 1000);
  EXPECT_EQ(val("2.5E-1"), 0.25);
  EXPECT_EQ(val("1e"), 1);
  EXPECT_EQ(val("1e+"), 1);
  EXPECT_EQ(val("4 e3"), 4);
}

TEST(Val, skips_leading_blanks_and_ends_at_a_later_one) {
  EXPECT_EQ(val("  \t12"), 12);
  EXPECT_EQ(val("1 2"), 1);
  EXPECT_EQ(val("- 5"), 0);
}

TEST(Val, takes_the_number_before_the_gap_of_a_mask) {
  EXPECT_EQ(val("1_2_"), 1);
  EXPECT_EQ(val("____"), 0);
}

TEST(Val, is_zero_without_a_number) {
  for (const char* text : {"", "   ", "-", "+", ".", "-.", "e5", "abc", "+-5", "-+5", "--5", "\"1\""}) {
    EXPECT_EQ(val(text), 0) << text;
  }
}

TEST(Val, takes_no_word_for_a_number) {
  for (const char* text :
       {"inf", "-inf", "+inf", "Information", "infinity", "nan", "-nan", "NaN(1)", "0x1F"}) {
    EXPECT_EQ(val(text), 0) << text;
  }
}

TEST(Val, faults_on_what_no_number_can_hold) {
  const std::string digits_400(400, '9');
  for (const std::string& text : {std::string("1e400"), std::string("-1e400"), digits_400, "-" + digits_400,
                                  std::string("0.5e400"), std::string("1e99999999999999999999")}) {
    EXPECT_EQ(fault_of([&text] { val(text); }), 6) << text;
  }
  EXPECT_EQ(val("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(Val, is_zero_for_what_is_too_small_to_hold) {
  EXPECT_EQ(val("1e-400"), 0);
  EXPECT_EQ(val("-3e-400"), 0);
  EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(val("-." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(val("0e999"), 0);
}

TEST(NumberIn, reads_a_text_that_is_a_number_and_no_other) {
  EXPECT_EQ(number_in("12"), 12);
  EXPECT_EQ(number_in(" -.5 "), -0.5);
  EXPECT_EQ(number_in("+1e3"), 1000);
  for (const char* text :
       {"", " ", "-", ".", "1 2", "1x", "inf", "nan", "Information", "0x10", "+-1", "1e400", "1,5"})
    EXPECT_EQ(number_in(text), std::nullopt) << text;
}

TEST(Whole16, rounds_a_half_to_the_even_number) {
  EXPECT_EQ(whole_16(0.5), 0);
  EXPECT_EQ(whole_16(1.5), 2);
  EXPECT_EQ(whole_16(2.5), 2);
  EXPECT_EQ(whole_16(-0.5), 0);
  EXPECT_EQ(whole_16(-1.5), -2);
  EXPECT_EQ(whole_16(2.4999), 2);
}

TEST(Whole16, faults_outside_sixteen_bits) {
  EXPECT_EQ(whole_16(32767.4), 32767);
  EXPECT_EQ(whole_16(-32768.5), -32768);
  for (const double number : {32767.5, 32768.0, -32769.0, 1e300, -std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(fault_of([number] { whole_16(number); }), 6) << number;
  }
}

TEST(Printed, has_a_place_for_the_sign_and_a_blank_behind) {
  EXPECT_EQ(printed(std::int64_t{12}), " 12 ");
  EXPECT_EQ(printed(std::int64_t{-12}), "-12 ");
  EXPECT_EQ(printed(std::int64_t{0}), " 0 ");
  EXPECT_EQ(printed(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808 ");
  EXPECT_EQ(printed(12.0), " 12 ");
  EXPECT_EQ(printed(-3.5), "-3.5 ");
  EXPECT_EQ(printed(1234.5678), " 1234.5678 ");
}

TEST(Printed, has_no_zero_before_the_point) {
  EXPECT_EQ(printed(0.5), " .5 ");
  EXPECT_EQ(printed(-0.5), "-.5 ");
  EXPECT_EQ(printed(0.05), " .05 ");
  EXPECT_EQ(printed(10.05), " 10.05 ");
}

TEST(Printed, leaves_texts_alone_and_names_null) {
  EXPECT_EQ(printed(std::string("  as is ")), "  as is ");
  EXPECT_EQ(printed(std::string()), "");
  EXPECT_EQ(printed(Value()), "Null");
}

TEST(Printed, shows_no_negative_zero) {
  EXPECT_EQ(printed(-0.0), " 0 ");
  EXPECT_EQ(printed(-0.0F), " 0 ");
  EXPECT_EQ(joined(-0.0), "0");
}

TEST(Joined, has_no_blanks_and_a_zero_before_the_point) {
  EXPECT_EQ(joined(std::int64_t{12}), "12");
  EXPECT_EQ(joined(std::int64_t{-7}), "-7");
  EXPECT_EQ(joined(0.5), "0.5");
  EXPECT_EQ(joined(-0.05), "-0.05");
  EXPECT_EQ(joined(12.5), "12.5");
  EXPECT_EQ(joined(100.0), "100");
  EXPECT_EQ(joined(std::string("word")), "word");
  EXPECT_EQ(joined(Value()), "");
}

TEST(Joined, has_the_fewest_digits_that_read_back) {
  EXPECT_EQ(joined(0.1), "0.1");
  EXPECT_EQ(joined(14.51F), "14.51");
  EXPECT_EQ(joined(123456.789), "123456.789");
}

TEST(Joined, has_at_most_fifteen_digits_and_seven_in_single_precision) {
  EXPECT_EQ(joined(0.1 + 0.2), "0.3");
  EXPECT_EQ(joined(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(joined(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(joined(1.0F / 3), "0.3333333");
  EXPECT_EQ(joined(16777217.0F), "16777220");
  EXPECT_EQ(joined(999999999999999.9), "1000000000000000");
}

TEST(Joined, has_an_exponent_only_outside_the_plain_range) {
  EXPECT_EQ(joined(1e15), "1000000000000000");
  EXPECT_EQ(joined(123456789012345.0), "123456789012345");
  EXPECT_EQ(joined(1.5e15), "1.5E+15");
  EXPECT_EQ(joined(1e16), "1E+16");
  EXPECT_EQ(joined(-2.5e300), "-2.5E+300");
  EXPECT_EQ(joined(1e-15), "0.000000000000001");
  EXPECT_EQ(joined(1.25e-15), "0.00000000000000125");
  EXPECT_EQ(joined(9.9e-16), "9.9E-16");
  EXPECT_EQ(joined(1.5e-20), "1.5E-20");
  EXPECT_EQ(printed(-1.5e-20), "-1.5E-20 ");
  EXPECT_EQ(joined(3e20F), "3E+20");
}

TEST(Joined, holds_the_limits_of_both_precisions) {
  EXPECT_EQ(joined(std::numeric_limits<double>::max()), "1.79769313486232E+308");
  EXPECT_EQ(joined(std::numeric_limits<double>::denorm_min()), "5E-324");
  EXPECT_EQ(joined(std::numeric_limits<float>::max()), "3.402823E+38");
}

TEST(Joined, faults_on_what_is_no_finite_number) {
  EXPECT_EQ(fault_of([] { joined(std::numeric_limits<double>::infinity()); }), 6);
  EXPECT_EQ(fault_of([] { printed(-std::numeric_limits<float>::infinity()); }), 6);
  EXPECT_EQ(fault_of([] { joined(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(Joined, has_the_shortest_digits_of_numbers_with_few_decimals) {
  for (int i = 1; i < 300000; ++i) {
    const double number = i * 37 / 10000.0;
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed);
    ASSERT_EQ(joined(number), std::string(buffer, end.ptr));
  }
}

TEST(Joined, does_not_take_a_neighbour_for_the_number) {
  EXPECT_EQ(joined(0.1 + 0.2), "0.3");
  EXPECT_EQ(joined(0.1000000001), "0.1000000001");
  EXPECT_EQ(joined(99999999999.9999), "99999999999.9999");
  EXPECT_EQ(joined(1.00001), "1.00001");
}

TEST(Numbers, keep_the_point_under_a_locale_with_a_comma) {
  const testing_aids::CommaLocale locale;
  ASSERT_TRUE(locale);
  EXPECT_EQ(printed(3.5), " 3.5 ");
  EXPECT_EQ(val("3.5"), 3.5);
}

}  // namespace
}  // namespace runtime::text
