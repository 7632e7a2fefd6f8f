#include "runtime/forms/menu_bar_buttons.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QProxyStyle>
#include <QStyleOptionComplex>

namespace runtime::forms {

namespace {

/// Knows no other window button than that which restores.
class RestoreAlone : public QProxyStyle {
 public:
  explicit RestoreAlone(QObject* owner) { setParent(owner); }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto restore = without_others(*option);
    QProxyStyle::drawComplexControl(control, &restore, painter, widget);
  }
  SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   const QPoint& place, const QWidget* widget) const override {
    const auto restore = without_others(*option);
    return QProxyStyle::hitTestComplexControl(control, &restore, place, widget);
  }
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    const auto restore = without_others(*option);
    return QProxyStyle::subControlRect(control, &restore, part, widget);
  }
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const auto* complex = qstyleoption_cast<const QStyleOptionComplex*>(option);
    if (complex == nullptr) return QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto restore = without_others(*complex);
    return QProxyStyle::sizeFromContents(type, &restore, size, widget);
  }

 private:
  static QStyleOptionComplex without_others(QStyleOptionComplex option) {
    option.subControls &= SC_MdiNormalButton;
    option.activeSubControls &= SC_MdiNormalButton;
    return option;
  }
};

}  // namespace

void show_in_menu_bar(const QMainWindow& main_window, MenuBarButtons buttons) {
  auto* bar = qobject_cast<QMenuBar*>(main_window.menuWidget());
  if (bar == nullptr) return;
  if (QWidget* icon = bar->cornerWidget(Qt::TopLeftCorner)) icon->hide();
  QWidget* own = bar->cornerWidget(Qt::TopRightCorner);
  if (own == nullptr) return;
  if (buttons == MenuBarButtons::restore) {
    own->setStyle(new RestoreAlone(own));
    own->updateGeometry();
  }
  own->setVisible(buttons == MenuBarButtons::restore);
}

}  // namespace runtime::forms
