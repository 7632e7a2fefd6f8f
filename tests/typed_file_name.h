// What an analyst types into the name box of a file dialog.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <string>

namespace testing_aids {

inline QLineEdit& file_name_box(QDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

/// Types a name in the place of what stands there, and presses Enter.
inline void type_file_name(QDialog& dialog, const std::string& name) {
  // Without a window manager nobody hands the focus over, and the dialog drops what it had selected in its
  // list only while its name box has the focus.
  QApplication::setActiveWindow(&dialog);
  QLineEdit& box = file_name_box(dialog);
  box.setCompleter(nullptr);  // its suggestions come when the directory has been read, at any moment
  box.setFocus();
  box.selectAll();
  box.insert(QString::fromStdString(name));  // the keys of the test library write no umlaut
  QTest::keyClick(&box, Qt::Key_Return);
}

}  // namespace testing_aids
