// Forms that were unloaded go when control is back in the event loop, which a test has none of.
#pragma once

#include <QCoreApplication>
#include <QEvent>

namespace testing_aids {

inline void delete_unloaded_forms() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

struct DeferredDeletes {
  DeferredDeletes() = default;
  DeferredDeletes(const DeferredDeletes&) = delete;
  DeferredDeletes& operator=(const DeferredDeletes&) = delete;
  ~DeferredDeletes() { delete_unloaded_forms(); }
};

}  // namespace testing_aids
