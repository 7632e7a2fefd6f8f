#include "runtime/forms/surfaces.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>

#include "runtime/forms/twips.h"

namespace runtime::forms {

QWidget* Label::make_widget(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void Label::show_caption(const std::string& caption) {
  QString text = qt(caption);
  static_cast<QLabel*>(widget())->setText(text.replace(u'\r', u'\n'));
  placed();
}

void Label::placed() {
  auto* label = static_cast<QLabel*>(widget());
  const QRect own = pixels(place());
  QRect room(own);
  room.setWidth(std::max(own.width(), label->sizeHint().width()));
  if ((label->alignment() & Qt::AlignRight) != 0) room.moveRight(own.right());
  label->setGeometry(room);
}

void Label::align_right() {
  static_cast<QLabel*>(widget())->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  placed();
}

void Label::align_bottom() {
  static_cast<QLabel*>(widget())->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
}

QWidget* Frame::make_widget(QWidget* parent) {
  return new QGroupBox(parent);
}

void Frame::show_caption(const std::string& caption) {
  static_cast<QGroupBox*>(widget())->setTitle(qt(caption));
}

QWidget* PictureBox::make_widget(QWidget* parent) {
  return new QFrame(parent);
}

QWidget* Line::make_widget(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

void Line::created(const ControlDesign& design) {
  const bool lies = design.place.width > design.place.height;
  static_cast<QFrame*>(widget())->setFrameShape(lies ? QFrame::HLine : QFrame::VLine);
}

QWidget* Shape::make_widget(QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setFrameShape(QFrame::StyledPanel);
  return frame;
}

}  // namespace runtime::forms
