// The verdict of a model program: the file that it leaves in the current directory.
#pragma once

#include <optional>
#include <string>

#include "runtime/files/files.h"

namespace analysis {

struct Verdict {
  std::optional<std::string> error;  ///< The program's own error text.
  bool has_number = true;            ///< Whether the file begins with a number; without one it counts as 0.
};

/// Opens the verdict file `name` under number 1, reads its first value, and, when that is a number other than
/// 0, the error text. Number 1 stays open. Fault 53 when the file is missing, 62 when a value is.
Verdict read_verdict(runtime::files::Files& files, const std::string& name);

}  // namespace analysis
