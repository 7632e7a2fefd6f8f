// The layout of the grid's form at several heights of its window.
#include <QMdiSubWindow>

#include "grid_page.h"
#include "runtime/forms/form_size.h"

namespace {

class GridResize : public testing_aids::GridPage {
 protected:
  void resize_window(int height) {
    program.mdiform1.window().resize(1000, height);
    ASSERT_TRUE(QTest::qWaitFor([this] { return program.frmDataGrid->Shape2.top() == expected_top(); }));
  }
  int height() { return runtime::forms::height_of(program.frmDataGrid); }
  int expected_top() { return height() - 1500 - 315 - 355; }

  /// Each control that the layout moves, with its top; of the grid its height, of the data control its left.
  std::map<std::string, int> layout() {
    auto& form = *program.frmDataGrid.operator->();
    std::map<std::string, int> places;
    for (int i = 0; i <= 4; ++i) places["txt_zonedit(" + std::to_string(i) + ")"] = form.txt_zonedit(i).top();
    for (int i = 0; i <= 4; ++i) places["Label2(" + std::to_string(i) + ")"] = form.Label2(i).top();
    places["Command1"] = form.Command1.top();
    places["cmd_zonedit(0)"] = form.cmd_zonedit(0).top();
    places["Shape1"] = form.Shape1.top();
    places["Shape2"] = form.Shape2.top();
    places["DataLu"] = form.DataLu.top();
    places["DataLu left"] = form.DataLu.left();
    places["grid height"] = form.grdDataGrid.height();
    return places;
  }

  /// The strip at the lower edge of a window of that height.
  static std::map<std::string, int> layout_of(int height) {
    const int destination = height - 1500;
    const int origin = height - 1815;
    const int captions = height - 2170;
    return {{"txt_zonedit(0)", origin},
            {"txt_zonedit(1)", origin},
            {"txt_zonedit(2)", destination},
            {"txt_zonedit(3)", destination},
            {"txt_zonedit(4)", origin},
            {"Label2(0)", captions},
            {"Label2(1)", captions + 100},
            {"Label2(2)", origin},
            {"Label2(3)", destination},
            {"Label2(4)", origin - 255},
            {"Command1", origin},
            {"cmd_zonedit(0)", origin},
            {"Shape1", captions},
            {"Shape2", captions},
            {"DataLu", captions},
            {"DataLu left", 5160},
            {"grid height", height - 2775}};
  }

  std::string destination_row() {
    auto& form = *program.frmDataGrid.operator->();
    std::string seen;
    for (const bool visible :
         {form.txt_zonedit(2).visible(), form.txt_zonedit(3).visible(), form.Label2(3).visible()}) {
      seen += visible ? "seen " : "hidden ";
    }
    return seen;
  }
};

TEST_F(GridResize, keeps_the_strip_at_the_lower_edge_at_every_height) {
  open_times(2);
  for (const int window : {760, 900, 640}) {
    resize_window(window);
    EXPECT_EQ(layout(), layout_of(height())) << window;
  }
}

TEST_F(GridResize, covers_no_caption_of_the_strip) {
  open_times(2);
  auto& form = *program.frmDataGrid.operator->();
  EXPECT_LE(form.Label2(1).top() + form.Label2(1).height(), form.txt_zonedit(1).top());
  EXPECT_LE(form.grdDataGrid.top() + form.grdDataGrid.height(), form.Shape1.top());
}

TEST_F(GridResize, keeps_a_grid_that_would_have_no_height) {
  open_times(2);
  resize_window(760);
  const int before = program.frmDataGrid->grdDataGrid.height();
  as_handler([this] { program.frmDataGrid.set_window_state(runtime::forms::WindowState::normal); });
  auto* window = program.frmDataGrid.surface()->parentWidget();
  while (qobject_cast<QMdiSubWindow*>(window) == nullptr) window = window->parentWidget();
  const int at_normal_size = program.frmDataGrid->grdDataGrid.height();
  EXPECT_NE(before, at_normal_size);
  window->resize(700, 150);
  ASSERT_TRUE(QTest::qWaitFor([this] { return program.frmDataGrid->Shape2.top() == expected_top(); }));
  EXPECT_EQ(program.frmDataGrid->grdDataGrid.height(), at_normal_size);
}

TEST_F(GridResize, leaves_a_minimized_form_as_it_was) {
  open_times(2);
  const auto before = layout();
  as_handler([this] { program.frmDataGrid.set_window_state(runtime::forms::WindowState::minimized); });
  QCoreApplication::processEvents();
  EXPECT_EQ(layout(), before);
}

TEST_F(GridResize, hides_the_destination_row_of_zones_and_keeps_the_word_origin) {
  open_population(2, {7});
  EXPECT_EQ(destination_row(), "hidden hidden hidden ");
  EXPECT_TRUE(program.frmDataGrid->Label2(2).visible());
}

TEST_F(GridResize, shows_the_destination_row_of_pairs) {
  open_times(2);
  EXPECT_EQ(destination_row(), "seen seen seen ");
}

TEST_F(GridResize, never_brings_the_destination_row_back_by_itself) {
  open_population(2, {7});
  as_handler([this] { program.form2->Text1(2).set_text("timdist"); });
  resize_window(900);
  EXPECT_EQ(destination_row(), "hidden hidden hidden ");
}

TEST_F(GridResize, hides_again_what_the_filter_has_shown) {
  open_population(2, {7});
  analyst.will_press("Cancel");
  press_on_grid("cmdFilter");
  EXPECT_EQ(destination_row(), "seen seen hidden ");
  resize_window(900);
  EXPECT_EQ(destination_row(), "hidden hidden hidden ");
}

}  // namespace
