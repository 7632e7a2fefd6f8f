#include "runtime/files/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "faults.h"
#include "ordinary_user.h"
#include "runtime/files/copy_bytes.h"
#include "runtime/text/print_line.h"
#include "small_disk.h"
#include "temporary_directory.h"

namespace runtime::files {
namespace {

using testing_aids::bytes_of;
using testing_aids::fault_of;
using testing_aids::names_in;
using testing_aids::OrdinaryUser;
using testing_aids::put;
using testing_aids::TemporaryDirectory;

// Every test has an empty current directory and files of its own.
class FilesTest : public testing::Test {
 protected:
  // Lets `name` count as held open by another room.
  void hold(const std::string& name) {
    files.held_elsewhere = [name](const std::filesystem::path& path) { return path.filename() == name; };
  }

  TemporaryDirectory here;
  Files files;
};

using Dir = FilesTest;
using Kill = FilesTest;
using FileCopy = FilesTest;
using Rename = FilesTest;
using ChangeDirectory = FilesTest;

TEST_F(Dir, gives_the_name_of_the_file_as_it_is_on_the_disk) {
  std::filesystem::create_directory("Truck");
  put("Truck/Err.txt", "0");
  EXPECT_EQ(files.Dir("truck\\ERR.TXT"), "Err.txt");
  EXPECT_EQ(files.Dir(here.path().string() + "/truck/err.txt"), "Err.txt");
}

TEST_F(Dir, is_empty_for_what_is_not_there) {
  EXPECT_EQ(files.Dir(""), "");
  EXPECT_EQ(files.Dir("", 16), "");
  EXPECT_EQ(files.Dir("missing.txt"), "");
  EXPECT_EQ(files.Dir("missing/file.txt"), "");
  EXPECT_EQ(files.Dir("missing/*.txt"), "");
}

TEST_F(Dir, finds_a_directory_only_when_asked) {
  std::filesystem::create_directory("Truck");
  EXPECT_EQ(files.Dir("truck"), "");
  EXPECT_EQ(files.Dir("truck", 16), "Truck");
  EXPECT_EQ(files.Dir("truck/"), "");
  EXPECT_EQ(files.Dir("truck/", 16), ".");
  put("file.txt", "");
  EXPECT_EQ(files.Dir("file.txt", 16), "file.txt");
}

TEST_F(Dir, finds_the_first_of_a_pattern) {
  put("sig7.txt", "");
  put("sig1.txt", "");
  std::filesystem::create_directory("sig0");
  EXPECT_EQ(files.Dir("SIG*.*"), "sig1.txt");
  EXPECT_EQ(files.Dir("SIG*.*", 16), "sig0");
}

TEST_F(Kill, deletes_what_a_pattern_finds_and_nothing_else) {
  std::filesystem::create_directory("commuter");
  for (const char* name : {"sig7.txt", "SIG1.TXT", "sig", "asig.txt", "var.txt"})
    put(here.path() / "commuter" / name, "");
  files.Kill(here.path().string() + "/Commuter/sig*.*");
  EXPECT_EQ(names_in("commuter"), "asig.txt var.txt");
  EXPECT_EQ(fault_of([this] { files.Kill("commuter/var&*.*"); }), 53);
  EXPECT_EQ(names_in("commuter"), "asig.txt var.txt");
}

TEST_F(Kill, of_a_plain_name_deletes_all_that_are_equal_but_for_case) {
  for (const char* name : {"CCPAR.TXT", "ccpar.txt", "Ccpar.Txt", "ccpar2.txt"}) put(name, "");
  std::filesystem::create_directory("CCPAR.txt");
  files.Kill("ccpar.TXT");
  EXPECT_EQ(names_in("."), "CCPAR.txt ccpar2.txt");
}

TEST_F(Kill, leaves_directories) {
  std::filesystem::create_directory("sig7");
  EXPECT_EQ(fault_of([this] { files.Kill("sig*.*"); }), 53);
  EXPECT_EQ(fault_of([this] { files.Kill("sig7"); }), 53);
  EXPECT_EQ(names_in("."), "sig7");
}

TEST_F(Kill, tells_a_missing_file_from_a_missing_directory) {
  EXPECT_EQ(fault_of([this] { files.Kill("missing.txt"); }), 53);
  EXPECT_EQ(fault_of([this] { files.Kill("missing*.*"); }), 53);
  EXPECT_EQ(fault_of([this] { files.Kill("missing/file.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.Kill("missing/*.*"); }), 76);
  EXPECT_EQ(fault_of([this] { files.Kill(""); }), 53);
}

TEST_F(Kill, faults_on_a_file_held_open) {
  files.open_for_output(3, "ccpar.txt");
  EXPECT_EQ(fault_of([this] { files.Kill("CCPAR*.*"); }), 55);
  files.Close(3);
  hold("ccpar.txt");
  EXPECT_EQ(fault_of([this] { files.Kill("ccpar.txt"); }), 55);
  EXPECT_EQ(names_in("."), "ccpar.txt");
}

TEST_F(Kill, faults_where_nothing_may_be_deleted) {
  std::filesystem::create_directory("locked");
  put("locked/file.txt", "");
  const OrdinaryUser user;
  ASSERT_TRUE(user);
  std::error_code error;
  std::filesystem::permissions("locked", std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove, error);
  EXPECT_EQ(fault_of([this] { files.Kill("locked/file.txt"); }), 75);
}

TEST_F(FileCopy, copies_every_byte_to_exactly_the_name_given) {
  const std::string bytes("a\r\nb\0\x1A\xFF", 7);
  put("Distance.txt", bytes);
  std::filesystem::create_directory("Truck");
  files.FileCopy("distance.TXT", "truck/Dist.txt");
  EXPECT_EQ(bytes_of("Truck/Dist.txt"), bytes);
  EXPECT_EQ(names_in("."), "Distance.txt Truck");
}

TEST_F(FileCopy, copies_files_larger_than_its_buffer) {
  const std::string bytes((std::size_t{3} << 20) + 17, 'x');
  put("large.txt", bytes);
  files.FileCopy("large.txt", "copy.txt");
  EXPECT_TRUE(bytes_of("copy.txt") == bytes);
  put("empty.txt", "");
  files.FileCopy("empty.txt", "copy.txt");
  EXPECT_EQ(bytes_of("copy.txt"), "");
}

TEST_F(FileCopy, lets_an_older_file_of_another_case_give_way) {
  put("new.txt", "new");
  put("dist.txt", "older and longer");
  files.FileCopy("new.txt", "Dist.txt");
  EXPECT_EQ(names_in("."), "Dist.txt new.txt");
  EXPECT_EQ(bytes_of("Dist.txt"), "new");
}

TEST_F(FileCopy, takes_the_place_of_all_that_are_equal_but_for_case) {
  put("new.txt", "new");
  for (const char* name : {"DIST.TXT", "Dist.txt", "dist.txt"}) put(name, "older and longer");
  files.FileCopy("new.txt", "Dist.txt");
  EXPECT_EQ(names_in("."), "Dist.txt new.txt");
  EXPECT_EQ(bytes_of("Dist.txt"), "new");
}

TEST_F(FileCopy, between_names_that_are_equal_but_for_case_is_refused) {
  put("DIST.TXT", "one");
  put("dist.txt", "other");
  EXPECT_EQ(fault_of([this] { files.FileCopy("DIST.TXT", "dist.txt"); }), 70);
  EXPECT_EQ(bytes_of("DIST.TXT") + bytes_of("dist.txt"), "oneother");
}

// A pipe without a writer: who opens it waits for ever.
TEST_F(FileCopy, takes_plain_files_only) {
  put("there.txt", "there");
  ASSERT_EQ(mkfifo("pipe.txt", 0600), 0);
  std::filesystem::create_symlink("/dev/zero", "endless.txt");
  for (const char* name : {"pipe.txt", "endless.txt", "/dev/null"}) {
    EXPECT_EQ(fault_of([&] { files.FileCopy(name, "new.txt"); }), 75) << name;
    EXPECT_EQ(fault_of([&] { files.FileCopy("there.txt", name); }), 75) << name;
    EXPECT_EQ(fault_of([&] { copy_bytes(name, "new.txt"); }), 75) << name;
  }
  EXPECT_EQ(names_in("."), "endless.txt pipe.txt there.txt");
}

TEST_F(FileCopy, onto_itself_is_refused_and_cuts_nothing) {
  put("dist.txt", "whole");
  std::filesystem::create_hard_link("dist.txt", "link.txt");
  for (const char* target : {"dist.txt", "DIST.TXT", "./dist.txt", "link.txt"}) {
    EXPECT_EQ(fault_of([this, target] { files.FileCopy("dist.txt", target); }), 70) << target;
  }
  EXPECT_EQ(bytes_of("dist.txt"), "whole");
  EXPECT_EQ(names_in("."), "dist.txt link.txt");
}

TEST_F(FileCopy, tells_what_is_missing) {
  put("there.txt", "");
  EXPECT_EQ(fault_of([this] { files.FileCopy("missing.txt", "new.txt"); }), 53);
  EXPECT_EQ(fault_of([this] { files.FileCopy("", "new.txt"); }), 53);
  EXPECT_EQ(fault_of([this] { files.FileCopy("missing/there.txt", "new.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.FileCopy("there.txt", "missing/new.txt"); }), 76);
  EXPECT_EQ(names_in("."), "there.txt");
}

TEST_F(FileCopy, takes_directories_for_neither_end) {
  put("there.txt", "");
  std::filesystem::create_directory("Truck");
  EXPECT_EQ(fault_of([this] { files.FileCopy("truck", "new.txt"); }), 75);
  EXPECT_EQ(fault_of([this] { files.FileCopy("there.txt", "truck"); }), 75);
  EXPECT_EQ(names_in("."), "Truck there.txt");
}

TEST_F(FileCopy, of_or_onto_a_file_held_open_is_refused) {
  put("there.txt", "there");
  files.open_for_output(1, "open.txt");
  EXPECT_EQ(fault_of([this] { files.FileCopy("open.txt", "new.txt"); }), 70);
  EXPECT_EQ(fault_of([this] { files.FileCopy("there.txt", "OPEN.TXT"); }), 70);
  files.Close(1);
  put("store.mdb", "rows");
  hold("store.mdb");
  EXPECT_EQ(fault_of([this] { files.FileCopy("store.mdb", "new.txt"); }), 70);
  EXPECT_EQ(fault_of([this] { files.FileCopy("there.txt", "Store.mdb"); }), 70);
  EXPECT_EQ(bytes_of("store.mdb"), "rows");
  EXPECT_EQ(names_in("."), "open.txt store.mdb there.txt");
}

TEST_F(FileCopy, of_a_read_only_file_can_be_written_to) {
  const OrdinaryUser user;
  ASSERT_TRUE(user);
  put("locked.txt", "1");
  std::filesystem::permissions("locked.txt", std::filesystem::perms::owner_read);
  files.FileCopy("locked.txt", "copy.txt");
  files.FileCopy("locked.txt", "copy.txt");
  put("copy.txt", "2");
  EXPECT_EQ(bytes_of("copy.txt"), "2");
}

TEST_F(FileCopy, leaves_all_as_it_was_when_an_end_cannot_be_opened) {
  const OrdinaryUser user;
  ASSERT_TRUE(user);
  put("there.txt", "there");
  put("locked.txt", "locked");
  put("secret.txt", "secret");
  std::filesystem::permissions("locked.txt", std::filesystem::perms::owner_read);
  std::filesystem::permissions("secret.txt", std::filesystem::perms::none);
  EXPECT_EQ(fault_of([this] { files.FileCopy("there.txt", "locked.txt"); }), 75);
  EXPECT_EQ(fault_of([this] { files.FileCopy("secret.txt", "there.txt"); }), 75);
  EXPECT_EQ(bytes_of("locked.txt"), "locked");
  EXPECT_EQ(bytes_of("there.txt"), "there");
}

TEST_F(FileCopy, that_fails_midway_leaves_no_cut_file) {
  put("large.txt", std::string(200000, 'x'));
  put("copy.txt", "older");
  {
    const testing_aids::SmallDisk disk(100000);
    EXPECT_EQ(fault_of([this] { files.FileCopy("large.txt", "copy.txt"); }), 57);
  }
  EXPECT_EQ(names_in("."), "large.txt");
}

TEST_F(Rename, gives_a_file_exactly_its_new_name) {
  put("CCPAR2.txt", "1");
  files.Name("ccpar2.txt", ".\\ccpar.txt");
  EXPECT_EQ(names_in("."), "ccpar.txt");
  EXPECT_EQ(bytes_of("ccpar.txt"), "1");
}

TEST_F(Rename, leaves_none_of_those_that_are_equal_but_for_case) {
  put("CCPAR2.txt", "older");
  put("ccpar2.txt", "meant");
  files.Name("ccpar2.txt", "ccpar.txt");
  EXPECT_EQ(names_in("."), "ccpar.txt");
  EXPECT_EQ(bytes_of("ccpar.txt"), "meant");
}

TEST_F(Rename, tells_what_is_missing) {
  put("there.txt", "");
  EXPECT_EQ(fault_of([this] { files.Name("missing.txt", "new.txt"); }), 53);
  EXPECT_EQ(fault_of([this] { files.Name("missing/there.txt", "new.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.Name("there.txt", "missing/new.txt"); }), 76);
  EXPECT_EQ(names_in("."), "there.txt");
}

TEST_F(Rename, never_takes_the_place_of_another_file) {
  put("ccpar.txt", "1");
  put("ccpar2.txt", "2");
  EXPECT_EQ(fault_of([this] { files.Name("ccpar2.txt", "ccpar.txt"); }), 58);
  EXPECT_EQ(fault_of([this] { files.Name("ccpar2.txt", "CCPAR.TXT"); }), 58);
  EXPECT_EQ(bytes_of("ccpar.txt"), "1");
  EXPECT_EQ(bytes_of("ccpar2.txt"), "2");
}

TEST_F(Rename, faults_on_a_file_held_open) {
  files.open_for_output(3, "ccpar2.txt");
  EXPECT_EQ(fault_of([this] { files.Name("ccpar2.txt", "ccpar.txt"); }), 55);
  files.Close(3);
  hold("ccpar2.txt");
  EXPECT_EQ(fault_of([this] { files.Name("ccpar2.txt", "ccpar.txt"); }), 55);
  EXPECT_EQ(names_in("."), "ccpar2.txt");
}

#ifdef __linux__
TEST_F(Rename, moves_a_file_to_another_volume) {
  const auto here_now = std::filesystem::current_path();
  struct stat here_stat {};
  struct stat memory_stat {};
  ASSERT_EQ(stat(here_now.c_str(), &here_stat), 0);
  ASSERT_EQ(stat("/dev/shm", &memory_stat), 0);
  ASSERT_NE(memory_stat.st_dev, here_stat.st_dev) << "both directories are on one volume";
  const std::string target = "/dev/shm/" + here_now.filename().string() + ".txt";
  put("trips.csv", "1,2");
  files.Name("trips.csv", target);
  EXPECT_EQ(bytes_of(target), "1,2");
  EXPECT_EQ(names_in("."), "");
  std::filesystem::remove(target);
}
#endif

TEST_F(ChangeDirectory, enters_without_regard_to_case) {
  std::filesystem::create_directory("Commuter");
  files.ChDir("COMMUTER");
  EXPECT_EQ(files.current_directory(), (here.path() / "Commuter").string());
  files.ChDir("..\\commuter/..");
  EXPECT_EQ(files.current_directory(), here.path().string());
}

TEST_F(ChangeDirectory, faults_on_what_is_no_directory) {
  put("file.txt", "");
  EXPECT_EQ(fault_of([this] { files.ChDir("missing"); }), 76);
  EXPECT_EQ(fault_of([this] { files.ChDir("file.txt"); }), 76);
  EXPECT_EQ(fault_of([this] { files.ChDir(""); }), 76);
}

TEST_F(ChangeDirectory, leaves_no_name_for_a_directory_that_is_gone) {
  std::filesystem::create_directory("gone");
  files.ChDir("gone");
  std::filesystem::remove(here.path() / "gone");
  EXPECT_EQ(fault_of([this] { files.current_directory(); }), 76);
}

}  // namespace
}  // namespace runtime::files
