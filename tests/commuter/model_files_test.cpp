#include "commuter/model_files.h"

#include <gtest/gtest.h>

#include "writers.h"

namespace commuter {
namespace {

using testing_aids::expect_fault_at_every_byte;
using testing_aids::Writer;
using testing_aids::written;

void picks_7_and_0(std::ostream& stream) {
  write_pick_count(stream, 2);
  write_pick(stream, "7");
  write_pick(stream, "0");
}

Writer cost_parameters_of(double a, double b, double c, double d, double e, double f) {
  return [=](std::ostream& stream) { write_cost_parameters(stream, {a, b, c, d, e, f}); };
}

Writer case_file(const char* which_case, const char* mode = "DB") {
  return [=](std::ostream& stream) {
    write_cost_head(stream, 12, mode, which_case);
    picks_7_and_0(stream);
  };
}

void output_file_without_districts(std::ostream& stream) {
  write_output_head(stream, "/study/results/sales", 12);
  write_no_districts(stream);
  picks_7_and_0(stream);
}

void output_file_with_5_districts(std::ostream& stream) {
  write_output_head(stream, "/study/results/sales", 12);
  write_districts(stream, 5);
  picks_7_and_0(stream);
}

TEST(CostCaseFile, holds_zones_mode_case_and_the_picks_in_their_order) {
  EXPECT_EQ(written(case_file(base_case)), " 12 \r\nDB\r\n0\r\n 2 \r\n7\r\n0\r\n");
}

TEST(CostCaseFile, of_the_improvement_differs_in_its_third_line_alone) {
  EXPECT_EQ(written(case_file(improvement_case)), " 12 \r\nDB\r\n1\r\n 2 \r\n7\r\n0\r\n");
}

TEST(CostCaseFile, names_the_mode_in_capitals) {
  EXPECT_EQ(written(case_file(base_case, "FILE")), " 12 \r\nFILE\r\n0\r\n 2 \r\n7\r\n0\r\n");
  EXPECT_EQ(written(case_file(base_case, "NONE")), " 12 \r\nNONE\r\n0\r\n 2 \r\n7\r\n0\r\n");
}

TEST(CostCaseFile, writes_a_code_without_the_blanks_of_a_count) {
  EXPECT_EQ(written([](std::ostream& stream) {
              write_pick_count(stream, 1);
              write_pick(stream, "11");
            }),
            " 1 \r\n11\r\n");
}

TEST(OutputFile, without_a_district_file_parts_two_zeros_by_thirteen_blanks) {
  EXPECT_EQ(written(output_file_without_districts),
            "/study/results/sales\r\n 12 \r\n0             0\r\n 2 \r\n7\r\n0\r\n");
}

TEST(OutputFile, with_a_district_file_has_the_number_of_districts_in_the_second_zone) {
  EXPECT_EQ(written(output_file_with_5_districts),
            "/study/results/sales\r\n 12 \r\n1              5 \r\n 2 \r\n7\r\n0\r\n");
}

TEST(OutputFile, has_an_empty_first_line_for_an_empty_base) {
  EXPECT_EQ(written([](std::ostream& stream) { write_output_head(stream, "", 12); }), "\r\n 12 \r\n");
}

TEST(OutputFile, takes_every_16_bit_number) {
  EXPECT_EQ(written([](std::ostream& stream) {
              write_output_head(stream, "base", 32767);
              write_districts(stream, 32767);
              write_pick_count(stream, -32768);
            }),
            "base\r\n 32767 \r\n1              32767 \r\n-32768 \r\n");
}

TEST(OneValueFile, holds_a_number_in_the_general_form) {
  const auto line = [](const Value& value) {
    return written([&](std::ostream& stream) { write_one_value(stream, value); });
  };
  EXPECT_EQ(line(11.27), " 11.27 \r\n");
  EXPECT_EQ(line(98.0), " 98 \r\n");
  EXPECT_EQ(line(0.5), " .5 \r\n");
  EXPECT_EQ(line(0.0), " 0 \r\n");
  EXPECT_EQ(line(-3.5), "-3.5 \r\n");
  EXPECT_EQ(line(0.123456789012345), " .123456789012345 \r\n");
  EXPECT_EQ(line(std::int64_t{12}), " 12 \r\n");
}

TEST(OneValueFile, holds_a_word_for_a_field_that_was_left_out) {
  EXPECT_EQ(written([](std::ostream& stream) { write_one_value(stream, {}); }), "Null\r\n");
}

TEST(VariationFile, has_its_second_value_in_the_second_zone) {
  EXPECT_EQ(written([](std::ostream& stream) { write_variation(stream, 38.0, 0.42); }),
            " 38            .42 \r\n");
  EXPECT_EQ(written([](std::ostream& stream) { write_variation(stream, -38.0, -0.42); }),
            "-38           -.42 \r\n");
}

TEST(VariationFile, skips_a_zone_behind_a_value_that_fills_the_first) {
  EXPECT_EQ(written([](std::ostream& stream) { write_variation(stream, 0.123456789012345, 1.0); }),
            " .123456789012345            1 \r\n");
}

TEST(CostParameterFile, puts_the_last_two_fields_above_the_first_four) {
  EXPECT_EQ(written(cost_parameters_of(0.7629, 0.0929, 0.1394, 0.0048, 0.25, 2.38)),
            " .25           2.38 \r\n0              .7629  .0929  .1394  .0048 \r\n");
}

TEST(CostParameterFile, keeps_a_negative_value_apart_from_the_value_before) {
  EXPECT_EQ(written(cost_parameters_of(-0.5, -1, 2, -3, -4, -5)),
            "-4            -5 \r\n0             -.5 -1  2 -3 \r\n");
}

TEST(ModelFileWriters, fault_wherever_their_stream_breaks) {
  expect_fault_at_every_byte(case_file(base_case));
  expect_fault_at_every_byte(case_file(improvement_case, "NONE"));
  expect_fault_at_every_byte(output_file_without_districts);
  expect_fault_at_every_byte(output_file_with_5_districts);
  expect_fault_at_every_byte([](std::ostream& stream) { write_one_value(stream, 11.27); });
  expect_fault_at_every_byte([](std::ostream& stream) { write_variation(stream, 38.0, 0.42); });
  expect_fault_at_every_byte(cost_parameters_of(0.7629, 0.0929, 0.1394, 0.0048, 0.25, 2.38));
}

}  // namespace
}  // namespace commuter
