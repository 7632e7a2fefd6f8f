#include "runtime/files/scratch_file.h"

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <string>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#endif

#include "runtime/fault.h"
#include "runtime/files/path_names.h"

namespace runtime::files {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

constexpr std::size_t most_at_once = std::size_t{1} << 30;

OVERLAPPED place_of(std::int64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

}  // namespace

// Here a file has a name as long as it is open; the system removes it with the process.
ScratchFile::ScratchFile(const fs::path& directory) {
  static std::atomic<int> count = 0;
  const auto name = "~order" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(count++) + ".tmp";
  handle_ =
      CreateFileW((directory / name).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                  FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle_ == INVALID_HANDLE_VALUE) throw Fault(75, text_of(directory));
}

ScratchFile::~ScratchFile() {
  CloseHandle(handle_);
}

void ScratchFile::write(std::int64_t offset, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    auto place = place_of(offset);
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), most_at_once));
    if (!WriteFile(handle_, bytes.data(), size, &written, &place) || written == 0)
      throw Fault(GetLastError() == ERROR_DISK_FULL ? 3026 : 57);
    offset += written;
    bytes = bytes.subspan(written);
  }
}

void ScratchFile::read(std::int64_t offset, std::span<std::byte> bytes) const {
  while (!bytes.empty()) {
    auto place = place_of(offset);
    DWORD taken = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), most_at_once));
    if (!ReadFile(handle_, bytes.data(), size, &taken, &place) || taken == 0) throw Fault(57);
    offset += taken;
    bytes = bytes.subspan(taken);
  }
}

#else

ScratchFile::ScratchFile(const fs::path& directory) {
  const std::string own_letters(6, 'X');  // the system puts others in their place
  auto name = (directory / ".scratch_").string() + own_letters;
  handle_ = ::mkostemp(name.data(), O_CLOEXEC);
  if (handle_ < 0) throw Fault(errno == ENOSPC ? 3026 : 75, text_of(directory));
  ::unlink(name.c_str());
}

ScratchFile::~ScratchFile() {
  ::close(handle_);
}

void ScratchFile::write(std::int64_t offset, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const auto written = ::pwrite(handle_, bytes.data(), bytes.size(), offset);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) throw Fault(errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? 3026 : 57);
    offset += written;
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
}

void ScratchFile::read(std::int64_t offset, std::span<std::byte> bytes) const {
  while (!bytes.empty()) {
    const auto taken = ::pread(handle_, bytes.data(), bytes.size(), offset);
    if (taken < 0 && errno == EINTR) continue;
    if (taken <= 0) throw Fault(57);
    offset += taken;
    bytes = bytes.subspan(static_cast<std::size_t>(taken));
  }
}

#endif

}  // namespace runtime::files
