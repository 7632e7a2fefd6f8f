#include "runtime/forms/status_line.h"

#include <QLabel>

#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

QLabel* line_of(const QWidget* main_window) {
  return main_window == nullptr ? nullptr
                                : main_window->findChild<QLabel*>(QString::fromLatin1(status_line_name));
}

}  // namespace

std::string status_line(const QWidget* main_window) {
  const QLabel* line = line_of(main_window);
  return line == nullptr ? std::string() : line->text().toStdString();
}

void set_status_line(QWidget* main_window, const std::string& words) {
  QLabel* line = line_of(main_window);
  if (line == nullptr) return;
  line->setText(qt(words));
  line->setAccessibleName(qt(words));
}

void paint_status_line(QWidget* main_window) {
  if (QLabel* line = line_of(main_window)) line->repaint();
}

}  // namespace runtime::forms
