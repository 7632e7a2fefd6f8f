// File numbers that a stretch of work uses.
#pragma once

#include <vector>

#include "runtime/fault.h"
#include "runtime/files/files.h"

namespace runtime::files {

/// Closes the numbers when it goes. The program goes on after a fault, and a number that was left open would
/// bar the next attempt. One that is open when the work begins is another's, and stays. Work that gets to its
/// end closes its numbers itself, for only that tells of a failure.
class NumbersInUse {
 public:
  NumbersInUse(Files& files, int first, int last) : files_(files) {
    for (int number = first; number <= last; ++number) {
      if (!files.is_open(number)) numbers_.push_back(number);
    }
  }
  NumbersInUse(const NumbersInUse&) = delete;
  NumbersInUse& operator=(const NumbersInUse&) = delete;
  ~NumbersInUse() {
    for (const int number : numbers_) ignoring_faults([&] { files_.Close(number); });
  }

 private:
  Files& files_;
  std::vector<int> numbers_;
};

}  // namespace runtime::files
