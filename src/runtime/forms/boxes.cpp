#include "runtime/forms/boxes.h"

#include <QCloseEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>

#include "runtime/fault.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

constexpr const char* message_name = "MsgBox";
constexpr int buttons_mask = 0x0F;
constexpr int icon_mask = 0xF0;

QMessageBox::Icon icon_of(int style) {
  switch (style & icon_mask) {
    case critical:
      return QMessageBox::Critical;
    case question:
      return QMessageBox::Question;
    case exclamation:
      return QMessageBox::Warning;
    default:
      return QMessageBox::NoIcon;
  }
}

/// Prompts part their lines by a lone carriage return, which a label would not break at.
QString with_line_feeds(const std::string& prompt) {
  QString text = qt(prompt);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return text.replace(u'\r', u'\n');
}

/// Where a text can be cut, at a place or one before it: never within a character.
qsizetype cut_before(const QString& text, qsizetype place) {
  return text[place - 1].isHighSurrogate() ? place - 1 : place;
}

/// A text from outside may be of any length, and its box's buttons must stay on the screen. A question is
/// shown with its end, where it is asked.
void set_text(QMessageBox& box, QString text, bool asks) {
  constexpr qsizetype most_characters = 1000;
  constexpr qsizetype last_characters = 300;
  text.replace(QChar(QChar::LineSeparator), QLatin1Char(' '));
  text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char(' '));
  if (text.size() <= most_characters) return box.setText(text);
  const qsizetype end = cut_before(text, asks ? most_characters - last_characters : most_characters);
  const qsizetype last = cut_before(text, text.size() - last_characters);
  box.setText(text.left(end) + (asks ? QLatin1String("\n...\n") + text.mid(last) : QString()));
  box.setDetailedText(text.mid(end));
}

/// A question is left by its answers alone: neither Escape nor the close button of its window is one.
class Question : public QMessageBox {
 public:
  explicit Question(QWidget* parent) : QMessageBox(parent) {
    setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    setDefaultButton(QMessageBox::Yes);  // on every desktop, whichever button comes first there
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Cancel)) return event->accept();
    QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

int exec(QMessageBox& box, const char* name, const QString& text, int style, const std::string& title) {
  box.setObjectName(QString::fromLatin1(name));
  box.setWindowTitle(qt(title));
  box.setTextFormat(Qt::PlainText);  // a path with "<" in it is no markup
  set_text(box, text, (style & buttons_mask) == yes_no);
  box.setIcon(icon_of(style));
  return box.exec();
}

int tell(QWidget* parent, const char* name, const QString& text, int style, const std::string& title) {
  QMessageBox box(parent);
  box.setStandardButtons(QMessageBox::Ok);
  exec(box, name, text, style, title);
  return reply_ok;
}

int ask(QWidget* parent, const QString& text, int style, const std::string& title) {
  Question box(parent);
  return exec(box, message_name, text, style, title) == QMessageBox::Yes ? reply_yes : reply_no;
}

}  // namespace

int show_message(QWidget* parent, const std::string& prompt, int style, const std::string& title) {
  const QString text = with_line_feeds(prompt);
  if ((style & buttons_mask) == yes_no) return ask(parent, text, style, title);
  return tell(parent, message_name, text, style, title);
}

std::string ask_for_text(QWidget* parent, const std::string& prompt, const std::string& title) {
  QInputDialog box(parent);
  box.setObjectName(QStringLiteral("InputBox"));
  box.setWindowTitle(qt(title));
  box.setLabelText(with_line_feeds(prompt));
  return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

void show_runtime_error(QWidget* parent, const Fault& fault, const std::string& title) {
  const QString text = QStringLiteral("Run-time error '%1':\n\n%2").arg(fault.number).arg(qt(fault.what()));
  tell(parent, "RuntimeError", text, critical, title);
}

}  // namespace runtime::forms
