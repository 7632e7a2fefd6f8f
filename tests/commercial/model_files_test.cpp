#include "commercial/model_files.h"

#include <gtest/gtest.h>

#include "writers.h"

namespace commercial {
namespace {

using testing_aids::Writer;
using testing_aids::written;

Writer variation_of(double first, double second) {
  return [=](std::ostream& stream) { write_variation(stream, first, second); };
}

Writer costs_of(const IndustryCosts& costs) {
  return [=](std::ostream& stream) { write_costs(stream, costs); };
}

void parameter_file(std::ostream& stream) {
  write_zone_count(stream, 120);
  analysis::write_districts(stream, 8);
  write_mode_and_output(stream, "NONE", "C:\\out\\run1", 2);
  analysis::write_pick(stream, "2");
  analysis::write_pick(stream, "9");
}

TEST(Variation, parts_its_values_by_their_own_blanks_and_not_by_a_zone) {
  EXPECT_EQ(written(variation_of(35, 1.2)), " 35  1.2 \r\n");
  EXPECT_EQ(written(variation_of(1.2, 40)), " 1.2  40 \r\n");
}

TEST(Variation, a_negative_second_value_leaves_one_blank_before_its_sign) {
  EXPECT_EQ(written(variation_of(35, -1.2)), " 35 -1.2 \r\n");
}

TEST(Costs, stand_in_zones_of_14_columns) {
  EXPECT_EQ(written(costs_of({20.0, 1.5, 0.25, 2.0, 0.8})),
            " 20            1.5           .25           2             .8 \r\n");
}

TEST(Costs, a_single_precision_value_has_seven_digits_at_most) {
  EXPECT_EQ(written(costs_of({16765.0F, 25.07F, 430.0F, 1.0F, 14.51F})),
            " 16765         25.07         430           1             14.51 \r\n");
}

TEST(Costs, a_value_that_ends_at_a_zones_end_pushes_the_next_a_zone_on) {
  EXPECT_EQ(written(costs_of({123456789012.0, 1.0, 2.0, 3.0, 4.0})),
            " 123456789012                1             2             3             4 \r\n");
}

TEST(Costs, an_empty_field_is_the_word_null) {
  EXPECT_EQ(written(costs_of({Value(), 1.5, 0.25, 2.0, 0.8})),
            "Null           1.5           .25           2             .8 \r\n");
}

TEST(ParameterFile, holds_zones_districts_mode_output_count_and_codes) {
  EXPECT_EQ(written(parameter_file),
            " 120 \r\n1              8 \r\nNONE\r\nC:\\out\\run1\r\n 2 \r\n2\r\n9\r\n");
}

TEST(ConversionRow, has_two_blanks_before_each_value_also_the_first) {
  EXPECT_EQ(written([](std::ostream& stream) {
              write_conversion_row(stream, {std::int64_t{3}, 12.5, 0.5});
            }),
            "  3  12.5  0.5\r\n");
}

TEST(ConversionRow, an_empty_field_is_nothing) {
  EXPECT_EQ(written([](std::ostream& stream) {
              write_conversion_row(stream, {Value(), 12.5});
            }),
            "    12.5\r\n");
}

TEST(ConversionParameters, hold_the_directory_with_its_separator_and_the_zones) {
  EXPECT_EQ(written([](std::ostream& stream) { write_conversion_parameters(stream, "D:\\freight\\", 24); }),
            "D:\\freight\\\r\n 24 \r\n");
}

TEST(CommercialWriters, a_stream_that_fails_at_any_byte_is_a_fault) {
  const Writer writers[] = {
      parameter_file,
      variation_of(35, 1.2),
      costs_of({20.0, 1.5, 0.25, 2.0, 0.8}),
      [](std::ostream& stream) { analysis::write_one_value(stream, 4.62F); },
      [](std::ostream& stream) { analysis::write_no_districts(stream); },
      [](std::ostream& stream) {
        write_conversion_row(stream, {std::int64_t{3}, 12.5, 0.5});
      },
      [](std::ostream& stream) { write_conversion_parameters(stream, "D:\\freight\\", 24); },
  };
  for (const Writer& writer : writers) testing_aids::expect_fault_at_every_byte(writer);
}

}  // namespace
}  // namespace commercial
