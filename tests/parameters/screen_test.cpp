// What of the editors is seen beyond their layout: columns, windows, painting, and their end with the
// program.
#include <QDialog>
#include <QMdiArea>
#include <QTimer>

#include "parameter_page.h"
#include "runtime/forms/form_size.h"
#include "runtime/forms/form_window.h"

namespace {

using ::testing::ElementsAre;

class ParameterScreen : public testing_aids::ParameterPage {
 protected:
  std::string headings(const std::string& grid) {
    const auto* view = qobject_cast<QTableView*>(analyst.find(grid));
    std::string all;
    for (int column = 0; column < view->model()->columnCount(); ++column) {
      EXPECT_FALSE(view->isColumnHidden(column));
      all += view->model()->headerData(column, Qt::Horizontal).toString().toStdString() + '\n';
    }
    return all;
  }

  QMdiSubWindow& window() { return runtime::forms::window_of(program.form1); }
  QMdiArea& area() { return *program.desktop.mdi_area; }

  static constexpr std::array editors{commercial_editor, commuter_editor, reliability_editor, share_editor};
};

TEST_F(ParameterScreen, every_grid_shows_all_columns_of_its_table_in_their_stored_order) {
  analyst.choose(reliability_editor);
  EXPECT_EQ(headings("DBGrid2"), "BaseSpeed\nBaseHighwayShare\nImprovementSpeed\nImprovementHighwayShare\n");
  analyst.choose(commuter_editor);
  EXPECT_EQ(headings("DBGrid4"), "index\nsigma\nwage\n");
  analyst.choose(share_editor);
  EXPECT_EQ(headings("DBGrid3"),
            "ModeShare1\nModeShare2\nModeShare3\nModeShare4\nCostParameterA\nCostParameterB\n");
}

TEST_F(ParameterScreen, every_editor_is_the_active_window_and_lies_on_top) {
  for (const char* editor : editors) {
    analyst.choose("Zones");
    analyst.choose(editor);
    EXPECT_TRUE(area().activeSubWindow() == &window()) << editor;
    EXPECT_TRUE(area().subWindowList(QMdiArea::StackingOrder).back() == &window()) << editor;
    EXPECT_TRUE(analyst.sees("Form1")) << editor;
    as_handler([this] { program.form1.Unload(); });
    as_handler([this] { program.form2.Unload(); });
  }
}

TEST_F(ParameterScreen, every_editor_comes_from_behind_and_from_its_icon) {
  for (const char* editor : editors) {
    analyst.choose(commercial_editor);
    analyst.choose("Zones");
    analyst.choose(editor);
    EXPECT_TRUE(area().activeSubWindow() == &window()) << editor << " from behind";
    window().showMinimized();
    as_handler([&] {
      program.mdiform1.Inputs.set_enabled(true);
      program.mdiform1.Run.set_enabled(true);
    });
    analyst.choose(editor);
    EXPECT_FALSE(window().isMinimized()) << editor;
    EXPECT_TRUE(area().activeSubWindow() == &window()) << editor << " from its icon";
    as_handler([this] {
      program.form1.Unload();
      program.form2.Unload();
      program.mdiform1.Inputs.set_enabled(true);
    });
  }
}

TEST_F(ParameterScreen, a_grid_that_is_as_wide_as_the_form_does_not_take_its_width_from_an_icon) {
  analyst.choose(reliability_editor);
  const int width = program.form1->DBGrid2.width();
  window().showMinimized();
  analyst.choose(reliability_editor);
  EXPECT_EQ(program.form1->DBGrid2.width(), width);
  EXPECT_EQ(program.form1.width(), width);
}

/// Counts how often a form is painted until a box stands on the screen.
class PaintsBeforeBox : public QObject {
 public:
  explicit PaintsBeforeBox(QWidget& surface) : surface_(surface) { qApp->installEventFilter(this); }
  ~PaintsBeforeBox() override { qApp->removeEventFilter(this); }
  PaintsBeforeBox(const PaintsBeforeBox&) = delete;
  PaintsBeforeBox& operator=(const PaintsBeforeBox&) = delete;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched == &surface_ && !box_) ++count;
    if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched) != nullptr) box_ = true;
    return false;
  }

  int count = 0;

 private:
  QWidget& surface_;
  bool box_ = false;
};

TEST_F(ParameterScreen, the_form_is_painted_anew_before_the_question) {
  for (const auto& [editor, button] : {std::pair(commercial_editor, "Command3"),
                                       {commercial_editor, "Command1"},
                                       {commuter_editor, "Command4"},
                                       {commuter_editor, "Command5"},
                                       {commuter_editor, "Command6"}}) {
    analyst.choose(editor);
    analyst.find(button)->setFocus();
    QCoreApplication::processEvents();
    PaintsBeforeBox paints(*program.form1.surface());
    analyst.will_press("Yes");
    as_handler([this, name = button] {
      for (const auto& row : program.form1.events()) {
        if (row.control == name) row.handler(runtime::forms::no_index);
      }
    });
    EXPECT_GE(paints.count, 1) << editor << ' ' << button;
  }
}

TEST_F(ParameterScreen, exit_while_an_editor_is_open_drops_what_is_typed_and_ends_the_program) {
  analyst.choose(reliability_editor);
  edit("DBGrid2", 0, 0, "21");
  analyst.type("DBGrid2", "0.3");
  QTimer::singleShot(0, &program.mdiform1.window(), [this] { analyst.choose("Mnu_exit"); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_THAT(analyst.boxes(), ::testing::IsEmpty());
  EXPECT_THAT(app.rows("SELECT BaseSpeed, BaseHighwayShare FROM var_input"), ElementsAre("38.0|0.42"));
}

}  // namespace
