// Run-time faults: what a failed operation throws, by the platform's number.
#pragma once

#include <stdexcept>
#include <string>

namespace runtime {

/// A failed operation. `number` is the platform's error number (53 File not found, 3021 No current
/// record, ...); `what()` is the description that a box shows.
class Fault : public std::runtime_error {
 public:
  /// The words come from the table in fault.cpp. `detail`, when given, replaces the "|" in them: the name
  /// of a file, a field or a table.
  explicit Fault(int fault_number, const std::string& detail = {});

  int number;
};

/// The words of a fault number with `detail` in its place; a number without words of its own gives
/// "Application-defined or object-defined error".
std::string fault_description(int number, const std::string& detail = {});

/// What the last trapped fault was. Cleared when a trap is set and when a handler ends.
struct ErrObject {
  int number = 0;
  std::string description;

  void clear() { *this = {}; }
  void set(const Fault& fault) { *this = {fault.number, fault.what()}; }
};

/// Runs one statement and passes over a fault of this number, and of no other.
template <typename Statement>
void ignoring_fault(int number, Statement&& statement) {
  try {
    statement();
  } catch (const Fault& fault) {
    if (fault.number != number) throw;
  }
}

/// Runs one statement and passes over its fault, as a stretch in which faults are ignored does.
template <typename Statement>
void ignoring_faults(Statement&& statement) {
  try {
    statement();
  } catch (const Fault&) {
    return;  // the next statement runs, which is all that this stretch asks for
  }
}

}  // namespace runtime
