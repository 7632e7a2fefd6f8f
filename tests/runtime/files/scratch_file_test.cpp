#include "runtime/files/scratch_file.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "runtime/fault.h"

namespace runtime::files {
namespace {

namespace fs = std::filesystem;

class ScratchFileTest : public ::testing::Test {
 protected:
  ScratchFileTest() { fs::create_directory(directory); }
  ~ScratchFileTest() override { fs::remove_all(directory); }

  fs::path directory = fs::temp_directory_path() / "quelar_scratch_file_test";
};

TEST_F(ScratchFileTest, gives_back_what_was_written_at_a_place_and_shows_no_name) {
  ScratchFile file(directory);
  const std::array<int, 3> written{7, 8, 9};
  file.write(1000, std::as_bytes(std::span(written)));
  std::array<int, 2> taken{};
  file.read(1004, std::as_writable_bytes(std::span(taken)));
  EXPECT_EQ(taken, (std::array{8, 9}));
#ifndef _WIN32
  EXPECT_TRUE(fs::is_empty(directory));
#endif
}

TEST_F(ScratchFileTest, ends_where_nothing_was_written) {
  ScratchFile file(directory);
  std::array<int, 1> taken{};
  try {
    file.read(0, std::as_writable_bytes(std::span(taken)));
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, 57);
  }
}

TEST_F(ScratchFileTest, needs_a_directory) {
  try {
    const ScratchFile file(directory / "missing");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, 75);
  }
}

}  // namespace
}  // namespace runtime::files
