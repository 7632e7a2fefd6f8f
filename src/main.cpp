#include <QApplication>
#include <QDir>

#include "event_table.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("quelar"));
  QApplication::setQuitOnLastWindowClosed(false);
  forms::Program program(QDir::toNativeSeparators(QApplication::applicationDirPath()).toStdString());
  quelar::tie_events(program);
  quelar::start(program);
  return QApplication::exec();
}
