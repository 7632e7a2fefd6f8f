#include "runtime/files/path_names.h"

#include <gtest/gtest.h>

#include "temporary_directory.h"

namespace runtime::files {
namespace {

using testing_aids::put;
using testing_aids::TemporaryDirectory;

TEST(Native, takes_both_separators) {
  EXPECT_EQ(native("a\\b/c.txt"), std::filesystem::path("a") / "b" / "c.txt");
  EXPECT_EQ(text_of(native("a\\b")), text_of(native("a/b")));
}

TEST(Native, keeps_the_letters_of_a_name) {
  EXPECT_EQ(text_of(native("z\xC3\xB6ne 1.txt")), "z\xC3\xB6ne 1.txt");
}

TEST(Resolve, finds_every_component_without_regard_to_case) {
  const TemporaryDirectory here;
  std::filesystem::create_directories("Commuter/Deep");
  put("Commuter/Deep/Err.TXT", "0");
  EXPECT_EQ(text_of(resolve("cOMMUTER\\deep/err.txt")), "Commuter/Deep/Err.TXT");
  EXPECT_EQ(resolve(text_of(here.path() / "COMMUTER")), here.path() / "Commuter");
}

TEST(Resolve, prefers_an_exact_name_and_then_the_first_in_byte_order) {
  const TemporaryDirectory here;
  put("dist.txt", "");
  put("Dist.txt", "");
  put("DIST.TXT", "");
  EXPECT_EQ(resolve("dist.txt"), "dist.txt");
  EXPECT_EQ(resolve("Dist.txt"), "Dist.txt");
  EXPECT_EQ(resolve("dIST.txt"), "DIST.TXT");
}

TEST(Resolve, leaves_what_is_not_found_as_given) {
  const TemporaryDirectory here;
  std::filesystem::create_directory("Truck");
  EXPECT_EQ(resolve("TRUCK/Missing/Too.txt"), "Truck/Missing/Too.txt");
  EXPECT_EQ(resolve(""), "");
}

TEST(Resolve, passes_dots_and_a_trailing_separator) {
  const TemporaryDirectory here;
  std::filesystem::create_directory("Truck");
  EXPECT_EQ(text_of(resolve("./truck/../TRUCK/")), "./Truck/../Truck/");
}

TEST(ExactlyNamed, finds_the_directory_and_keeps_the_name) {
  const TemporaryDirectory here;
  std::filesystem::create_directory("Truck");
  put("Truck/dist.txt", "");
  EXPECT_EQ(exactly_named("truck\\Dist.txt"), "Truck/Dist.txt");
  EXPECT_EQ(exactly_named("Dist.txt"), "Dist.txt");
}

TEST(LastSeparator, is_either_of_the_two) {
  EXPECT_EQ(last_separator("a/b\\c"), 3U);
  EXPECT_EQ(last_separator("a\\b/c"), 3U);
  EXPECT_EQ(last_separator("abc"), std::nullopt);
}

TEST(LastSeparator, parts_directory_and_file_name) {
  EXPECT_EQ(directory_of("/a/b\\c.txt"), "/a/b");
  EXPECT_EQ(file_name_of("/a/b\\c.txt"), "c.txt");
  EXPECT_EQ(directory_of("/a/b/"), "/a/b");
  EXPECT_EQ(file_name_of("/a/b/"), "");
}

TEST(LastSeparator, leaves_the_root_its_name) {
  EXPECT_EQ(directory_of("/c.txt"), "/");
  EXPECT_EQ(file_name_of("/c.txt"), "c.txt");
}

TEST(LastSeparator, gives_neither_part_of_a_bare_name) {
  EXPECT_EQ(directory_of("c.txt"), std::nullopt);
  EXPECT_EQ(file_name_of("c.txt"), std::nullopt);
}

}  // namespace
}  // namespace runtime::files
