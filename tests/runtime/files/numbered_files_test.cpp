#include <gtest/gtest.h>
#include <sys/stat.h>

#include "faults.h"
#include "ordinary_user.h"
#include "runtime/files/files.h"
#include "runtime/files/numbers_in_use.h"
#include "runtime/text/print_line.h"
#include "temporary_directory.h"

namespace runtime::files {
namespace {

using testing_aids::bytes_of;
using testing_aids::fault_of;
using testing_aids::names_in;
using testing_aids::OrdinaryUser;
using testing_aids::put;
using testing_aids::TemporaryDirectory;

class NumberedFiles : public testing::Test {
 protected:
  TemporaryDirectory here;
  Files files;
};

TEST_F(NumberedFiles, write_over_what_was_there) {
  put("outpar.txt", "an older and longer text");
  files.open_for_output(1, "outpar.txt");
  text::print_line(files.out(1), {12});
  text::print_line(files.out(1), {"DB"});
  files.Close(1);
  EXPECT_EQ(bytes_of("outpar.txt"), " 12 \r\nDB\r\n");
}

TEST_F(NumberedFiles, bear_exactly_the_name_given) {
  std::filesystem::create_directory("Truck");
  put("Truck/err.txt", "older");
  files.open_for_output(1, "truck\\Err.txt");
  files.Close(1);
  EXPECT_EQ(names_in("Truck"), "Err.txt");
  EXPECT_EQ(bytes_of("Truck/Err.txt"), "");
}

TEST_F(NumberedFiles, append_to_a_file_found_without_regard_to_case) {
  put("Trips.csv", "1\r\n");
  files.open_for_append(2, "trips.csv");
  text::print_line(files.out(2), {"2"});
  files.Close(2);
  files.open_for_append(2, "new.csv");
  files.Close(2);
  EXPECT_EQ(bytes_of("Trips.csv"), "1\r\n2\r\n");
  EXPECT_EQ(names_in("."), "Trips.csv new.csv");
}

TEST_F(NumberedFiles, give_the_values_of_a_file) {
  put("Err.txt", "1,no such zone\r\n");
  files.open_for_input(1, "err.txt");
  EXPECT_EQ(files.input_value(1), "1");
  EXPECT_EQ(files.input_value(1, Until::comma_or_line), "no such zone");
  EXPECT_EQ(fault_of([this] { files.input_value(1, Until::comma_or_line); }), 62);
  files.Close(1);
}

TEST_F(NumberedFiles, are_three_at_a_time_and_more) {
  for (int number = 1; number <= 3; ++number) files.open_for_output(number, "file" + std::to_string(number));
  for (int number = 1; number <= 3; ++number) text::print_line(files.out(number), {number});
  files.close_all();
  EXPECT_EQ(bytes_of("file1") + bytes_of("file2") + bytes_of("file3"), " 1 \r\n 2 \r\n 3 \r\n");
}

TEST_F(NumberedFiles, left_open_fault_at_the_next_open) {
  files.open_for_output(1, "one.txt");
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "two.txt"); }), 55);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "one.txt"); }), 55);
  EXPECT_TRUE(files.is_open(1));
  EXPECT_EQ(names_in("."), "one.txt");
}

TEST_F(NumberedFiles, are_open_under_one_number_only) {
  files.open_for_output(1, "one.txt");
  text::print_line(files.out(1), {"kept"});
  EXPECT_EQ(fault_of([this] { files.open_for_output(2, "ONE.TXT"); }), 55);
  EXPECT_EQ(fault_of([this] { files.open_for_append(2, "./one.txt"); }), 55);
  EXPECT_EQ(fault_of([this] { files.open_for_input(2, "one.txt"); }), 55);
  files.Close(1);
  EXPECT_EQ(bytes_of("one.txt"), "kept\r\n");
  EXPECT_EQ(names_in("."), "one.txt");
}

TEST_F(NumberedFiles, may_read_one_file_twice) {
  put("err.txt", "0");
  files.open_for_input(1, "err.txt");
  files.open_for_input(2, "err.txt");
  EXPECT_EQ(files.input_value(2), "0");
  EXPECT_EQ(fault_of([this] { files.open_for_output(3, "err.txt"); }), 55);
}

TEST_F(NumberedFiles, never_open_what_is_held_elsewhere) {
  put("store.mdb", "rows");
  files.held_elsewhere = [](const std::filesystem::path& path) { return path.filename() == "store.mdb"; };
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "STORE.MDB"); }), 55);
  EXPECT_EQ(fault_of([this] { files.open_for_append(1, "store.mdb"); }), 55);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "store.mdb"); }), 55);
  EXPECT_EQ(bytes_of("store.mdb"), "rows");
  EXPECT_EQ(names_in("."), "store.mdb");
}

