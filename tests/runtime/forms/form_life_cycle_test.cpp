#include "small_form.h"

namespace {

namespace rf = runtime::forms;
using rf::Event;
using rf::Kind;
using rf::WindowState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::data_row;
using testing_aids::fault_of;
using testing_aids::row;
using testing_aids::Rows;
using testing_aids::SmallForm;

const Rows one_of_each{
    row("Text1", 0, Kind::TextBox, "as designed"),
    row("Command1", 0, Kind::CommandButton, "Go", {1500, 600, 1500, 375}),
    row("Check1", rf::no_index, Kind::CheckBox, "Tick", {1500, 1200, 1500, 375}),
};

class FormLifeCycle : public testing_aids::SmallFormTest {
 protected:
  /// A click on the form's button runs the code.
  void when_clicked(std::function<void()> code) {
    form.set_events({{"Command1", Event::Click, [code = std::move(code)](int) { code(); }}});
  }

  SmallForm form{desktop, one_of_each};
};

TEST_F(FormLifeCycle, is_loaded_by_the_first_reference_to_a_control_and_stays_invisible) {
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(form->Text1(0).text(), "as designed");
  EXPECT_TRUE(form.loaded());
  EXPECT_FALSE(form.visible());
  EXPECT_FALSE(analyst.sees("Small"));
  EXPECT_THAT(desktop.loaded_forms, ElementsAre(&form));
}

TEST_F(FormLifeCycle, a_variable_of_the_form_is_no_reference) {
  form.Variable = 3;
  EXPECT_EQ(form.Variable, 3);
  EXPECT_FALSE(form.loaded());
}

TEST_F(FormLifeCycle, appears_when_it_is_shown) {
  form->Check1.set_value(1);
  form.Show();
  EXPECT_TRUE(analyst.sees("Small"));
  EXPECT_TRUE(analyst.can_use("Command1(0)"));
  EXPECT_EQ(form->Check1.value(), 1);
}

TEST_F(FormLifeCycle, controls_come_as_designed_at_each_load) {
  form->Text1(0).set_text("typed");
  form->Text1(0).set_bold(true);
  form->Command1(0).set_caption("Went");
  form->Command1(0).set_place({0, 0, 15, 15});
  form->Command1(0).set_visible(false);
  form->Command1(0).set_enabled(false);
  form->Check1.set_value(1);
  form.set_caption("Other");
  form.set_window_state(WindowState::maximized);
  form.Unload();
  EXPECT_EQ(form->Text1(0).text(), "as designed");
  EXPECT_FALSE(form->Text1(0).bold());
  EXPECT_EQ(form->Command1(0).caption(), "Go");
  EXPECT_EQ(form->Command1(0).left(), 1500);
  EXPECT_EQ(form->Command1(0).height(), 375);
  EXPECT_TRUE(form->Command1(0).visible());
  EXPECT_TRUE(form->Command1(0).is_enabled());
  EXPECT_EQ(form->Check1.value(), 0);
  EXPECT_EQ(form.caption(), "Small form");
  EXPECT_EQ(form.window_state(), WindowState::normal);
}

TEST_F(FormLifeCycle, variables_outlive_the_unload) {
  form.Show();
  form.Variable = 7;
  form.Unload();
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(form.Variable, 7);
  form.Show();
  EXPECT_EQ(form.Variable, 7);
}

TEST_F(FormLifeCycle, unloads_inside_the_handler_of_its_own_button) {
  when_clicked([this] { form.Unload(); });
  form.Show();
  analyst.click("Command1(0)");
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(analyst.find("Small"), nullptr);
  EXPECT_EQ(form.surface(), nullptr);
  EXPECT_THAT(desktop.loaded_forms, IsEmpty());
}

TEST_F(FormLifeCycle, reloads_itself_inside_its_own_handler_and_only_the_new_one_is_found) {
  when_clicked([this] {
    form.Unload();
    form.Show();
    EXPECT_EQ(window.findChildren<QWidget*>(QStringLiteral("Small")).size(), 1);
    EXPECT_EQ(analyst.find("Small"), form.surface());
    form->Text1(0).set_text("new");
  });
  form.Show();
  for (int round = 0; round < 3; ++round) {
    analyst.click("Command1(0)");
    testing_aids::delete_unloaded_forms();
    EXPECT_EQ(analyst.text_of("Text1(0)"), "new");
  }
}

TEST_F(FormLifeCycle, a_fault_of_the_load_handler_leaves_it_unloaded) {
  form.set_events({{"", Event::Load, [](int) { throw runtime::Fault(6); }}});
  EXPECT_EQ(fault_of([this] { form->Text1(0).set_text("x"); }), 6);
  EXPECT_FALSE(form.loaded());
  EXPECT_THAT(desktop.loaded_forms, IsEmpty());
  EXPECT_EQ(analyst.find("Small"), nullptr);
  form.set_events({});
  form.Show();
  EXPECT_TRUE(analyst.sees("Small"));
}

TEST_F(FormLifeCycle, a_data_control_that_cannot_open_leaves_it_unloaded_and_unshown) {
  SmallForm bound(desktop, {data_row(0, "nosuch")}, "Bound");
  EXPECT_EQ(fault_of([&] { bound.Show(); }), 3078);
  EXPECT_FALSE(bound.loaded());
  EXPECT_FALSE(bound.visible());
}

TEST_F(FormLifeCycle, set_not_visible_loads_it_hidden_or_hides_it) {
  form.hide();
  EXPECT_TRUE(form.loaded());
  EXPECT_FALSE(analyst.sees("Small"));
  form.Show();
  form.hide();
  EXPECT_TRUE(form.loaded());
  EXPECT_FALSE(analyst.sees("Small"));
}

TEST_F(FormLifeCycle, an_explicit_load_shows_also_one_that_was_loaded_invisible) {
  form.Load();
  EXPECT_TRUE(analyst.sees("Small"));
  form.Unload();
  form.hide();
  form.Load();
  EXPECT_TRUE(analyst.sees("Small"));
}

TEST_F(FormLifeCycle, one_that_appears_at_load_is_shown_by_a_mere_reference) {
  SmallForm eager(desktop, one_of_each, "Eager", true);
  eager->Text1(0).set_text("x");
  EXPECT_TRUE(eager.visible());
  EXPECT_TRUE(analyst.sees("Eager"));
}

TEST_F(FormLifeCycle, show_brings_a_minimised_form_back_as_it_was_before) {
  form.set_window_state(WindowState::maximized);
  form.Show();
  form.set_window_state(WindowState::minimized);
  EXPECT_EQ(form.window_state(), WindowState::minimized);
  form.Show();
  EXPECT_EQ(form.window_state(), WindowState::maximized);
  EXPECT_TRUE(analyst.find("Small")->isVisible());
}

TEST_F(FormLifeCycle, minimising_an_invisible_form_leaves_it_invisible) {
  form.hide();
  form.set_window_state(WindowState::minimized);
  EXPECT_FALSE(form.visible());
  EXPECT_FALSE(analyst.sees("Small"));
}

TEST_F(FormLifeCycle, a_window_state_set_before_the_show_waits_for_it) {
  form.set_window_state(WindowState::maximized);
  EXPECT_FALSE(analyst.sees("Small"));
  form.Show();
  EXPECT_GE(form.surface()->width(), desktop.main_window->width() - 40);
}

TEST_F(FormLifeCycle, unloading_what_is_not_loaded_does_nothing) {
  form.Unload();
  form.unload_without_storing();
  EXPECT_FALSE(form.loaded());
}

TEST_F(FormLifeCycle, the_load_handler_finds_controls_and_bound_boxes_filled) {
  SmallForm bound(desktop,
                  {data_row(0, "zones"),
                   testing_aids::bound_row("MaskEdBox1", -1, Kind::MaskEdBox, "####", 0, "numzones")},
                  "Bound");
  std::string seen;
  bound.set_events({{"", Event::Load, [&](int) { seen = bound->MaskEdBox1.text(); }}});
  bound.hide();
  EXPECT_EQ(seen, "24__");
}

TEST_F(FormLifeCycle, forms_are_listed_in_the_order_of_their_loads) {
  SmallForm other(desktop, one_of_each, "Other");
  other.hide();
  form.hide();
  EXPECT_THAT(desktop.loaded_forms, ElementsAre(&other, &form));
  other.Unload();
  other.hide();
  EXPECT_THAT(desktop.loaded_forms, ElementsAre(&form, &other));
}

}  // namespace
