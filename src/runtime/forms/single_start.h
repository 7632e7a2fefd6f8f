// Keeps a second start of the program out of a directory in which one is at work.
#pragma once

#include <QLockFile>
#include <string>

namespace runtime::forms {

/// Two programs on one database would take each other's staging table away. As long as it lives, the lock
/// file in the directory names this process; the file of a process that is gone bars nobody. Where no lock
/// file can be made, as in a directory that can only be read, nobody is barred.
class SingleStart {
 public:
  explicit SingleStart(const std::string& directory);

  bool is_barred() const;
  /// Which process holds the directory, in words for the analyst.
  std::string words() const;

 private:
  const std::string directory_;
  QLockFile lock_;
};

}  // namespace runtime::forms