TEST_F(NumberedFiles, have_numbers_from_1_to_511) {
  EXPECT_EQ(fault_of([this] { files.open_for_output(0, "a"); }), 52);
  EXPECT_EQ(fault_of([this] { files.open_for_output(512, "a"); }), 52);
  EXPECT_EQ(names_in("."), "");
  files.open_for_output(511, "a");
  EXPECT_TRUE(files.is_open(511));
}

TEST_F(NumberedFiles, keep_to_the_way_they_were_opened) {
  put("err.txt", "0");
  files.open_for_input(1, "err.txt");
  files.open_for_output(2, "out.txt");
  EXPECT_EQ(fault_of([this] { files.out(1); }), 54);
  EXPECT_EQ(fault_of([this] { files.input_value(2); }), 54);
  EXPECT_EQ(fault_of([this] { files.out(3); }), 52);
  EXPECT_EQ(fault_of([this] { files.input_value(3); }), 52);
}

TEST_F(NumberedFiles, tell_why_they_cannot_be_opened) {
  std::filesystem::create_directory("Truck");
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "missing/a.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.open_for_append(1, "missing/a.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "missing/a.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "a.txt"); }), 53);
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "truck"); }), 75);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "truck"); }), 75);
  EXPECT_FALSE(files.is_open(1));
  EXPECT_EQ(names_in("."), "Truck");
}

// A pipe without a writer: who opens it waits for ever.
TEST_F(NumberedFiles, read_plain_files_only) {
  ASSERT_EQ(mkfifo("pipe.txt", 0600), 0);
  std::filesystem::create_symlink("pipe.txt", "to_pipe.txt");
  std::filesystem::create_symlink("/dev/zero", "endless.txt");
  for (const char* name : {"pipe.txt", "to_pipe.txt", "endless.txt", "/dev/zero"})
    EXPECT_EQ(fault_of([&] { files.open_for_input(1, name); }), 75) << name;
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "pipe.txt"); }), 75);
  EXPECT_EQ(fault_of([this] { files.open_for_append(1, "pipe.txt"); }), 75);
  EXPECT_FALSE(files.is_open(1));
  EXPECT_EQ(names_in("."), "endless.txt pipe.txt to_pipe.txt");
}

TEST_F(NumberedFiles, take_the_place_of_all_that_are_equal_but_for_case) {
  for (const char* name : {"OUTPAR.TXT", "Outpar.txt", "outpar.txt"}) put(name, "older");
  files.open_for_output(1, "outpar.txt");
  files.Close(1);
  EXPECT_EQ(names_in("."), "outpar.txt");
}

TEST_F(NumberedFiles, take_no_place_where_one_that_is_equal_but_for_case_is_in_use) {
  put("ERR.TXT", "older");
  files.open_for_input(1, "ERR.TXT");
  put("err.txt", "newer");
  EXPECT_EQ(fault_of([this] { files.open_for_output(2, "err.txt"); }), 55);
  EXPECT_EQ(bytes_of("ERR.TXT") + bytes_of("err.txt"), "oldernewer");
  std::filesystem::create_directory("Truck");
  put("truck", "");
  EXPECT_EQ(fault_of([this] { files.open_for_output(2, "truck"); }), 75);
}

TEST_F(NumberedFiles, tell_of_missing_rights) {
  const OrdinaryUser user;
  ASSERT_TRUE(user);
  put("locked.txt", "1");
  std::filesystem::permissions("locked.txt", std::filesystem::perms::none);
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "locked.txt"); }), 75);
  EXPECT_EQ(fault_of([this] { files.open_for_input(1, "locked.txt"); }), 75);
}

TEST_F(NumberedFiles, keep_the_older_file_when_they_cannot_be_made) {
  std::filesystem::create_directory("locked");
  put("locked/err.txt", "older");
  std::filesystem::permissions("locked", std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  const OrdinaryUser user;
  ASSERT_TRUE(user);
  EXPECT_EQ(fault_of([this] { files.open_for_output(1, "locked/Err.txt"); }), 75);
  EXPECT_EQ(bytes_of("locked/err.txt"), "older");
}

TEST_F(NumberedFiles, stay_where_they_are_when_the_directory_changes) {
  std::filesystem::create_directory("commuter");
  files.open_for_output(1, "a.txt");
  files.ChDir("commuter");
  EXPECT_EQ(fault_of([this] { files.Kill("../a.txt"); }), 55);
  files.open_for_output(2, "a.txt");
  files.close_all();
  EXPECT_EQ(names_in("."), "a.txt");
}

TEST_F(NumberedFiles, close_without_a_fault_when_they_are_not_open) {
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 0);
  EXPECT_EQ(fault_of([this] { files.close_all(); }), 0);
}

