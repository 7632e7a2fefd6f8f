// A disk that is full.
#pragma once

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#include <cstdint>

namespace testing_aids {

/// While it lives, no file of this process grows beyond a size in bytes.
class SmallDisk {
 public:
  explicit SmallDisk(std::uintmax_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{static_cast<rlim_t>(bytes), before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_{};
};

}  // namespace testing_aids
#endif
