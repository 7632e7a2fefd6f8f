// quelar_demo APPLICATION_DIRECTORY PICTURE_DIRECTORY: plays the road of an analysis through the real
// windows, takes a picture of every screen on the way, and prints where the report lies.
#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTest>
#include <cstdio>

#include "analyst/analyst.h"
#include "event_table.h"

namespace {

class Demonstration {
 public:
  Demonstration(const std::string& application, QString pictures)
      : program_(application), analyst_(program_.mdiform1.window()), pictures_(std::move(pictures)) {
    QDir().mkpath(pictures_);
    quelar::tie_events(program_);
    program_.mdiform1.window().resize(1060, 740);
    quelar::start(program_);
    if (!QTest::qWaitForWindowExposed(&program_.mdiform1.window())) std::fprintf(stderr, "no window\n");
    analyst_.when_box_shows = [this](const analyst::Box& box) { picture_of_box(box); };
  }

  int play() {
    picture("main_window");
    specify_time_and_distance();
    run_commuter_analysis();
    specify_time_and_distance();
    run_commercial_analysis();
    convert_tons();
    for (const std::string& complaint : analyst_.complaints())
      std::fprintf(stderr, "%s\n", complaint.c_str());
    return analyst_.complaints().empty() ? 0 : 1;
  }

 private:
  void specify_time_and_distance() {
    choose("spec_timdist", "menu_first_step");
    picture("time_and_distance");
    next_box_ = "time_and_distance_saved";
    analyst_.will_press("Yes");
    analyst_.click("Command8");
  }

  void run_commuter_analysis() {
    const std::string sample = program_.desktop.app_path + "/sample/";
    choose("spec_comm", "menu_second_step");
    picture("commuter_page");
    pick("Command10(7)", sample + "commute_Sales.txt", "file_dialog");
    pick("Command10(0)", sample + "commute_Precision_production_craft_and_repair.txt");
    pick("Command12", program_.desktop.app_path + "/results/commuter.txt");
    analyst_.click("Check1");
    pick("Command7", sample + "districts.txt");
    picture("commuter_page_filled");
    next_box_ = "commuter_summary";
    analyst_.will_press("Yes");
    analyst_.will_press("OK");
    analyst_.click("Command11");
  }

  void run_commercial_analysis() {
    const std::string sample = program_.desktop.app_path + "/sample/";
    choose("Spec_commercial", "menu_commercial");
    pick("Command1(2)", sample + "trips_Mining.txt");
    pick("Command1(4)", sample + "trips_Manufacturing.txt");
    pick("Command5", program_.desktop.app_path + "/results/commercial.txt");
    analyst_.click("Check1");
    pick("Command7", sample + "districts.txt");
    picture("commercial_page_filled");
    next_box_ = "commercial_summary";
    analyst_.will_press("Yes");
    analyst_.will_press("OK");
    analyst_.click("Command2");
  }

  void convert_tons() {
    choose("mnu_tonstotrucks", "menu_conversion");
    pick("Command15", program_.desktop.app_path + "/sample/commodity.txt");
    picture("truck_page_filled");
    analyst_.will_press("OK");
    analyst_.click("Command13");
  }

  void choose(const std::string& item, const QString& picture_name) {
    analyst_.when_menu_opens = [this, picture_name] {
      QTest::qWait(50);
      QGuiApplication::primaryScreen()->grabWindow(0).copy(0, 0, 620, 200).save(file_of(picture_name));
    };
    analyst_.choose(item);
  }

  QString file_of(const QString& picture_name) const {
    return pictures_ + u'/' + picture_name + QStringLiteral(".png");
  }

  void pick(const std::string& button, const std::string& file, const QString& picture_name = {}) {
    next_box_ = picture_name;
    analyst_.will_choose_file(file);
    analyst_.click(button);
  }

  void picture(const QString& name) {
    QTest::qWait(50);  // a repaint or two, so that the picture shows the window at rest
    program_.mdiform1.window().grab().save(file_of(name));
  }

  void picture_of_box(const analyst::Box& box) {
    const QString name = box.text == "Analysis Completed" ? QStringLiteral("analysis_completed") : next_box_;
    next_box_.clear();
    QTest::qWait(200);  // the file dialog reads and sorts its list after it has come up
    if (name.isEmpty() || QApplication::activeModalWidget() == nullptr) return;
    QApplication::activeModalWidget()->grab().save(file_of(name));
  }

  forms::Program program_;
  analyst::Analyst analyst_;
  QString pictures_;
  QString next_box_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: quelar_demo APPLICATION_DIRECTORY PICTURE_DIRECTORY\n");
    return 2;
  }
  Demonstration demonstration(argv[1], QString::fromLocal8Bit(argv[2]));
  return demonstration.play();
}
