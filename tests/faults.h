// Lets a test say which fault it expects.
#pragma once

#include "runtime/fault.h"

namespace testing_aids {

/// The number of the fault that `statement` throws, 0 when it throws none.
template <typename Statement>
int fault_of(Statement&& statement) {
  try {
    statement();
  } catch (const runtime::Fault& fault) {
    return fault.number;
  }
  return 0;
}

}  // namespace testing_aids
