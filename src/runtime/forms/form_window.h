// The window of a loaded form inside the main window: a frame without a close box, a scroll area, and the
// surface that the controls stand on.
#pragma once

#include <QMdiSubWindow>
#include <QScrollArea>

namespace runtime::forms {

class ControlSet;
struct FormDesign;

class FormWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  FormWindow(const FormDesign& design, QWidget* parent);

  QWidget* surface() const { return surface_; }
  /// Its size, and that of its normal state while it is an icon.
  QSize size_without_icon() const { return isMinimized() ? normal_size_ : size(); }
  /// Lets it fill the main window for good: unlike a form that the analyst maximised by its title bar it has
  /// no button that restores it.
  void maximize();
  /// Makes the surface large enough for every visible control, so that a small window scrolls to all of them,
  /// and lets no control take the focus that lies wholly under another.
  void fit(const ControlSet& controls);

 signals:
  void resized();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void fit_menu_bar();

  QScrollArea* scroll_;
  QWidget* surface_;
  QSize normal_size_;
  bool maximized_by_code_ = false;
};

}  // namespace runtime::forms
