#include "database/value_lines.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "runtime/value.h"
#include "writers.h"

namespace {

using database::ValueLines;
using runtime::Value;

class Record : public runtime::engine::RecordView {
 public:
  explicit Record(std::vector<Value> values) : values_(std::move(values)) {}
  bool is_null(int position) const override { return runtime::is_null(value(position)); }
  std::int64_t whole(int position) const override { return std::get<std::int64_t>(value(position)); }
  double number(int position) const override { return std::get<double>(value(position)); }
  Value value(int position) const override { return values_[static_cast<std::size_t>(position)]; }

 private:
  std::vector<Value> values_;
};

Record record(std::int64_t origin, std::int64_t destination, const Value& value) {
  return Record({origin, destination, value});
}

void write(std::ostream& stream, const std::vector<Record>& records) {
  ValueLines lines(stream, "distance.txt", 2);
  std::string pair;
  for (const Record& row : records) {
    database::set_zone_pair(pair, row);
    lines.add(pair, row);
  }
  lines.finish();
}

std::string lines_of(const std::vector<Record>& records) {
  std::ostringstream stream;
  write(stream, records);
  return stream.str();
}

TEST(ValueLines, join_the_zones_and_the_value_with_single_blanks) {
  EXPECT_EQ(lines_of({record(1, 2, 12.5), record(9999, 9999, 3.0), record(3, 1, -0.25)}),
            "1 2 12.5\r\n9999 9999 3\r\n3 1 -0.25\r\n");
}

TEST(ValueLines, have_as_many_digits_as_the_number_up_to_fifteen) {
  EXPECT_EQ(lines_of({record(1, 1, 0.1), record(1, 2, 1.0 / 3), record(1, 3, 1e15), record(1, 4, 1e16),
                      record(1, 5, 123456789012345.6), record(1, 6, 0.0), record(1, 7, -0.0)}),
            "1 1 0.1\r\n1 2 0.333333333333333\r\n1 3 1000000000000000\r\n1 4 1E+16\r\n"
            "1 5 123456789012346\r\n1 6 0\r\n1 7 0\r\n");
}

TEST(ValueLines, end_in_a_blank_where_nothing_was_entered) {
  EXPECT_EQ(lines_of({record(1, 2, Value())}), "1 2 \r\n");
}

TEST(ValueLines, leave_out_a_zone_that_was_emptied) {
  EXPECT_EQ(lines_of({Record({Value(), std::int64_t{2}, 5.0})}), " 2 5\r\n");
}

TEST(ValueLines, of_no_record_are_an_empty_file) {
  EXPECT_EQ(lines_of({}), "");
}

TEST(ValueLines, are_all_there_when_they_take_many_pieces) {
  constexpr int many = 200000;
  std::ostringstream stream;
  std::string expected;
  ValueLines lines(stream, "distance.txt", 2);
  for (int i = 1; i <= many; ++i) {
    lines.add("1 2 ", record(1, 2, static_cast<double>(i)));
    expected += "1 2 " + std::to_string(i) + "\r\n";
  }
  lines.finish();
  EXPECT_TRUE(stream.str() == expected);
}

TEST(ValueLines, tell_of_a_disk_that_fails_at_any_byte) {
  const std::vector<Record> records{record(1, 1, 2.5), record(1, 2, 30.0)};
  testing_aids::expect_fault_at_every_byte([&](std::ostream& stream) { write(stream, records); });
}

}  // namespace
