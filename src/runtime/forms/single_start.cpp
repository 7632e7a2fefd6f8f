#include "runtime/forms/single_start.h"

#include <QDir>

#include "runtime/forms/twips.h"

namespace runtime::forms {

SingleStart::SingleStart(const std::string& directory)
    : directory_(directory), lock_(QDir(qt(directory)).filePath(QStringLiteral("quelar.lock"))) {
  // However long the other one is at work, it is no leftover.
  lock_.setStaleLockTime(0);
  lock_.tryLock(0);
}

bool SingleStart::is_barred() const {
  return !lock_.isLocked() && lock_.error() == QLockFile::LockFailedError;
}

std::string SingleStart::words() const {
  qint64 process = 0;
  QString host;
  QString program;
  std::string holder = "another process";
  if (lock_.getLockInfo(&process, &host, &program)) {
    holder = "process " + std::to_string(process) + " (" + program.toStdString() + ")";
    if (!host.isEmpty()) holder += " on " + host.toStdString();
  }
  return "Quelar is already at work in this directory:\n" + directory_ + "\n\nIt is held by " + holder +
         ". End that one first; two at a time would take each other's data away.\n\nWhen it runs no more, or "
         "runs "
         "in another directory of which this one is a copy, delete the file quelar.lock here.";
}

}  // namespace runtime::forms
