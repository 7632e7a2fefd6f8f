// What is asked of everything that writes a file.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <functional>
#include <sstream>
#include <string>

#include "failing_buffer.h"
#include "faults.h"

namespace testing_aids {

using Writer = std::function<void(std::ostream&)>;

inline std::string written(const Writer& writer) {
  std::ostringstream stream;
  writer(stream);
  return stream.str();
}

/// A writer whose stream gives up at any byte must say so: a cut file must never pass for a whole one.
inline void expect_fault_at_every_byte(const Writer& writer) {
  const std::string whole = written(writer);
  for (std::size_t room = 0; room < whole.size(); ++room) {
    FailingBuffer full(room, ENOSPC);
    std::ostream on_full_disk(&full);
    EXPECT_EQ(fault_of([&] { writer(on_full_disk); }), 61) << "after " << room << " bytes";
    EXPECT_EQ(full.taken, whole.substr(0, full.taken.size()));
    FailingBuffer broken(room, EIO);
    std::ostream on_broken_disk(&broken);
    EXPECT_EQ(fault_of([&] { writer(on_broken_disk); }), 57) << "after " << room << " bytes";
  }
  FailingBuffer enough(whole.size(), ENOSPC);
  std::ostream stream(&enough);
  EXPECT_EQ(fault_of([&] { writer(stream); }), 0);
  EXPECT_EQ(enough.taken, whole);
}

}  // namespace testing_aids
