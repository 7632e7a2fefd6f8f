// How much memory a piece of work takes at its peak.
#pragma once

#include <fstream>
#include <string>

namespace bench {

/// A figure of /proc/self/status in KiB; 0 where there is none.
inline long status_kib(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long kib = 0;
    if (word == key + ":" && status >> kib) return kib;
  }
  return 0;
}

/// Counts from here on.
inline void forget_peak() {
  std::ofstream("/proc/self/clear_refs") << 5;
}
inline double peak_mib() {
  return static_cast<double>(status_kib("VmHWM")) / 1024;
}
inline double present_mib() {
  return static_cast<double>(status_kib("VmRSS")) / 1024;
}

}  // namespace bench
