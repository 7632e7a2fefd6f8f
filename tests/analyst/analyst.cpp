#include "analyst/analyst.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>

namespace analyst {

namespace {

QString qt(const std::string& text) {
  return QString::fromStdString(text);
}

/// The keys that a person presses; QTest itself knows those of plain letters alone.
void type_keys(QWidget& widget, const std::string& text) {
  for (const QChar letter : qt(text)) {
    if (letter.unicode() < 128) {
      QTest::keyClick(&widget, letter.toLatin1());
      continue;
    }
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, QString(letter));
      QCoreApplication::sendEvent(&widget, &event);
    }
  }
}

std::string caption_of(const QAbstractButton& button) {
  return button.text().remove(u'&').toStdString();
}

Box describe(QDialog& dialog) {
  Box box;
  box.name = dialog.objectName().toStdString();
  box.title = dialog.windowTitle().toStdString();
  if (const auto* message = qobject_cast<QMessageBox*>(&dialog)) {
    box.text = message->text().toStdString();
    box.icon = message->icon();
    for (const auto* button : message->buttons()) box.buttons.push_back(caption_of(*button));
  }
  if (const auto* input = qobject_cast<QInputDialog*>(&dialog)) box.text = input->labelText().toStdString();
  if (const auto* file = qobject_cast<QFileDialog*>(&dialog)) {
    box.directory = file->directory().absolutePath().toStdString();
    box.filter = file->nameFilters().value(0).toStdString();
    if (const auto* edit = file->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
      box.text = edit->text().toStdString();
    }
  }
  return box;
}

bool press(QDialog& dialog, const std::string& caption) {
  for (auto* button : dialog.findChildren<QAbstractButton*>()) {
    if (caption_of(*button) != caption || !button->isEnabled()) continue;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
  }
  return false;
}

void enter_file(QDialog& dialog, const std::string& path) {
  auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  edit->setCompleter(nullptr);  // its suggestions come when the directory has been read, at any moment
  // Without a window manager nobody hands the focus over, and the dialog drops what it had selected in its
  // list only while its name box has the focus.
  QApplication::setActiveWindow(&dialog);
  edit->setFocus();
  edit->selectAll();
  type_keys(*edit, path);
  auto* buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
  for (auto* button : buttons->buttons()) {
    if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole) {
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
  }
}

/// The actions from the menu bar down to the item.
bool path_to(const QList<QAction*>& actions, const QString& item, QList<QAction*>& path) {
  for (QAction* action : actions) {
    path.append(action);
    const QString name = action->menu() != nullptr ? action->menu()->objectName() : action->objectName();
    if (name == item) return true;
    if (action->menu() != nullptr && path_to(action->menu()->actions(), item, path)) return true;
    path.removeLast();
  }
  return false;
}

QMenuBar& menu_bar(QWidget& main_window) {
  return *qobject_cast<QMainWindow*>(&main_window)->menuBar();
}

}  // namespace

Analyst::Analyst(QWidget& main_window) : main_window_(main_window) {
  qApp->installEventFilter(this);
}

Analyst::~Analyst() {
  qApp->removeEventFilter(this);
}

void Analyst::will_press(const std::string& button) {
  answers_.push_back([this, button](QDialog& dialog) {
    if (press(dialog, button)) return;
    complain("no button " + button + " on " + describe(dialog).text);
    dialog.reject();
  });
}

void Analyst::will_enter(const std::string& text) {
  answers_.push_back([this, text](QDialog& dialog) {
    auto* edit = dialog.findChild<QLineEdit*>();
    if (qobject_cast<QInputDialog*>(&dialog) == nullptr || edit == nullptr) {
      complain("a box that asks for a text was expected, not: " + describe(dialog).text);
      return dialog.reject();
    }
    edit->selectAll();
    type_keys(*edit, text);
    press(dialog, "OK");
  });
}

void Analyst::will_choose_file(const std::string& path) {
  answers_.push_back([this, path](QDialog& dialog) {
    if (qobject_cast<QFileDialog*>(&dialog) != nullptr) return enter_file(dialog, path);
    complain("a file dialog was expected, not: " + describe(dialog).text);
    dialog.reject();
  });
}

void Analyst::will_cancel_file() {
  answers_.push_back([this](QDialog& dialog) {
    if (qobject_cast<QFileDialog*>(&dialog) == nullptr) complain("a file dialog was expected");
    if (!press(dialog, "Cancel")) dialog.reject();
  });
}

