#include "runtime/files/wildcards.h"

#include <gtest/gtest.h>

namespace runtime::files {
namespace {

TEST(Wildcards, a_star_stands_for_any_number_of_characters) {
  EXPECT_TRUE(matches("sig*.*", "sig7.txt"));
  EXPECT_TRUE(matches("sig*.*", "sig.txt"));
  EXPECT_TRUE(matches("sig*.*", "sig.a.b"));
  EXPECT_TRUE(matches("*", "anything.at.all"));
  EXPECT_FALSE(matches("sig*.*", "wage7.txt"));
  EXPECT_FALSE(matches("sig*.txt", "sig7.text"));
}

TEST(Wildcards, star_dot_star_also_matches_a_name_without_a_dot) {
  EXPECT_TRUE(matches("sig*.*", "sig7"));
  EXPECT_TRUE(matches("*.*", "Makefile"));
  EXPECT_TRUE(matches("sig7.*", "sig7"));
  EXPECT_FALSE(matches("sig*.t*", "sig7"));
  EXPECT_FALSE(matches("sig7.", "sig7"));
}

TEST(Wildcards, a_question_mark_stands_for_one_character_or_none_at_an_end) {
  EXPECT_TRUE(matches("sig?.txt", "sig7.txt"));
  EXPECT_TRUE(matches("sig?.txt", "sig.txt"));
  EXPECT_TRUE(matches("sig??", "sig7"));
  EXPECT_FALSE(matches("sig?.txt", "sig11.txt"));
  EXPECT_FALSE(matches("s?g.txt", "sg.txt"));
}

TEST(Wildcards, ignore_case) {
  EXPECT_TRUE(matches("dist*.*", "Dist.txt"));
  EXPECT_TRUE(matches("DIST.TXT", "dist.txt"));
}

TEST(Wildcards, give_nothing_else_a_meaning) {
  EXPECT_TRUE(matches("var&[1]+.t", "var&[1]+.t"));
  EXPECT_FALSE(matches("var&*.*", "var.txt"));
  EXPECT_FALSE(matches("v[a]r.txt", "var.txt"));
  EXPECT_FALSE(matches("v.r", "var"));
}

TEST(Wildcards, match_the_whole_name) {
  EXPECT_FALSE(matches("dist.txt", "dist.txt2"));
  EXPECT_FALSE(matches("dist.txt", "adist.txt"));
  EXPECT_FALSE(matches("", "a"));
  EXPECT_TRUE(matches("", ""));
}

}  // namespace
}  // namespace runtime::files