TEST_F(NumberedFiles, fault_at_the_close_that_finds_the_disk_full) {
  files.open_for_output(1, "/dev/full");
  text::print_line(files.out(1), {"fits into the buffer"});
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 61);
  EXPECT_FALSE(files.is_open(1));
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 0);
}

TEST_F(NumberedFiles, fault_at_the_line_that_finds_the_disk_full_and_close_quietly) {
  files.open_for_output(1, "/dev/full");
  const std::string long_text(100000, 'x');
  EXPECT_EQ(fault_of([&] { text::print_line(files.out(1), {long_text}); }), 61);
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 0);
}

TEST_F(NumberedFiles, name_the_file_that_did_not_fit_on_the_disk) {
  std::filesystem::create_symlink("/dev/full", "trips.csv");
  files.open_for_output(1, "trips.csv");
  const std::string long_text(100000, 'x');
  try {
    text::print_line(files.out(1), {long_text});
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_STREQ(fault.what(), "Disk full: trips.csv");
  }
}

TEST_F(NumberedFiles, fault_at_the_close_when_nobody_told_of_a_failed_write) {
  files.open_for_output(1, "/dev/full");
  files.out(1) << std::string(100000, 'x');
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 61);
}

TEST_F(NumberedFiles, all_close_when_one_of_them_faults) {
  files.open_for_output(1, "/dev/full");
  files.open_for_output(2, "good.txt");
  text::print_line(files.out(1), {"lost"});
  text::print_line(files.out(2), {"kept"});
  EXPECT_EQ(fault_of([this] { files.close_all(); }), 61);
  EXPECT_FALSE(files.is_open(1) || files.is_open(2));
  EXPECT_EQ(bytes_of("good.txt"), "kept\r\n");
}

TEST_F(NumberedFiles, written_at_once_take_number_1_and_give_it_back) {
  files.write_file("sig7.txt", [this](std::ostream& stream) {
    EXPECT_TRUE(files.is_open(1));
    text::print_line(stream, {Value(0.25)});
  });
  EXPECT_FALSE(files.is_open(1));
  EXPECT_EQ(bytes_of("sig7.txt"), " .25 \r\n");
}

TEST_F(NumberedFiles, written_at_once_leave_number_1_open_after_a_fault) {
  EXPECT_EQ(fault_of([this] { files.write_file("sig7.txt", [](std::ostream&) { throw Fault(94); }); }), 94);
  EXPECT_TRUE(files.is_open(1));
  EXPECT_EQ(fault_of([this] { files.write_file("sig8.txt", [](std::ostream&) {}); }), 55);
}

TEST_F(NumberedFiles, written_at_once_pass_over_no_failed_write) {
  const auto writer = [](std::ostream& stream) { stream << std::string(100000, 'x'); };
  EXPECT_EQ(fault_of([&] { files.write_file("/dev/full", writer); }), 61);
  EXPECT_TRUE(files.is_open(1));
  EXPECT_EQ(fault_of([this] { files.Close(1); }), 0);
}

TEST_F(NumberedFiles, in_use_are_closed_when_a_fault_ends_the_work) {
  const auto work = [this] {
    const NumbersInUse numbers(files, 1, 2);
    files.open_for_output(1, "trips.csv");
    files.open_for_output(2, "schema.ini");
    throw Fault(61);
  };
  EXPECT_EQ(fault_of(work), 61);
  EXPECT_FALSE(files.is_open(1));
  EXPECT_FALSE(files.is_open(2));
}

TEST_F(NumberedFiles, in_use_are_not_those_that_others_hold_open) {
  files.open_for_output(1, "outpar.txt");
  const auto work = [this] {
    const NumbersInUse numbers(files, 1, 2);
    files.open_for_output(2, "schema.ini");
    files.open_for_output(1, "trips.csv");
  };
  EXPECT_EQ(fault_of(work), 55);
  EXPECT_TRUE(files.is_open(1));
  EXPECT_FALSE(files.is_open(2));
}

}  // namespace
}  // namespace runtime::files
