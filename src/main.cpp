#include <QApplication>
#include <QDir>

#include "event_table.h"
#include "runtime/forms/single_start.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("quelar"));
  QApplication::setQuitOnLastWindowClosed(false);
  const std::string directory = QDir::toNativeSeparators(QApplication::applicationDirPath()).toStdString();
  const runtime::forms::SingleStart start(directory);
  forms::Program program(directory);
  if (start.is_barred()) {
    program.desktop.MsgBox(start.words());
    return 1;
  }
  quelar::tie_events(program);
  quelar::start(program);
  return QApplication::exec();
}
