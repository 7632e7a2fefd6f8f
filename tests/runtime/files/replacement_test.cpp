// A file that takes the place of another only when it is whole.
#include "runtime/files/replacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "faults.h"
#include "small_disk.h"
#include "temporary_directory.h"

namespace runtime::files {
namespace {

using testing_aids::bytes_of;
using testing_aids::fault_of;
using testing_aids::put;

class Replacements : public ::testing::Test {
 protected:
  Replacements() {
    std::filesystem::current_path(here.path());
    put("times.txt", "former");
  }
  ~Replacements() override { std::filesystem::current_path("/"); }

  static std::string names() {
    std::string all;
    std::vector<std::string> sorted;
    for (const auto& entry : std::filesystem::directory_iterator("."))
      sorted.push_back(entry.path().filename().string());
    std::sort(sorted.begin(), sorted.end());
    for (const auto& name : sorted) all += (all.empty() ? "" : " ") + name;
    return all;
  }

  testing_aids::TemporaryDirectory here;
  Files files;
};

TEST_F(Replacements, leave_the_former_file_until_they_are_put_in_place) {
  Replacement file(files, "times.txt");
  file.out() << "whole";
  EXPECT_EQ(bytes_of("times.txt"), "former");
  file.finish();
  EXPECT_EQ(bytes_of("times.txt"), "former");
  file.put_in_place();
  EXPECT_EQ(bytes_of("times.txt"), "whole");
  EXPECT_EQ(names(), "times.txt");
}

TEST_F(Replacements, that_are_given_up_leave_the_former_file_and_no_other) {
  { Replacement(files, "times.txt").out() << "cut"; }
  {
    Replacement finished(files, "times.txt");
    finished.out() << "cut";
    finished.finish();
  }
  EXPECT_EQ(bytes_of("times.txt"), "former");
  EXPECT_EQ(names(), "times.txt");
  EXPECT_EQ(files.free_number(), 1);
}

TEST_F(Replacements, take_the_lowest_free_numbers) {
  files.open_for_output(1, "one.txt");
  files.open_for_output(3, "three.txt");
  const Replacement first(files, "a.txt");
  const Replacement second(files, "b.txt");
  EXPECT_TRUE(files.is_open(2));
  EXPECT_TRUE(files.is_open(4));
  EXPECT_EQ(files.free_number(), 5);
}

TEST_F(Replacements, refuse_a_place_that_can_not_be_written_to_before_anything_is_written) {
  std::filesystem::create_directory("taken");
  EXPECT_EQ(fault_of([this] { Replacement(files, "taken"); }), 75);
  EXPECT_EQ(fault_of([this] { Replacement(files, "missing/times.txt"); }), 76);
  files.open_for_input(1, "times.txt");
  EXPECT_EQ(fault_of([this] { Replacement(files, "TIMES.txt"); }), 55);
  EXPECT_EQ(names(), "taken times.txt");
}

TEST_F(Replacements, bear_the_name_of_their_place_in_a_fault) {
  std::filesystem::create_directory("taken");
  try {
    const Replacement file(files, "taken");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_STREQ(fault.what(), "Path/File access error: taken");
  }
}

TEST_F(Replacements, faults_when_no_number_is_free) {
  for (int number = 1; number <= 511; ++number) files.open_for_input(number, "times.txt");
  EXPECT_EQ(fault_of([this] { Replacement(files, "new.txt"); }), 67);
}

TEST_F(Replacements, let_files_of_another_case_give_way) {
  put("TIMES.TXT", "other");
  Replacement file(files, "Times.txt");
  file.out() << "whole";
  file.finish();
  file.put_in_place();
  EXPECT_EQ(names(), "Times.txt");
}

#ifndef _WIN32
TEST_F(Replacements, refuse_a_pipe_and_take_the_place_of_a_link_that_leads_nowhere) {
  ASSERT_EQ(mkfifo("pipe.txt", 0600), 0);
  EXPECT_EQ(fault_of([this] { Replacement(files, "pipe.txt"); }), 75);
  EXPECT_EQ(fault_of([this] { files.Replace("times.txt", "pipe.txt"); }), 75);
  std::filesystem::create_symlink("nowhere", "link.txt");
  Replacement file(files, "link.txt");
  file.out() << "whole";
  file.finish();
  file.put_in_place();
  EXPECT_FALSE(std::filesystem::is_symlink("link.txt"));
  EXPECT_EQ(bytes_of("link.txt"), "whole");
}

TEST_F(Replacements, do_not_write_through_a_link_beside_their_place) {
  put("other.txt", "another's");
  std::filesystem::create_symlink("other.txt", "times.txt.quelar_part");
  EXPECT_EQ(fault_of([this] { Replacement(files, "times.txt"); }), 75);
  EXPECT_EQ(bytes_of("other.txt"), "another's");
}

TEST_F(Replacements, tell_of_a_full_disk_when_they_are_finished) {
  const testing_aids::SmallDisk disk(10);
  Replacement file(files, "times.txt");
  file.out() << std::string(100, 'x');
  EXPECT_EQ(fault_of([&] { file.finish(); }), 57);
  EXPECT_EQ(bytes_of("times.txt"), "former");
}
#endif

TEST_F(Replacements, of_a_file_that_is_missing_or_held_change_nothing) {
  EXPECT_EQ(fault_of([this] { files.Replace("missing.txt", "times.txt"); }), 53);
  put("new.txt", "whole");
  EXPECT_EQ(fault_of([this] { files.Replace("new.txt", "nowhere/times.txt"); }), 76);
  files.open_for_append(1, "new.txt");
  EXPECT_EQ(fault_of([this] { files.Replace("new.txt", "times.txt"); }), 55);
  files.Close(1);
  files.open_for_input(1, "times.txt");
  EXPECT_EQ(fault_of([this] { files.Replace("new.txt", "times.txt"); }), 55);
  files.Close(1);
  std::filesystem::create_directory("taken");
  EXPECT_EQ(fault_of([this] { files.Replace("new.txt", "taken"); }), 58);
  EXPECT_EQ(names(), "new.txt taken times.txt");
  EXPECT_EQ(bytes_of("times.txt"), "former");
}

#ifdef __linux__
class ReplacementsElsewhere : public Replacements {
 protected:
  ReplacementsElsewhere() : other("/dev/shm/" + here.path().filename().string()) {
    std::filesystem::create_directory(other);
  }
  ~ReplacementsElsewhere() override { std::filesystem::remove_all(other); }
  std::string there(const char* name) const { return (other / name).string(); }

  std::filesystem::path other;
};

TEST_F(ReplacementsElsewhere, come_from_another_volume_whole) {
  put(there("times.txt"), "former");
  files.Replace("times.txt", there("times.txt"));
  EXPECT_EQ(bytes_of(there("times.txt")), "former");
  EXPECT_EQ(names(), "");
  EXPECT_FALSE(std::filesystem::exists(there("times.txt.quelar_part")));
}

TEST_F(ReplacementsElsewhere, that_run_out_of_room_leave_both_files) {
  put("times.txt", std::string(5000, 'n'));
  put(there("times.txt"), "former");
  {
    const testing_aids::SmallDisk disk(100);
    EXPECT_EQ(fault_of([this] { files.Replace("times.txt", there("times.txt")); }), 57);
  }
  EXPECT_EQ(bytes_of(there("times.txt")), "former");
  EXPECT_EQ(bytes_of("times.txt").size(), 5000U);
  EXPECT_FALSE(std::filesystem::exists(there("times.txt.quelar_part")));
}
#endif

}  // namespace
}  // namespace runtime::files
