// Tests of screens run without a display unless one is asked for.
#include <gtest/gtest.h>

#include <QApplication>
#include <QtGlobal>

#ifdef __SANITIZE_ADDRESS__
// The desktop's message bus library keeps what it allocates when a real display is used, and the C library
// what it reads of a locale.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1\nleak:argz_add_sep\n";
}
#endif

int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
