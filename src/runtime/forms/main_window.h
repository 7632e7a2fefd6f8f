// The multiple-document main window: its menu as a table says, and the area in which the work forms live.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

class QAction;
class QMdiArea;
class QMenu;

namespace runtime::forms {

class Desktop;

/// One item of the menu tree. The level tells what it stands under: 1 is the menu bar.
struct MenuDesign {
  int level;
  const char* name;
  const char* caption;
  bool enabled;
};

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(Desktop& desktop, const std::string& caption, const QString& picture,
             std::span<const MenuDesign> menu);
  ~MainWindow() override;

  bool item_enabled(std::string_view name) const;
  void set_item_enabled(std::string_view name, bool enabled);
  /// Ties the click of an item; one that has children is clicked when its submenu opens.
  void on_item(std::string_view name, std::function<void()> handler);
  bool has_item(std::string_view name) const { return items_.contains(name); }

 signals:
  /// The close box was pressed. Nothing is closed yet.
  void close_requested();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void build_menu(std::span<const MenuDesign> menu);
  /// Whether the item and every menu that it stands under are enabled.
  bool can_be_reached(const QAction& item) const;

  Desktop& desktop_;
  QMdiArea* area_;
  struct Item {
    QAction* action;
    QMenu* submenu;  // nullptr for an item without children
  };
  std::map<std::string, Item, std::less<>> items_;
  std::map<const QAction*, const QAction*> menu_of_;  // what an item stands under
};

}  // namespace runtime::forms
