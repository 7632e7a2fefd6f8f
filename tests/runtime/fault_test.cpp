#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace runtime {
namespace {

TEST(Fault, carries_the_number_and_its_words) {
  const Fault fault(3021);
  EXPECT_EQ(fault.number, 3021);
  EXPECT_STREQ(fault.what(), "No current record");
}

TEST(Fault, puts_the_detail_into_the_words) {
  EXPECT_STREQ(Fault(53, "trips.csv").what(), "File not found: trips.csv");
  EXPECT_STREQ(Fault(340, "5").what(), "Control array element '5' does not exist");
}

TEST(Fault, leaves_no_dangling_colon_without_a_detail) {
  EXPECT_STREQ(Fault(53).what(), "File not found");
}

TEST(Fault, an_unknown_number_has_neutral_words) {
  EXPECT_STREQ(Fault(4711).what(), "Application-defined or object-defined error");
}

TEST(Fault, an_ignored_fault_lets_the_next_statement_run) {
  bool reached = false;
  ignoring_faults([] { throw Fault(53); });
  ignoring_faults([&reached] { reached = true; });
  EXPECT_TRUE(reached);
}

TEST(ErrObject, is_empty_after_clear) {
  ErrObject err;
  err.set(Fault(9));
  EXPECT_EQ(err.number, 9);
  err.clear();
  EXPECT_EQ(err.number, 0);
  EXPECT_EQ(err.description, "");
}

}  // namespace
}  // namespace runtime
