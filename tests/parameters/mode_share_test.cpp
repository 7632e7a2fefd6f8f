// The test of the mode shares: by the Save that the wages leave on the form, and by no other.
#include "parameter_page.h"

namespace {

using ::testing::ElementsAre;

class ModeShares : public testing_aids::ParameterPage {
 protected:
  void open_with(const std::string& shares) {
    app.sql("UPDATE Commute_Param SET (ModeShare1, ModeShare2, ModeShare3, ModeShare4) = (" + shares + ")");
    analyst.choose(commuter_editor);
    analyst.choose(share_editor);
  }
  static constexpr const char* refusal = "Mode Shares Must Total 1.0";
};

struct Shares {
  const char* name;
  const char* values;
  bool pass;
};

void PrintTo(const Shares& shares, std::ostream* stream) {
  *stream << shares.name;
}

class ShareSum : public ModeShares, public ::testing::WithParamInterface<Shares> {};

TEST_P(ShareSum, is_tested_in_single_precision) {
  open_with(GetParam().values);
  press("Command4", GetParam().pass ? "No" : "OK");
  EXPECT_THAT(analyst.texts(), ElementsAre(GetParam().pass ? question : refusal));
}

INSTANTIATE_TEST_SUITE_P(, ShareSum,
                         ::testing::Values(Shares{"lower_bound", "0.98, 0, 0, 0", true},
                                           Shares{"lower_bound_in_parts", "0.5, 0.25, 0.125, 0.105", true},
                                           Shares{"upper_bound", "1.02, 0, 0, 0", true},
                                           Shares{"above_upper_bound", "1.0201, 0, 0, 0", false},
                                           Shares{"below_lower_bound", "0.9799, 0, 0, 0", false},
                                           Shares{"last_share_counts", "0, 0, 0, 1", true},
                                           Shares{"whole", "0.25, 0.25, 0.25, 0.25", true},
                                           Shares{"half", "0.5, 0, 0, 0", false}),
                         [](const auto& shares) { return shares.param.name; });

TEST_F(ModeShares, a_refusal_leaves_everything_as_it_stands) {
  open_with("0.5, 0, 0, 0");
  edit("DBGrid3", 0, 1, "0.25");
  const int levels = program.desktop.workspace.levels();
  analyst.will_press("OK");
  analyst.click("Command4");
  EXPECT_THAT(analyst.texts(), ElementsAre(refusal));
  EXPECT_EQ(analyst.last_box().icon, 2) << "an exclamation mark";
  EXPECT_THAT(analyst.last_box().buttons, ElementsAre("OK"));
  EXPECT_TRUE(program.form1.visible());
  EXPECT_FALSE(menus_enabled());
  EXPECT_EQ(program.desktop.workspace.levels(), levels);
  EXPECT_EQ(program.form1->DBGrid3.column_value(1), runtime::Value(0.25));
  EXPECT_EQ(shares(), "0.5|0.0|0.0|0.0|0.25|2.38");
}

TEST_F(ModeShares, a_save_that_passes_leaves_the_menus_off) {
  open_with("0.25, 0.25, 0.25, 0.25");
  press("Command4", "Yes");
  EXPECT_FALSE(program.form1.loaded());
  EXPECT_FALSE(menus_enabled());
}

TEST_F(ModeShares, what_is_typed_counts_before_it_is_stored) {
  open_with("0.25, 0.25, 0.25, 0.25");
  type_into("DBGrid3", 0, 3, "0.5");
  press("Command4", "OK");
  EXPECT_THAT(analyst.texts(), ElementsAre(refusal));
  EXPECT_TRUE(program.form1->DBGrid3.edit_active());
}

TEST_F(ModeShares, an_empty_share_is_a_fault_of_null) {
  open_with("0.5, 0.5, NULL, 0");
  press("Command4", "OK");
  EXPECT_EQ(analyst.last_box().name, "RuntimeError");
  EXPECT_EQ(last_box(), "Run-time error '94':\n\nInvalid use of Null");
  EXPECT_TRUE(program.form1.visible());
  EXPECT_FALSE(menus_enabled());
}

TEST_F(ModeShares, a_share_that_was_emptied_is_a_fault_of_null) {
  open_with("0.5, 0.5, 0, 0");
  go_to("DBGrid3", 0, 2);
  key("DBGrid3", Qt::Key_F2);
  key("DBGrid3", Qt::Key_Backspace);
  ASSERT_TRUE(program.form1->DBGrid3.edit_active());
  press("Command4", "OK");
  EXPECT_EQ(last_box(), "Run-time error '94':\n\nInvalid use of Null");
  key("DBGrid3", Qt::Key_Tab);
  ASSERT_FALSE(program.form1->DBGrid3.edit_active());
  press("Command4", "OK");
  EXPECT_EQ(last_box(), "Run-time error '94':\n\nInvalid use of Null");
  EXPECT_TRUE(program.form1.visible());
}

TEST_F(ModeShares, a_share_that_was_emptied_is_taken_by_the_plain_save) {
  analyst.choose(share_editor);
  go_to("DBGrid3", 0, 2);
  key("DBGrid3", Qt::Key_Delete);
  press("Command3", "Yes");
  EXPECT_EQ(shares(), "0.7629|0.0929|null|0.0048|0.25|2.38");
}

TEST_F(ModeShares, a_word_that_is_being_typed_is_a_type_mismatch) {
  open_with("0.25, 0.25, 0.25, 0.25");
  type_into("DBGrid3", 0, 3, "much");
  press("Command4", "OK");
  EXPECT_EQ(last_box(), "Run-time error '13':\n\nType mismatch");
  EXPECT_TRUE(program.form1->DBGrid3.edit_active());
}

TEST_F(ModeShares, a_sum_beyond_single_precision_is_an_overflow) {
  for (const char* shares : {"1e39, 0, 0, 0", "2e38, 2e38, 0, 0", "0, 0, 0, -1e300"}) {
    open_with(shares);
    press("Command4", "OK");
    EXPECT_EQ(last_box(), "Run-time error '6':\n\nOverflow") << shares;
    press("Command6", "Yes");
  }
}

TEST_F(ModeShares, of_two_records_the_current_one_is_tested) {
  app.sql("INSERT INTO Commute_Param VALUES (0.5, 0, 0, 0, 1, 2)");
  analyst.choose(commuter_editor);
  analyst.choose(share_editor);
  key("DBGrid3", Qt::Key_Down);
  press("Command4", "OK");
  EXPECT_EQ(last_box(), refusal);
  EXPECT_EQ(program.form1->DBGrid3.current_row(), 1);
  key("DBGrid3", Qt::Key_Up);
  press("Command4", "No");
  EXPECT_EQ(last_box(), question);
}

TEST_F(ModeShares, the_cost_parameters_take_no_part) {
  app.sql("UPDATE Commute_Param SET CostParameterA = NULL, CostParameterB = 100");
  analyst.choose(commuter_editor);
  analyst.choose(share_editor);
  press("Command4", "No");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
}

TEST_F(ModeShares, the_plain_save_takes_shares_of_any_sum) {
  analyst.choose(share_editor);
  edit("DBGrid3", 0, 0, "0.2629");
  press("Command3", "Yes");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
  EXPECT_EQ(shares(), "0.2629|0.0929|0.1394|0.0048|0.25|2.38");
  EXPECT_TRUE(menus_enabled());
}

TEST_F(ModeShares, the_commuter_save_of_another_editor_does_not_look_at_the_shares) {
  app.sql("UPDATE Commute_Param SET ModeShare1 = 7");
  analyst.choose(commuter_editor);
  press("Command4", "No");
  analyst.choose(reliability_editor);
  press("Command4", "No");
  EXPECT_THAT(analyst.texts(), ElementsAre(question, question));
}

TEST_F(ModeShares, the_commuter_cancel_tests_nothing) {
  open_with("0.5, 0, 0, 0");
  as_handler([this] { program.form1->Command5.set_top(4600); });  // out from under the grid
  press("Command5", "No");
  EXPECT_THAT(analyst.texts(), ElementsAre(question));
  EXPECT_TRUE(menus_enabled());
}

}  // namespace
