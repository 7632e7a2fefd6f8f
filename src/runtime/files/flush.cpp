#include "runtime/files/flush.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <system_error>

#include "runtime/fault.h"
#include "runtime/files/path_names.h"

namespace runtime::files {

namespace fs = std::filesystem;

#ifdef _WIN32

void flush_to_disk(const fs::path& file) {
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) throw Fault(75, text_of(file));
  const bool flushed = FlushFileBuffers(handle) != 0;
  const DWORD reason = GetLastError();
  CloseHandle(handle);
  if (!flushed) throw Fault(reason == ERROR_DISK_FULL ? 61 : 57, text_of(file));
}

void flush_names(const fs::path&) {}  // the system keeps its directories by itself

// The library's own rename would copy to another volume.
Moved move_over(const fs::path& file, const fs::path& other) {
  if (MoveFileExW(file.c_str(), other.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
    return Moved::yes;
  return GetLastError() == ERROR_NOT_SAME_DEVICE ? Moved::other_volume : Moved::no;
}

#else

void flush_to_disk(const fs::path& file) {
  const int handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) throw Fault(75, text_of(file));
  const bool flushed = ::fsync(handle) == 0;
  const int reason = errno;
  ::close(handle);
  const bool cannot_be_flushed = reason == EINVAL || reason == EROFS || reason == ENOTSUP;
  if (flushed || cannot_be_flushed) return;
  const bool full = reason == ENOSPC || reason == EDQUOT;
  throw Fault(full ? 61 : 57, text_of(file));
}

void flush_names(const fs::path& directory) {
  const int handle = ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  ::fsync(handle);
  ::close(handle);
}

Moved move_over(const fs::path& file, const fs::path& other) {
  std::error_code error;
  fs::rename(file, other, error);
  if (!error) return Moved::yes;
  return error == std::errc::cross_device_link ? Moved::other_volume : Moved::no;
}

#endif

}  // namespace runtime::files
