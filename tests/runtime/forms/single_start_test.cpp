#include "runtime/forms/single_start.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "ordinary_user.h"
#include "temporary_directory.h"

namespace {

using runtime::forms::SingleStart;
using ::testing::HasSubstr;

class SingleStarts : public ::testing::Test {
 protected:
  std::string path() const { return directory.path().string(); }
  bool has_lock_file() const { return std::filesystem::exists(directory.path() / "quelar.lock"); }

  testing_aids::TemporaryDirectory directory;
};

TEST_F(SingleStarts, bar_a_second_one_as_long_as_the_first_is_there) {
  {
    const SingleStart first(path());
    EXPECT_FALSE(first.is_barred());
    const SingleStart second(path());
    EXPECT_TRUE(second.is_barred());
    EXPECT_THAT(second.words(), HasSubstr("process " + std::to_string(getpid()) + " ("));
    EXPECT_THAT(second.words(), HasSubstr(path()));
  }
  EXPECT_FALSE(has_lock_file());
  EXPECT_FALSE(SingleStart(path()).is_barred());
}

TEST_F(SingleStarts, are_not_barred_by_what_a_killed_process_has_left) {
  // No process has this number: it is beyond the largest one.
  testing_aids::put(directory.path() / "quelar.lock", "999999999\nquelar\n\n\n\n");
  EXPECT_FALSE(SingleStart(path()).is_barred());
}

TEST_F(SingleStarts, go_on_where_no_lock_can_be_made) {
  std::filesystem::permissions(directory.path(),
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                                   std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
  {
    const testing_aids::OrdinaryUser user;
    ASSERT_TRUE(user);
    EXPECT_FALSE(SingleStart(path()).is_barred());
  }
  EXPECT_FALSE(has_lock_file());
  std::filesystem::permissions(directory.path(), std::filesystem::perms::owner_all);
}

}  // namespace
