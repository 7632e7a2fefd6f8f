#include <array>

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing::rest_of;

class Fill : public testing::ProjectFile {
 protected:
  Fill() {
    ask("CREATE TABLE sosec (Origin INTEGER, Destination INTEGER, Mining REAL, whole INTEGER, Sales REAL) "
        "STRICT;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 8)"
        " INSERT INTO sosec (Origin, Destination) SELECT i / 3 + 1, i % 3 + 1 FROM n;"
        "INSERT INTO field_types VALUES ('sosec', 'Sales', 'single')");
  }

  int fill(const char* field, const char* value, std::int64_t from = 1, std::int64_t to = 3) {
    const std::array keys{KeyRange{"origin", from, to}, KeyRange{"destination", 1, 2}};
    return fault_of([&] { database.Fill("sosec", field, value, keys); });
  }
  // "1 1 5" and so on of the rows that hold something, in table order.
  std::string filled(const char* field) {
    auto rows = database.OpenRecordset("sosec");
    std::string text;
    for (; !rows.eof(); rows.MoveNext())
      if (!is_null(rows.field(field)))
        text += testing::text_of(rows.field(0)) + " " + testing::text_of(rows.field(1)) + " " +
                testing::text_of(rows.field(field)) + "|";
    return text;
  }

  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

TEST_F(Fill, sets_the_combinations_of_its_ranges) {
  EXPECT_EQ(fill("Mining", "5", 2, 3), 0);
  EXPECT_EQ(filled("mining"), "2 1 5|2 2 5|3 1 5|3 2 5|");
  EXPECT_EQ(fill("mining", "-.5", 3, 3), 0);
  EXPECT_EQ(filled("mining"), "2 1 5|2 2 5|3 1 -0.5|3 2 -0.5|");
}

TEST_F(Fill, works_an_expression_out_for_each_row) {
  EXPECT_EQ(fill("Mining", " origin / [Destination] + 1"), 0);
  EXPECT_EQ(filled("mining"), "1 1 2|1 2 1.5|2 1 3|2 2 2|3 1 4|3 2 2.5|");
  EXPECT_EQ(fill("Mining", "IIf(origin > 1, Null, mining * 2)"), 0);
  EXPECT_EQ(filled("mining"), "1 1 4|1 2 3|");
}

TEST_F(Fill, stores_what_the_field_can_hold) {
  EXPECT_EQ(fill("Sales", "14.51", 1, 1), 0);
  EXPECT_EQ(filled("sales"), "1 1 14.51f|1 2 14.51f|");
  EXPECT_EQ(fill("whole", "\" 4 \"", 1, 1), 0);
  EXPECT_EQ(filled("whole"), "1 1 4|1 2 4|");
  EXPECT_EQ(fill("whole", "1.5"), 3421);
  EXPECT_EQ(fill("whole", "9999999999"), 3421);
  EXPECT_EQ(fill("mining", "\"word\""), 3421);
  EXPECT_EQ(fill("mining", "\"1e999\""), 3421);
  EXPECT_EQ(filled("mining"), "");
}

TEST_F(Fill, that_faults_has_done_the_combinations_before) {
  EXPECT_EQ(fill("mining", "1/(origin-2)"), 11);
  EXPECT_EQ(filled("mining"), "1 1 -1|1 2 -1|");
  EXPECT_EQ(fill("whole", "iif(origin = 2 and destination = 2, 0.5, 8)"), 3421);
  EXPECT_EQ(filled("whole"), "1 1 8|1 2 8|2 1 8|");
}

TEST_F(Fill, goes_by_the_keys_whatever_the_order_of_the_rows) {
  database.Execute("UPDATE sosec set origin = 4 - origin");
  EXPECT_EQ(fill("mining", "1/(origin-2)"), 11);
  EXPECT_EQ(filled("mining"), "1 1 -1|1 2 -1|");
}

TEST_F(Fill, faults_only_where_a_row_is) {
  EXPECT_EQ(fill("mining", "1/0", 7, 9), 0);
  EXPECT_EQ(fill("mining", "1/0", 3, 9), 11);
  EXPECT_EQ(filled("mining"), "");
  EXPECT_EQ(fill("mining", "nonsense +", 3, 2), 0);
}

TEST_F(Fill, takes_one_expression_and_no_more) {
  for (const char* value : {"", " ", "5, destination = 3", "5 where 1=1", "5; drop table sosec", "5;", "5 6",
                            "(5", "(select 1)", "5 /* 6 */", "mining = "})
    EXPECT_EQ(fill("mining", value), 3144) << value;
  EXPECT_EQ(fill("mining", "nosuch"), 3061);
  EXPECT_EQ(fill("mining", "Commuter.sigma"), 3061);
  EXPECT_EQ(fill("mining", "nosuch(1)"), 3085);
  EXPECT_EQ(fill("mining", "1e999"), 6);
  EXPECT_EQ(filled("mining"), "");
}

TEST_F(Fill, of_a_field_that_is_none_faults) {
  EXPECT_EQ(fill("", "5"), 3144);
  EXPECT_EQ(fill("mining = 1, whole", "5"), 3144);
  EXPECT_EQ(fill("nosuch", "5"), 3061);
  const std::array keys{KeyRange{"zone", 1, 2}};
  EXPECT_EQ(fault_of([&] { database.Fill("nosuch", "a", "1", keys); }), 3078);
  EXPECT_EQ(fault_of([&] { database.Fill("sosec", "mining", "1", keys); }), 3061);
}

TEST_F(Fill, within_a_level_is_taken_back_with_it) {
  workspace.BeginTrans();
  EXPECT_EQ(fill("mining", "5"), 0);
  workspace.Rollback();
  EXPECT_EQ(filled("mining"), "");
}

TEST_F(Fill, is_durable_when_its_handler_ends_also_after_a_fault) {
  EXPECT_EQ(fill("mining", "1/(origin-2)"), 11);
  workspace.handler_ended();
  EXPECT_EQ(ask("SELECT count(mining) FROM sosec"), "2");
}

TEST_F(Fill, tells_how_far_it_is) {
  std::string told;
  workspace.progress = [&](std::int64_t done, std::int64_t total) {
    told += std::to_string(done) + "/" + std::to_string(total) + " ";
  };
  fill("mining", "5");
  EXPECT_EQ(told, "9/9 ");
}

}  // namespace
}  // namespace runtime::engine
