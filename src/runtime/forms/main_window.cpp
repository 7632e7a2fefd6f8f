#include "runtime/forms/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QStatusBar>
#include <vector>

#include "runtime/fault.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/status_line.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

/// An area that shows a picture in its middle behind the work forms.
class PictureArea : public QMdiArea {
 public:
  PictureArea(const QString& picture, QWidget* parent) : QMdiArea(parent), picture_(picture) {
    setBackground(palette().brush(QPalette::Dark));
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QMdiArea::paintEvent(event);
    if (picture_.isNull()) return;
    QPainter painter(viewport());
    const QRect space = viewport()->rect();
    const QSize size = picture_.size() / picture_.devicePixelRatio();
    painter.drawPixmap(
        QRect(QPoint((space.width() - size.width()) / 2, (space.height() - size.height()) / 2), size),
        picture_);
  }

 private:
  QPixmap picture_;
};

/// A line of text that never makes the window wider. It is there when it says nothing, too: coming and going,
/// it would resize the work forms.
void add_status_line(QMainWindow& window) {
  auto* line = new QLabel(&window);
  line->setObjectName(QString::fromLatin1(status_line_name));
  line->setTextFormat(Qt::PlainText);
  line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  window.statusBar()->setSizeGripEnabled(false);
  window.statusBar()->addWidget(line, 1);
}

}  // namespace

MainWindow::MainWindow(Desktop& desktop, const std::string& caption, const QString& picture,
                       std::span<const MenuDesign> menu)
    : desktop_(desktop), area_(new PictureArea(picture, this)) {
  setWindowTitle(qt(caption));
  setCentralWidget(area_);
  resize(screen()->availableSize() * 0.85);  // for a desktop that does not maximize
  desktop_.main_window = this;
  desktop_.mdi_area = area_;
  build_menu(menu);
  add_status_line(*this);
}

MainWindow::~MainWindow() {
  desktop_.main_window = nullptr;
  desktop_.mdi_area = nullptr;
}

void MainWindow::build_menu(std::span<const MenuDesign> menu) {
  // A bar that the desktop shows at a place of its own has no room for an item without a menu, such as the
  // one that ends the program.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  std::vector<QMenu*> open_menus;  // the submenu of each level above the row at hand
  for (std::size_t row = 0; row < menu.size(); ++row) {
    const MenuDesign& design = menu[row];
    const auto level = static_cast<std::size_t>(design.level);
    open_menus.resize(level - 1);
    const bool has_children = row + 1 < menu.size() && menu[row + 1].level > design.level;
    QString caption = qt(design.caption);
    caption.replace(u'&', QLatin1String("&&"));
    const auto add = [&](auto* parent) -> Item {
      if (!has_children) return {parent->addAction(caption), nullptr};
      QMenu* submenu = parent->addMenu(caption);
      return {submenu->menuAction(), submenu};
    };
    const Item item = level == 1 ? add(menuBar()) : add(open_menus.back());
    if (level > 1) menu_of_.emplace(item.action, open_menus.back()->menuAction());
    QObject* named = item.submenu != nullptr ? static_cast<QObject*>(item.submenu) : item.action;
    named->setObjectName(QString::fromUtf8(design.name));
    item.action->setEnabled(design.enabled);
    item.action->setMenuRole(QAction::NoRole);
    items_.emplace(design.name, item);
    if (has_children) open_menus.push_back(item.submenu);
  }
}

bool MainWindow::item_enabled(std::string_view name) const {
  return items_.find(name)->second.action->isEnabled();
}

void MainWindow::set_item_enabled(std::string_view name, bool enabled) {
  items_.find(name)->second.action->setEnabled(enabled);
}

bool MainWindow::can_be_reached(const QAction& item) const {
  if (!item.isEnabled()) return false;
  const auto menu = menu_of_.find(&item);
  return menu == menu_of_.end() || can_be_reached(*menu->second);
}

void MainWindow::on_item(std::string_view name, std::function<void()> handler) {
  const Item& item = items_.find(name)->second;
  // A menu outside the window, or an assistive tool, can press an item whose menu is disabled.
  const auto run = [this, action = item.action, handler = std::move(handler)] {
    if (can_be_reached(*action)) desktop_.run_person_event(handler);
  };
  if (item.submenu != nullptr) {
    connect(item.submenu, &QMenu::aboutToShow, this, run);
  } else {
    connect(item.action, &QAction::triggered, this, run);
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!desktop_.busy() && !desktop_.resting()) emit close_requested();
}

}  // namespace runtime::forms
