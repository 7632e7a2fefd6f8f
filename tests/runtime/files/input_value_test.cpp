#include "runtime/files/input_value.h"

#include <gtest/gtest.h>

#include <sstream>

#include "failing_buffer.h"
#include "faults.h"

namespace runtime::files {
namespace {

using testing_aids::BreakingSource;
using testing_aids::fault_of;

// The first and second value of a verdict file, parted by a bar; a fault as its number.
std::string verdict_in(const std::string& bytes) {
  std::istringstream stream(bytes);
  std::string verdict;
  for (const Until until : {Until::blank_comma_or_line, Until::comma_or_line}) {
    const int fault = fault_of([&] { verdict += "[" + input_value(stream, until) + "]"; });
    if (fault != 0) verdict += std::to_string(fault);
  }
  return verdict;
}

TEST(InputValue, ends_the_first_at_a_comma_a_blank_or_a_line_end) {
  EXPECT_EQ(verdict_in("1,text\r\n"), "[1][text]");
  EXPECT_EQ(verdict_in("1 text\r\n"), "[1][text]");
  EXPECT_EQ(verdict_in("1\r\ntext\r\n"), "[1][text]");
  EXPECT_EQ(verdict_in("1\ttext\r\n"), "[1][text]");
}

TEST(InputValue, skips_leading_blanks) {
  EXPECT_EQ(verdict_in("   1   text"), "[1][text]");
  EXPECT_EQ(verdict_in("\t1\n   text"), "[1][text]");
}

TEST(InputValue, ends_after_4096_bytes) {
  const std::string most(4096, 'x');
  EXPECT_EQ(verdict_in("1," + most), "[1][" + most + "]");
  EXPECT_EQ(verdict_in("1," + most + "yz"), "[1][" + most + "]");
  EXPECT_EQ(verdict_in("1,\"" + most + "yz\""), "[1][" + most + "]");
  EXPECT_EQ(verdict_in(most + "1,text"), "[" + most + "][1]");
}

TEST(InputValue, takes_one_delimiter_with_blanks_around_it) {
  EXPECT_EQ(verdict_in("1 ,text"), "[1][text]");
  EXPECT_EQ(verdict_in("1, text"), "[1][text]");
  EXPECT_EQ(verdict_in("1 , text"), "[1][text]");
  EXPECT_EQ(verdict_in("1 \r\ntext"), "[1][text]");
  EXPECT_EQ(verdict_in("1,,text"), "[1][]");
}

TEST(InputValue, lets_a_sentence_survive_as_the_second) {
  EXPECT_EQ(verdict_in("1,no zone 7 in Dist.txt\r\n"), "[1][no zone 7 in Dist.txt]");
  EXPECT_EQ(verdict_in("1,too many zones, sorry\r\n"), "[1][too many zones]");
  EXPECT_EQ(verdict_in("1,text  , more"), "[1][text]");
  EXPECT_EQ(verdict_in("1,text \t \r\n"), "[1][text]");
}

TEST(InputValue, drops_the_quotes_around_a_value) {
  EXPECT_EQ(verdict_in("1,\"no zone 7\"\r\n"), "[1][no zone 7]");
  EXPECT_EQ(verdict_in("1, \"zones 7, 8\" ,more"), "[1][zones 7, 8]");
  EXPECT_EQ(verdict_in("\"1\",\"text\"\r\n"), "[1][text]");
  EXPECT_EQ(verdict_in("1,\" padded \"\r\n"), "[1][ padded ]");
  EXPECT_EQ(verdict_in("1,\"never closed\r\nnext"), "[1][never closed]");
  EXPECT_EQ(verdict_in("1,a \"b\" c"), "[1][a \"b\" c]");
}

TEST(InputValue, knows_every_line_end) {
  EXPECT_EQ(verdict_in("1\ntext\n"), "[1][text]");
  EXPECT_EQ(verdict_in("1\rtext\r"), "[1][text]");
  EXPECT_EQ(verdict_in("1\r\n\r\ntext"), "[1][]");
}

TEST(InputValue, is_empty_for_a_line_without_a_value) {
  EXPECT_EQ(verdict_in("\r\ntext"), "[][text]");
  EXPECT_EQ(verdict_in("   \ntext"), "[][text]");
  EXPECT_EQ(verdict_in(",text"), "[][text]");
}

TEST(InputValue, faults_past_the_end) {
  EXPECT_EQ(verdict_in(""), "6262");
  EXPECT_EQ(verdict_in("1"), "[1]62");
  EXPECT_EQ(verdict_in("1\r\n"), "[1]62");
  EXPECT_EQ(verdict_in("1,"), "[1]62");
  EXPECT_EQ(verdict_in("1  "), "[1]62");
}

TEST(InputValue, takes_an_end_mark_for_the_end) {
  EXPECT_EQ(verdict_in("1,text\x1A"), "[1][text]");
  EXPECT_EQ(verdict_in("0\r\n\x1A"), "[0]62");
  EXPECT_EQ(verdict_in("\x1A"), "6262");
}

TEST(InputValue, keeps_bytes_beyond_ascii) {
  EXPECT_EQ(verdict_in("1,Z\xC3\xBCge \xFF"), "[1][Z\xC3\xBCge \xFF]");
}

TEST(InputValue, faults_at_whatever_byte_the_file_breaks) {
  const std::string whole = "1, a text\r\n";
  for (std::size_t readable = 0; readable < whole.size(); ++readable) {
    BreakingSource source(whole, readable);
    std::istream stream(&source);
    const auto both = [&stream] {
      input_value(stream, Until::blank_comma_or_line);
      input_value(stream, Until::comma_or_line);
    };
    EXPECT_EQ(fault_of(both), 57) << readable;
  }
}

}  // namespace
}  // namespace runtime::files
