// The parts of the grid that need no screen: the window of rows, cells as texts, blocks, finding a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "faults.h"
#include "runtime/forms/grid/block.h"
#include "runtime/forms/grid/cell_text.h"
#include "runtime/forms/grid/row_window.h"

namespace {

using namespace runtime::forms::grid;  // NOLINT(google-build-using-namespace)
using runtime::Value;
using runtime::engine::FieldKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing_aids::fault_of;

/// `count` rows of their own number, and how often they were asked for.
struct NumberedRows {
  std::int64_t count;
  std::vector<std::int64_t> asked;

  RowWindow::Reader reader() {
    return [this](std::int64_t first, int wanted) {
      asked.push_back(first);
      std::vector<Row> rows;
      for (auto row = first; row < count && row < first + wanted; ++row) rows.push_back({row});
      return rows;
    };
  }
};

std::int64_t number_in(const Row* row) {
  return row == nullptr ? -1 : std::get<std::int64_t>(row->front());
}

TEST(RowWindow, gives_any_row_of_a_huge_table_and_none_beyond_it) {
  NumberedRows source{99'980'001, {}};
  RowWindow window(source.reader());
  for (const std::int64_t row : {0LL, 99'980'000LL, 63LL, 64LL, 50'000'000LL}) {
    EXPECT_EQ(number_in(window.row(row)), row);
  }
  EXPECT_EQ(window.row(99'980'001), nullptr);
  EXPECT_EQ(window.row(-1), nullptr);
}

TEST(RowWindow, reads_a_screen_of_neighbours_once) {
  NumberedRows source{1000, {}};
  RowWindow window(source.reader());
  for (int turn = 0; turn < 2; ++turn) {
    for (std::int64_t row = 100; row < 160; ++row) window.row(row);
  }
  EXPECT_THAT(source.asked, ElementsAre(64, 128));
}

TEST(RowWindow, holds_no_more_than_its_bound_however_far_it_goes) {
  NumberedRows source{1'000'000, {}};
  RowWindow window(source.reader());
  for (std::int64_t row = 0; row < 1'000'000; row += 50) window.row(row);
  EXPECT_EQ(window.held(), RowWindow::block_rows * RowWindow::most_blocks);
}

TEST(RowWindow, keeps_what_was_asked_for_last) {
  NumberedRows source{100'000, {}};
  RowWindow window(source.reader());
  for (int block = 0; block < RowWindow::most_blocks; ++block) window.row(block * RowWindow::block_rows);
  window.row(0);
  window.row(90'000);
  source.asked.clear();
  window.row(0);
  EXPECT_THAT(source.asked, IsEmpty());
  window.row(RowWindow::block_rows);
  EXPECT_THAT(source.asked, ElementsAre(RowWindow::block_rows));
}

TEST(RowWindow, reads_anew_what_it_was_told_to_forget) {
  NumberedRows source{10, {}};
  RowWindow window(source.reader());
  window.row(3);
  window.forget();
  window.row(3);
  EXPECT_THAT(source.asked, ElementsAre(0, 0));
}

std::string refused(const std::string& text, FieldKind kind) {
  try {
    typed_value(text, kind, "wage");
  } catch (const Refusal& refusal) {
    return refusal.words;
  }
  return "taken";
}

TEST(CellText, shows_numbers_in_the_general_form_and_null_as_nothing) {
  EXPECT_EQ(shown_text(Value()), "");
  EXPECT_EQ(shown_text(std::int64_t{12}), "12");
  EXPECT_EQ(shown_text(0.1 + 0.2), "0.3");
  EXPECT_EQ(shown_text(14.51F), "14.51");
  EXPECT_EQ(shown_text(std::string("a b")), "a b");
}

TEST(CellText, copies_all_digits) {
  EXPECT_EQ(full_text(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(full_text(16777217.0F / 3), "5592405.5");
  EXPECT_EQ(full_text(Value()), "");
}

TEST(CellText, takes_numbers_as_people_write_them) {
  EXPECT_EQ(std::get<double>(typed_value(" .5", FieldKind::Double, "")), 0.5);
  EXPECT_EQ(std::get<double>(typed_value("+1e3 ", FieldKind::Double, "")), 1000);
  EXPECT_EQ(std::get<float>(typed_value("14.51", FieldKind::Single, "")), 14.51F);
  EXPECT_EQ(std::get<std::int64_t>(typed_value("-7", FieldKind::Whole, "")), -7);
  EXPECT_EQ(std::get<std::int64_t>(typed_value("12.0", FieldKind::Whole, "")), 12);
  EXPECT_EQ(std::get<std::string>(typed_value(" a ", FieldKind::Text, "")), " a ");
}

TEST(CellText, an_empty_text_is_null) {
  for (const auto kind : {FieldKind::Whole, FieldKind::Double, FieldKind::Single, FieldKind::Text}) {
    EXPECT_TRUE(runtime::is_null(typed_value("", kind, "")));
  }
  EXPECT_TRUE(runtime::is_null(typed_value("  ", FieldKind::Double, "")));
}

TEST(CellText, says_why_a_text_is_refused) {
  const std::string start = " can't be stored in the column \"wage\": ";
  EXPECT_EQ(refused("abc", FieldKind::Double), "\"abc\"" + start + "it is not a number.");
  EXPECT_EQ(refused("inf", FieldKind::Double), "\"inf\"" + start + "it is not a number.");
  EXPECT_EQ(
      refused("3,5", FieldKind::Double),
      "\"3,5\"" + start + "it is not a number. Write a point for the decimals, and no thousands separator.");
  EXPECT_EQ(refused("1e999", FieldKind::Double), "\"1e999\"" + start + "the number is too large.");
  EXPECT_EQ(refused("1e39", FieldKind::Single), "\"1e39\"" + start + "the number is too large.");
  EXPECT_EQ(refused("1.5", FieldKind::Whole), "\"1.5\"" + start + "only whole numbers can stand there.");
  EXPECT_EQ(refused("2147483648", FieldKind::Whole), "\"2147483648\"" + start + "the number is too large.");
  EXPECT_EQ(refused("-2147483648", FieldKind::Whole), "taken");
}

TEST(CellText, a_refusal_is_a_fault_with_its_words) {
  EXPECT_EQ(fault_of([] { typed_value("abc", FieldKind::Whole, "wage"); }), 3421);
}

TEST(CopiedCells, are_parted_by_tabs_and_line_ends_of_any_kind) {
  EXPECT_THAT(cells_of("1\t2\r\n3\t\n"), ElementsAre(ElementsAre("1", "2"), ElementsAre("3", "")));
  EXPECT_THAT(cells_of("7"), ElementsAre(ElementsAre("7")));
  EXPECT_THAT(cells_of("\n"), ElementsAre(ElementsAre("")));
  EXPECT_THAT(cells_of(""), IsEmpty());
}

}  // namespace
