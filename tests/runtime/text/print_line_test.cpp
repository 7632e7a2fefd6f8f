#include "runtime/text/print_line.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>

#include "failing_buffer.h"
#include "faults.h"

namespace runtime::text {
namespace {

using testing_aids::FailingBuffer;
using testing_aids::fault_of;

std::string line_of(std::initializer_list<PrintItem> items) {
  std::ostringstream stream;
  print_line(stream, items);
  return stream.str();
}

TEST(PrintLine, ends_in_carriage_return_and_line_feed) {
  EXPECT_EQ(line_of({}), "\r\n");
  EXPECT_EQ(line_of({"DB"}), "DB\r\n");
}

TEST(PrintLine, takes_texts_integers_and_values) {
  const std::string name = "base";
  EXPECT_EQ(line_of({name, std::string_view("|"), std::int16_t{12}, 7L, Value(0.5), Value(-1.5F), Value(),
                     Value(std::string("end"))}),
            "base| 12  7  .5 -1.5 Nullend\r\n");
}

TEST(PrintLine, lets_items_follow_each_other_directly) {
  EXPECT_EQ(line_of({Value(35.0), Value(1.2)}), " 35  1.2 \r\n");
  EXPECT_EQ(line_of({Value(35.0), Value(-1.2)}), " 35 -1.2 \r\n");
}

TEST(PrintLine, starts_the_next_item_in_the_next_zone) {
  EXPECT_EQ(line_of({"0", zone, "0"}), "0             0\r\n");
  EXPECT_EQ(line_of({"1", zone, 5}), "1              5 \r\n");
  EXPECT_EQ(line_of({20.0, zone, 1.5, zone, .25, zone, 2.0, zone, .8}),
            " 20            1.5           .25           2             .8 \r\n");
  EXPECT_EQ(line_of({"0", zone, 1, 2, 3, 4}), "0              1  2  3  4 \r\n");
}

TEST(PrintLine, skips_a_whole_zone_behind_an_item_that_fills_its_own) {
  EXPECT_EQ(line_of({"13 characters", zone, "x"}), "13 characters x\r\n");
  EXPECT_EQ(line_of({"14 characters.", zone, "x"}), "14 characters.              x\r\n");
  EXPECT_EQ(line_of({"15 characters..", zone, "x"}), "15 characters..             x\r\n");
  EXPECT_EQ(line_of({123456789012, zone, 1}), " 123456789012                1 \r\n");
}

TEST(PrintLine, fills_a_zone_also_at_the_start_and_end) {
  EXPECT_EQ(line_of({zone, "x"}), "              x\r\n");
  EXPECT_EQ(line_of({"x", zone}), "x             \r\n");
  EXPECT_EQ(line_of({zone, zone}), "                            \r\n");
}

TEST(PrintLine, counts_columns_in_bytes) {
  EXPECT_EQ(line_of({"\xC3\xA4", zone, "x"}), "\xC3\xA4            x\r\n");
}

TEST(PrintLine, writes_one_line_after_another) {
  std::ostringstream stream;
  print_line(stream, {"a longer line than the second"});
  print_line(stream, {12});
  EXPECT_EQ(stream.str(), "a longer line than the second\r\n 12 \r\n");
}

TEST(PrintLine, faults_at_whatever_byte_the_stream_fails) {
  const std::string whole = "1              5 \r\n";
  for (std::size_t room = 0; room < whole.size(); ++room) {
    FailingBuffer buffer(room, EIO);
    std::ostream stream(&buffer);
    EXPECT_EQ(fault_of([&stream] { print_line(stream, {"1", zone, 5}); }), 57) << room;
    EXPECT_EQ(buffer.taken, whole.substr(0, room));
  }
  FailingBuffer buffer(whole.size(), EIO);
  std::ostream stream(&buffer);
  print_line(stream, {"1", zone, 5});
  EXPECT_EQ(buffer.taken, whole);
}

TEST(PrintLine, tells_a_full_disk_from_another_failure) {
  FailingBuffer buffer(3, ENOSPC);
  std::ostream stream(&buffer);
  EXPECT_EQ(fault_of([&stream] { print_line(stream, {"text"}); }), 61);
}

TEST(PrintLine, faults_again_on_a_stream_that_has_failed) {
  FailingBuffer buffer(0, EIO);
  std::ostream stream(&buffer);
  EXPECT_EQ(fault_of([&stream] { print_line(stream, {"text"}); }), 57);
  EXPECT_EQ(fault_of([&stream] { print_line(stream, {"text"}); }), 57);
}

TEST(ExpectWritten, faults_on_a_failure_and_remembers_that_it_was_told) {
  FailingBuffer buffer(0, EIO);
  std::ostream stream(&buffer);
  EXPECT_EQ(fault_of([&stream] { expect_written(stream); }), 0);
  stream << "text";
  EXPECT_FALSE(failure_was_told(stream));
  EXPECT_EQ(fault_of([&stream] { expect_written(stream); }), 57);
  EXPECT_TRUE(failure_was_told(stream));
}

}  // namespace
}  // namespace runtime::text
