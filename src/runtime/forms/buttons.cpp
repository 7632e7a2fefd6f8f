#include "runtime/forms/buttons.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "runtime/forms/desktop.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

/// Enter presses the button that has the focus, as Space does.
class PushButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }
};

/// One that is pressed by a call, as assistive tools do, keeps its state when its press is not heard.
template <typename Button>
class HeardButton : public Button {
 public:
  HeardButton(const Desktop& desktop, QWidget* parent) : Button(parent), desktop_(desktop) {}

 protected:
  void nextCheckState() override {
    if (desktop_.hears_a_person()) Button::nextCheckState();
  }

 private:
  const Desktop& desktop_;
};

QAbstractButton* button_of(const Control& control) {
  return qobject_cast<QAbstractButton*>(control.widget());
}

}  // namespace

QWidget* CommandButton::make_widget(QWidget* parent) {
  auto* button = new PushButton(parent);
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, button, [this, button] {
    // A shortcut clicks without taking the focus, which the control that had it must notice. When that ends
    // in a report, the button is not pressed, as with the mouse, whose button comes up over the report.
    const int reports = desktop().reports();
    if (button->focusPolicy() != Qt::NoFocus) button->setFocus(Qt::OtherFocusReason);
    if (desktop().reports() == reports) fire_from_person(Event::Click);
  });
  return button;
}

void CommandButton::show_caption(const std::string& caption) {
  button_of(*this)->setText(qt(caption));
}

QWidget* OptionButton::make_widget(QWidget* parent) {
  auto* button = new HeardButton<QRadioButton>(desktop(), parent);
  QObject::connect(button, &QRadioButton::clicked, button, [this] { fire_from_person(Event::Click); });
  return button;
}

void OptionButton::show_caption(const std::string& caption) {
  button_of(*this)->setText(qt(caption));
}

bool OptionButton::value() const {
  return button_of(*this)->isChecked();
}

void OptionButton::set_value(bool selected) {
  QAbstractButton* button = button_of(*this);
  if (button->isChecked() == selected) return;
  {
    const QSignalBlocker blocker(button);
    // An exclusive group keeps its chosen one chosen; code may leave it without any.
    button->setAutoExclusive(selected);
    button->setChecked(selected);
    button->setAutoExclusive(true);
  }
  if (selected) fire(Event::Click);
}

QWidget* CheckBox::make_widget(QWidget* parent) {
  auto* button = new HeardButton<QCheckBox>(desktop(), parent);
  QObject::connect(button, &QCheckBox::clicked, button, [this] { fire_from_person(Event::Click); });
  return button;
}

void CheckBox::show_caption(const std::string& caption) {
  button_of(*this)->setText(qt(caption));
}

int CheckBox::value() const {
  return button_of(*this)->isChecked() ? 1 : 0;
}

void CheckBox::set_value(int value) {
  if (this->value() == value) return;
  {
    const QSignalBlocker blocker(button_of(*this));
    button_of(*this)->setChecked(value == 1);
  }
  fire(Event::Click);
}

}  // namespace runtime::forms
