// The program's event loop, as main() runs it, with something that a person does in it.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace testing_aids {

/// What in_event_loop() gives of a program that had no wish to end.
inline constexpr int goes_on = 42;

/// Runs the event loop, does something in it, and gives its exit code.
inline int in_event_loop(const std::function<void()>& action) {
  QTimer last;
  last.setSingleShot(true);
  QObject::connect(&last, &QTimer::timeout, [] { QCoreApplication::exit(goes_on); });
  QTimer::singleShot(0, &last, [&] {
    action();
    last.start(100);  // at once it would still run in the loop's last round and change the exit code
  });
  return QApplication::exec();
}

}  // namespace testing_aids
