// What a person does in the list of directories of the chooser.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>

namespace testing_aids {

/// Clicks a directory once, which does not open it.
inline void highlight(QListWidget& directories, const QString& name) {
  QApplication::setActiveWindow(directories.window());  // nobody hands it over without a window manager
  for (int i = 0; i < directories.count(); ++i) {
    QListWidgetItem* item = directories.item(i);
    if (item->text().trimmed() != name) continue;
    directories.scrollToItem(item);
    QTest::mouseClick(directories.viewport(), Qt::LeftButton, {}, directories.visualItemRect(item).center());
    return;
  }
  ADD_FAILURE() << "no directory " << name.toStdString();
}

}  // namespace testing_aids
