// The analyst as a plugin, which Qt loads into the real process when the environment asks for it: the program
// knows nothing of it, and what it does needs no display. It plays the road of a commuter analysis from the
// first menu item to "Exit", prints the boxes that it met, and ends the process with 1 when anything on the
// way went otherwise than planned.
#include <QApplication>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "analyst/analyst.h"

namespace {

QWidget* main_window() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String("MDIForm1")) return widget;
  }
  return nullptr;
}

void pick(analyst::Analyst& analyst, const char* button, const char* file) {
  analyst.will_choose_file(QApplication::applicationDirPath().toStdString() + "/" + file);
  analyst.click(button);
}

void walk_the_road(analyst::Analyst& analyst) {
  analyst.choose("spec_timdist");
  pick(analyst, "Command4(5)", "sample/distance.txt");
  analyst.will_press("Yes");
  analyst.click("Command8");
  analyst.choose("spec_comm");
  pick(analyst, "Command10(7)", "sample/commute_Sales.txt");
  pick(analyst, "Command12", "results/sales.txt");
  analyst.forget_boxes();
  analyst.will_press("Yes");
  analyst.will_press("OK");
  analyst.click("Command11");
  for (const std::string& text : analyst.texts()) std::printf("%s\n", text.c_str());
  analyst.choose("Mnu_exit");
}

void play() {
  QWidget* window = main_window();
  if (window == nullptr) return QApplication::exit(1);
  analyst::Analyst analyst(*window);
  walk_the_road(analyst);
  for (const std::string& complaint : analyst.complaints()) std::fprintf(stderr, "%s\n", complaint.c_str());
  if (!analyst.complaints().empty()) QApplication::exit(1);
}

}  // namespace

class AnalystPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "analyst_plugin.json")

 public:
  QObject* create(const QString&, const QString&) override {
    QTimer::singleShot(0, qApp, [] { play(); });
    return new QObject;
  }
};

#include "analyst_plugin.moc"
