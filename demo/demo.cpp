// quelar_demo APPLICATION_DIRECTORY PICTURE_DIRECTORY: plays the road of an analysis through the real
// windows, takes a picture of every screen on the way, and prints where the report lies.
#include <QApplication>
#include <QDir>
#include <QHeaderView>
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
    enter_zones();
    enter_times_and_distances();
    choose_markets();
    edit_parameters();
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
  void enter_zones() {
    analyst_.choose("Zones");
    analyst_.type("MaskEdBox1", "24");
    picture("number_of_zones");
    analyst_.will_press("Yes");
    analyst_.click("Command5");
  }

  void enter_times_and_distances() {
    analyst_.choose("Times");
    pick_column(2);
    const char* const range[] = {"1", "24", "1", "24", "12.5"};
    for (int box = 0; box < 5; ++box) {
      const std::string name = "txt_zonedit(" + std::to_string(box) + ")";
      analyst_.type(name, range[box]);
    }
    picture("range_filled");
    analyst_.click("cmd_zonedit(0)");
    analyst_.click("cmdRefresh");
    picture("times_and_distances");
    analyst_.click("cmdClose");
    program_.frmdirget->dirList.set_path(program_.desktop.app_path + "/results");
    picture("directory_chooser");
    analyst_.click("cmdExit");
  }

  void choose_markets() {
    analyst_.choose("Comm_pop");
    analyst_.click("Chcktrp(7)");
    analyst_.click("Chcktrp(12)");
    picture("choice_of_occupations");
    analyst_.click("Command3");
    picture("population");
    analyst_.click("Cmdquit");
    analyst_.choose("CommerTdata");
    analyst_.click("Chcktrp(1)");
    picture("choice_of_industries");
    analyst_.click("Command2");
  }

  /// Clicks the heading of a column of the grid.
  void pick_column(int column) {
    for (auto* heading : program_.mdiform1.window().findChildren<QHeaderView*>()) {
      if (heading->orientation() != Qt::Horizontal || !heading->isVisible()) continue;
      const QPoint place(heading->sectionViewportPosition(column) + 10, heading->height() / 2);
      QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, place);
    }
  }

  void edit_parameters() {
    look_at("commute_param_sw", "parameters_wages", "Command5");
    look_at("Commute_param_ms", "parameters_mode_shares", "Command1");
    look_at("Commerparam", "parameters_commercial", "Command1");
    look_at("mnu_rel", "parameters_reliability", "Command1");
  }

  void look_at(const std::string& editor, const QString& picture_name, const std::string& cancel) {
    analyst_.choose(editor);
    picture(picture_name);
    analyst_.will_press("Yes");
    analyst_.click(cancel);
  }

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
