// The analyst as a plugin, which Qt loads into the real process when the environment asks for it: the program
// knows nothing of it, and what it does needs no display. It plays the road of a commuter analysis from the
// first menu item to "Exit", or, when the environment gives a number of zones, the entry of their distances
// and times. It prints the boxes that it met, or what it is about to do, and ends the process with 1 when
// anything on the way went otherwise than planned.
#include <QApplication>
#include <QGenericPlugin>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
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

void say(const char* words) {
  std::puts(words);
  std::fflush(stdout);  // the process may be killed in what comes next
}

void enter_number_of_zones(analyst::Analyst& analyst, const std::string& zones) {
  analyst.choose("Zones");
  static_cast<QLineEdit*>(analyst.find("MaskEdBox1"))->selectAll();
  analyst.type("MaskEdBox1", zones);
  analyst.will_press("Yes");
  analyst.click("Command5");
}

void click_heading(analyst::Analyst& analyst, int column) {
  for (auto* heading : analyst.find("grdDataGrid")->findChildren<QHeaderView*>()) {
    if (heading->orientation() != Qt::Horizontal) continue;
    const QPoint place(heading->sectionViewportPosition(column) + 10, heading->height() / 2);
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, place);
  }
}

/// Every pair of zones gets the same distance and times, and the files go to the application directory.
void walk_the_entry(analyst::Analyst& analyst, const std::string& zones) {
  enter_number_of_zones(analyst, zones);
  say("opening the grid");
  analyst.choose("Times");
  for (const int column : {2, 3, 4}) click_heading(analyst, column);
  for (const char* from : {"txt_zonedit(0)", "txt_zonedit(2)"}) analyst.type(from, "1");
  for (const char* to : {"txt_zonedit(1)", "txt_zonedit(3)"}) analyst.type(to, zones);
  analyst.type("txt_zonedit(4)", "7.5");
  say("filling");
  analyst.click("cmd_zonedit(0)");
  analyst.click("cmdClose");
  say("saving");
  analyst.click("cmdExit");
  analyst.choose("Mnu_exit");
}

void play() {
  if (auto* refusal = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
    std::printf("%s\n", refusal->text().toStdString().c_str());
    return refusal->button(QMessageBox::Ok)->click();
  }
  QWidget* window = main_window();
  if (window == nullptr) return QApplication::exit(1);
  analyst::Analyst analyst(*window);
  const std::string zones = qEnvironmentVariable("ANALYST_ZONES").toStdString();
  if (zones.empty()) {
    walk_the_road(analyst);
  } else {
    walk_the_entry(analyst, zones);
  }
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