void Analyst::will_do(const std::function<void(QDialog&)>& answer) {
  answers_.push_back(answer);
}

bool Analyst::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return false;
  auto* dialog = qobject_cast<QDialog*>(watched);
  if (dialog == nullptr || dialog->objectName().isEmpty() || dialog == met_last_) return false;
  met_last_ = dialog;
  // The box is answered from its own event loop, as a person would.
  QTimer::singleShot(0, dialog, [this, dialog = QPointer<QDialog>(dialog)] {
    met_last_ = nullptr;
    if (dialog) meet(*dialog);
  });
  return false;
}

void Analyst::meet(QDialog& dialog) {
  boxes_.push_back(describe(dialog));
  if (when_box_shows) when_box_shows(boxes_.back());
  if (answers_.empty()) {
    complain("unexpected " + boxes_.back().name + ": " + boxes_.back().text);
    dialog.reject();
    return;
  }
  const Answer answer = answers_.front();
  answers_.pop_front();
  answer(dialog);
}

void Analyst::choose(const std::string& item) {
  QList<QAction*> path;
  if (!path_to(menu_bar(main_window_).actions(), qt(item), path)) return complain("no menu item " + item);
  if (!std::all_of(path.begin(), path.end(), [](const QAction* action) { return action->isEnabled(); })) {
    return complain("the way to the menu item " + item + " is barred");
  }
  QWidget* holder = &menu_bar(main_window_);
  for (QAction* action : path) {
    const bool on_bar = holder == &menu_bar(main_window_);
    const QRect place = on_bar ? static_cast<QMenuBar*>(holder)->actionGeometry(action)
                               : static_cast<QMenu*>(holder)->actionGeometry(action);
    if (action == path.back() && !on_bar && when_menu_opens) when_menu_opens();
    if (action->menu() == nullptr || on_bar) {
      QTest::mouseClick(holder, Qt::LeftButton, {}, place.center());
    } else {
      static_cast<QMenu*>(holder)->setActiveAction(action);
      QTest::keyClick(holder, Qt::Key_Right);
    }
    if (action->menu() != nullptr) {
      if (!QTest::qWaitFor([action] { return action->menu()->isVisible(); })) {
        return complain("the menu on the way to " + item + " did not open");
      }
      holder = action->menu();
    }
  }
}

QWidget* Analyst::find(const std::string& name) const {
  if (main_window_.objectName() == qt(name)) return &main_window_;
  const auto all = main_window_.findChildren<QWidget*>(qt(name));
  const auto seen = std::find_if(all.begin(), all.end(), [](auto* widget) { return widget->isVisible(); });
  if (seen != all.end()) return *seen;
  return all.isEmpty() ? nullptr : all.front();
}

bool Analyst::sees(const std::string& name) const {
  const QWidget* widget = find(name);
  return widget != nullptr && widget->isVisible();
}

bool Analyst::can_use(const std::string& name) const {
  return sees(name) && find(name)->isEnabled();
}

bool Analyst::item_enabled(const std::string& item) const {
  QList<QAction*> path;
  return path_to(menu_bar(main_window_).actions(), qt(item), path) && path.back()->isEnabled();
}

std::string Analyst::text_of(const std::string& name) const {
  const QWidget* widget = find(name);
  if (widget == nullptr) return "no " + name;
  if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) return edit->displayText().toStdString();
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text().toStdString();
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text().toStdString();
  if (const auto* frame = qobject_cast<const QGroupBox*>(widget)) return frame->title().toStdString();
  return widget->windowTitle().toStdString();
}

void Analyst::click(const std::string& control) {
  QWidget* widget = find(control);
  if (!can_use(control)) return complain(control + " can't be clicked");
  // A click lands where a person aims: at the caption's start, which a long caption keeps free of neighbours.
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

void Analyst::type(const std::string& control, const std::string& text) {
  if (!can_use(control)) return complain(control + " can't be typed into");
  find(control)->setFocus();
  type_keys(*find(control), text);
}

std::vector<std::string> Analyst::texts() const {
  std::vector<std::string> texts;
  texts.reserve(boxes_.size());
  for (const Box& box : boxes_) texts.push_back(box.text);
  return texts;
}

std::vector<std::string> Analyst::complaints() const {
  std::vector<std::string> all = complaints_;
  if (!answers_.empty()) all.push_back(std::to_string(answers_.size()) + " answers were never asked for");
  return all;
}

}  // namespace analyst
