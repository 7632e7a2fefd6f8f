// A temporary file that no name leads to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace runtime::files {

/// Gone with its object, and after a crash too: where the platform allows it has no name from the start.
class ScratchFile {
 public:
  /// Lies in `directory`. Fault 75 when no file can be made there.
  explicit ScratchFile(const std::filesystem::path& directory);
  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  /// Offsets count bytes from 0. A write beyond the end makes the file longer. Faults: 3026 the disk is full,
  /// 57 any other failure; nothing that was cut short is reported as done.
  void write(std::int64_t offset, std::span<const std::byte> bytes);
  /// Fills all of `bytes`. Fault 57, also when the file ends before.
  void read(std::int64_t offset, std::span<std::byte> bytes) const;

 private:
#ifdef _WIN32
  void* handle_;
#else
  int handle_;
#endif
};

}  // namespace runtime::files
