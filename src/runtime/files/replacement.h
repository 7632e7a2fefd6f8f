// A file that takes the place of another only when it is whole.
#pragma once

#include <ostream>
#include <string>

#include "runtime/files/files.h"

namespace runtime::files {

/// Is written under a name of its own beside its place and under a number that is free, so that an older file
/// stays as it is until put_in_place(). What did not get there is removed. Faults bear the name of the place.
class Replacement {
 public:
  /// Faults: as Files::open_for_output(), 67 when no number is free.
  Replacement(Files& files, std::string place);
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  std::ostream& out() { return files_.out(number_); }
  /// Nothing more is written: closes the file, which is then on the disk. Fault 61, 57.
  void finish();
  /// Behind finish(). Faults: as Files::Replace().
  void put_in_place();

 private:
  template <typename Step>
  void in_the_name_of_the_place(Step&& step) const;

  Files& files_;
  const std::string place_;
  const std::string beside_;
  int number_;
};

}  // namespace runtime::files
