#include <gtest/gtest.h>

#include <string>

#include "runtime/engine/dialect/like.h"
#include "runtime/engine/dialect/quoting.h"

namespace runtime::engine::dialect {
namespace {

TEST(Like, matches_the_whole_text_without_regard_to_case) {
  EXPECT_TRUE(is_like("Mining", "mining"));
  EXPECT_FALSE(is_like("Mining", "min"));
  EXPECT_FALSE(is_like("", "a"));
  EXPECT_TRUE(is_like("", ""));
  EXPECT_TRUE(is_like("", "*"));
}

TEST(Like, takes_a_star_for_any_characters) {
  EXPECT_TRUE(is_like("Manufacturing", "*fac*ing"));
  EXPECT_TRUE(is_like("aab", "*ab"));
  EXPECT_FALSE(is_like("aabx", "*ab"));
  EXPECT_TRUE(is_like("a*", "a[*]"));
  EXPECT_FALSE(is_like("ab", "a[*]"));
}

TEST(Like, takes_a_question_mark_for_one_character_and_a_number_sign_for_one_digit) {
  EXPECT_TRUE(is_like("Zoë", "Zo?"));
  EXPECT_FALSE(is_like("Zo", "Zo?"));
  EXPECT_TRUE(is_like("a1", "a#"));
  EXPECT_FALSE(is_like("ab", "a#"));
}

TEST(Like, takes_a_list_for_one_of_its_characters) {
  EXPECT_TRUE(is_like("Bee", "[a-c]ee"));
  EXPECT_FALSE(is_like("Bee", "[!a-c]ee"));
  EXPECT_TRUE(is_like("Dee", "[!a-c]ee"));
  EXPECT_TRUE(is_like("-", "[a-]"));
  EXPECT_FALSE(is_like("[a", "[a"));
}

TEST(Like, takes_no_time_to_speak_of_for_many_stars) {
  std::string pattern;
  for (int i = 0; i < 30; ++i) pattern += "*a";
  EXPECT_FALSE(is_like(std::string(2000, 'a'), pattern + "b"));
}

TEST(Quoting, doubles_what_would_end_it) {
  EXPECT_EQ(quoted_name("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(quoted_text("it's"), "'it''s'");
}

}  // namespace
}  // namespace runtime::engine::dialect
