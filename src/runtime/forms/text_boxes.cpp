#include "runtime/forms/text_boxes.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "runtime/forms/desktop.h"
#include "runtime/forms/twips.h"
#include "runtime/text/numbers.h"

namespace runtime::forms {

namespace {

/// Where a click or a Tab enters a masked box: a caret behind the last place would refuse every digit.
class MaskedLineEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  /// A number that is longer than the mask is shown whole: a part of it would be another number.
  void show_number(const QString& number) {
    const QSignalBlocker blocker(this);
    const auto beyond = std::max<qsizetype>(0, number.size() - pattern.size());
    setInputMask(pattern + QString(beyond, u'0') + QStringLiteral(";_"));
    setText(number);
    setCursorPosition(0);
    heard = number;
  }

  QString pattern;  // of the mask, without its prompt
  QString heard;    // the number that is shown by right

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason) selectAll();
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    const auto digits = text().size();
    if (!hasSelectedText() && cursorPosition() > digits) setCursorPosition(static_cast<int>(digits));
  }
};

/// A disabled box still shows a path that must be read, so its text is dimmed less than the desktop would.
void keep_readable_when_disabled(QWidget& widget) {
  QPalette palette = widget.palette();
  QColor text = palette.color(QPalette::Active, QPalette::Text);
  text.setAlphaF(0.75F);
  palette.setColor(QPalette::Disabled, QPalette::Text, text);
  widget.setPalette(palette);
}

}  // namespace

QWidget* TextBox::make_widget(QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  keep_readable_when_disabled(*edit);
  // What an assistive tool puts in is no edit to Qt. The program's own changes block the signal.
  QObject::connect(edit, &QLineEdit::textChanged, edit, [this] { changed_by_a_person(); });
  return edit;
}

void TextBox::changed_by_a_person() {
  // A box that takes no key must not take what comes by another way.
  if (locked() || !is_enabled() || !desktop().hears_a_person()) return show(shown_);
  shown_ = text();
  changed = true;
  fire_from_person(Event::Change);
}

/// A path may be longer than its box, so the tool tip holds all of it.
void TextBox::show(const std::string& text) {
  const QSignalBlocker blocker(&edit());
  shown_ = text;
  edit().setText(qt(text));
  edit().setToolTip(edit().text());
}

QLineEdit& TextBox::edit() const {
  return *qobject_cast<QLineEdit*>(widget());
}

std::string TextBox::text() const {
  return edit().text().toStdString();
}

void TextBox::set_text(const std::string& text) {
  if (text == this->text()) return;
  show(text);
  changed = true;
  fire(Event::Change);
}

bool TextBox::locked() const {
  return edit().isReadOnly();
}
void TextBox::set_locked(bool locked) {
  edit().setReadOnly(locked);
}
bool TextBox::bold() const {
  return edit().font().bold();
}

void TextBox::set_bold(bool bold) {
  QFont font = edit().font();
  font.setBold(bold);
  edit().setFont(font);
}

void TextBox::show_value(const Value& value) {
  show(text::joined(value));
  changed = false;
}

void TextBox::show_caption(const std::string& caption) {
  const QSignalBlocker blocker(&edit());
  shown_ = caption;
  edit().setText(qt(caption));
}

QWidget* MaskEdBox::make_widget(QWidget* parent) {
  auto* edit = new MaskedLineEdit(parent);
  QObject::connect(edit, &QLineEdit::textChanged, edit, [this, edit] {
    if (!desktop().hears_a_person()) {
      const QSignalBlocker blocker(edit);
      return edit->show_number(edit->heard);
    }
    edit->heard = edit->text();
    changed = true;
    fire_from_person(Event::Change);
  });
  return edit;
}

QLineEdit& MaskEdBox::edit() const {
  return *qobject_cast<QLineEdit*>(widget());
}

void MaskEdBox::show_caption(const std::string& mask) {
  auto& box = static_cast<MaskedLineEdit&>(edit());
  box.pattern = qt(mask).replace(u'#', u'0');  // a place that takes a digit or stays empty, never a sign
  box.show_number({});
}

std::string MaskEdBox::text() const {
  return edit().displayText().toStdString();
}

void MaskEdBox::show_value(const Value& value) {
  static_cast<MaskedLineEdit&>(edit()).show_number(qt(text::joined(value)));
  changed = false;
}

Value MaskEdBox::held_value() const {
  const std::string shown_text = text();
  if (shown_text.find_first_of("0123456789") == std::string::npos) return {};
  return static_cast<std::int64_t>(text::val(shown_text));
}

void MaskEdBox::Refresh() {
  edit().update();
}

}  // namespace runtime::forms
