// The pointer over the program's windows, as it stands and as it was while a handler worked.
#pragma once

#include <QApplication>
#include <QTimer>
#include <set>
#include <string>

namespace testing_aids {

/// "normal" or "hourglass".
inline std::string hourglass() {
  return QApplication::overrideCursor() == nullptr ? "normal" : "hourglass";
}

/// Looks at the pointer whenever the program lets events pass, but not while a box waits for its answer.
class PointerWatch {
 public:
  PointerWatch() {
    timer_.callOnTimeout([this] {
      if (QApplication::activeModalWidget() == nullptr) seen_.insert(hourglass());
    });
    timer_.start(0);
  }

  const std::set<std::string>& seen() const { return seen_; }

 private:
  QTimer timer_;
  std::set<std::string> seen_;
};

}  // namespace testing_aids
