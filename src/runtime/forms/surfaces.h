// Labels, frames, picture boxes and drawn lines and rectangles.
#pragma once

#include "runtime/forms/control.h"

namespace runtime::forms {

class Label : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::Label; }
  void align_right();
  void align_bottom();

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void show_caption(const std::string& caption) override;
  /// A caption that is longer than its place runs on over the form instead of being cut.
  void placed() override;
  bool lies_under() const override { return true; }
};

class Frame : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::Frame; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void show_caption(const std::string& caption) override;
};

class PictureBox : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::PictureBox; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
};

/// A drawn line; the longer side of its place tells its direction.
class Line : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::Line; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void created(const ControlDesign& design) override;
  bool lies_under() const override { return true; }
};

/// A drawn rectangle.
class Shape : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::Shape; }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  bool lies_under() const override { return true; }
};

}  // namespace runtime::forms
