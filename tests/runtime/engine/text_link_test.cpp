#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "runtime/engine/project_file.h"

namespace runtime::engine {
namespace {

using testing::fault_of;
using testing::rest_of;

constexpr const char* pairs_to_read =
    "[trips.csv]\r\nColNameHeader=False\r\nFormat=CSVDelimited\r\nCOL1=Origin Integer\r\nCOL2=Destination "
    "Integer\r\nCOL3=Mining DOUBLE\r\n";
constexpr const char* zones_to_write =
    "[trips.csv]\r\nColNameHeader=False\r\nFormat=FixedLength\r\nCOL1=Zone Integer Width 10\r\nCOL2=Sales "
    "Double "
    "Width 10\r\n";

class TextLink : public testing::ProjectFile {
 protected:
  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(directory / name, std::ios::binary) << bytes;
  }
  std::string bytes() const {
    std::ifstream stream(directory / "trips.csv", std::ios::binary);
    if (!stream) return "(none)";
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void link() {
    auto definition = database.CreateTableDef("csvtable");
    definition.Connect = "text; database=" + directory.string();
    definition.SourceTableName = "trips.csv";
    database.AppendTableDef(definition);
  }
  std::string all_of(const std::string& table) {
    auto rows = database.OpenRecordset(table);
    return rest_of(rows);
  }
  /// What the link gives for a file of these bytes: "a b c|" a row, or the words of its fault.
  std::string read(const std::string& description, const std::string& file,
                   const std::string& columns = "Origin integer, Destination integer, Mining DOUBLE") {
    put("schema.ini", description);
    put("trips.csv", file);
    return poured(columns);
  }
  std::string poured(const std::string& columns) {
    ignoring_faults([&] { database.Execute("DROP TABLE csvtable"); });
    ignoring_faults([&] { database.Execute("DROP TABLE sosec"); });
    try {
      link();
      database.Execute("CREATE TABLE sosec (" + columns + ")");
      database.Execute("insert into sosec select * from csvtable");
      return all_of("sosec");
    } catch (const Fault& fault) {
      return std::to_string(fault.number) + " " + fault.what();
    }
  }

  Workspace workspace;
  Database database = workspace.OpenDatabase(file.string());
};

TEST_F(TextLink, reads_a_skeleton_and_leaves_absent_columns_null) {
  EXPECT_EQ(read(pairs_to_read, "\r\n 1 ,           1 \r\n 1 ,           2 \r\n"), "1 1 -|1 2 -|");
}

TEST_F(TextLink, appends_to_the_file) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "");
  link();
  database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter");
  EXPECT_EQ(bytes(), "         0     11.27\r\n         1     11.35\r\n         7     13.05\r\n");
}

TEST_F(TextLink, finds_its_file_in_a_directory_with_a_semicolon_in_its_name) {
  std::filesystem::create_directory(directory / "a; b;c");
  put("a; b;c/schema.ini", pairs_to_read);
  put("a; b;c/trips.csv", "1,2,3\r\n");
  database.AppendTableDef({"csvtable", "text; database=" + (directory / "a; b;c").string(), "trips.csv"});
  database.Execute("CREATE TABLE sosec (Origin integer, Destination integer, Mining DOUBLE)");
  database.Execute("insert into sosec select * from csvtable");
  EXPECT_EQ(all_of("sosec"), "1 2 3|");
}

TEST_F(TextLink, takes_any_line_end_and_blanks_around_numbers) {
  EXPECT_EQ(read(pairs_to_read, "1,2,3.5\n  4\t, +5 ,  -6e1  \r\n7,8"), "1 2 3.5|4 5 -60|7 8 -|");
}

TEST_F(TextLink, reads_an_empty_field_as_null) {
  EXPECT_EQ(read(pairs_to_read, ",2,\r\n 1, ,3\r\n"), "- 2 -|1 - 3|");
}

TEST_F(TextLink, of_an_empty_file_has_no_rows) {
  EXPECT_EQ(read(pairs_to_read, ""), "");
  EXPECT_EQ(read(pairs_to_read, "\r\n"), "");
}

TEST_F(TextLink, reads_fixed_columns_and_a_line_that_ends_early) {
  EXPECT_EQ(read(zones_to_write, "         1      2.5\r\n         2\r\n         3          \r\n",
                 "Zone integer, Sales DOUBLE"),
            "1 2.5|2 -|3 -|");
}

TEST_F(TextLink, passes_over_the_heading) {
  EXPECT_EQ(read("[TRIPS.CSV]\nformat = csvdelimited\nCOLNAMEHEADER=true\ncol1=Origin integer\n",
                 "Origin\r\n5\r\n", "Origin integer"),
            "5|");
}

TEST_F(TextLink, reads_words_in_quotes) {
  EXPECT_EQ(read("[trips.csv]\nCOL1=Name Char\nCOL2=\"Long Name\" TEXT Width 50\n",
                 "\"a,\"\"b\"\" \" , plain \n", "a text, b text"),
            "a,\"b\"  plain|");
}

TEST_F(TextLink, reads_lines_beyond_its_buffer) {
  std::string file;
  for (int i = 0; i < 20000; ++i) file += "1,2,3\r\n";
  read(pairs_to_read, file);
  EXPECT_EQ(database.OpenRecordset("sosec").RecordCount(), 20000);
}

TEST_F(TextLink, tells_file_and_line_of_what_does_not_fit) {
  const std::string words = "3349 The text does not fit its description: trips.csv, line ";
  EXPECT_EQ(read(pairs_to_read, "\r\n1,2\r\n1,x\r\n"), words + "3: 'x' is no number for 'Destination'");
  EXPECT_EQ(read(pairs_to_read, "1,2.5\n"), words + "1: '2.5' is no whole number for 'Destination'");
  EXPECT_EQ(read(pairs_to_read, "1,2,1e999\n"), words + "1: '1e999' is no number for 'Mining'");
  EXPECT_EQ(read(pairs_to_read, "1,2,nan\n"), words + "1: 'nan' is no number for 'Mining'");
  EXPECT_EQ(read(pairs_to_read, "1,2,3,4\n"), words + "1: the line has more fields than columns");
  EXPECT_EQ(read(pairs_to_read, "1,2\n\n1,3\n"), words + "2: the line is empty");
  EXPECT_EQ(read(pairs_to_read, "1,\"2\n"), words + "1: a quote has no end");
  EXPECT_EQ(read(pairs_to_read, "1,2\n" + std::string(70000, '1')), words + "2: the line is too long");
  EXPECT_EQ(read(zones_to_write, "         1         2x\n", "Zone integer, Sales DOUBLE"),
            words + "1: the line is longer than its columns");
  EXPECT_EQ(all_of("sosec"), "");
}

TEST_F(TextLink, tells_what_is_wrong_with_the_description) {
  const std::string words = "3349 The text does not fit its description: schema.ini, line ";
  const auto described = [this](const std::string& lines) { return read("[trips.csv]\n" + lines, ""); };
  EXPECT_EQ(described("Format=TabDelimited\n"),
            words + "2: 'TabDelimited' is neither FixedLength nor CSVDelimited");
  EXPECT_EQ(described("ColNameHeader=perhaps\n"), words + "2: 'perhaps' is neither True nor False");
  EXPECT_EQ(described("nonsense\n"), words + "2: 'nonsense' tells nothing");
  EXPECT_EQ(described("COL2=a Integer\n"), words + "2: column 1 is missing");
  EXPECT_EQ(described("COL1=a Memo\n"), words + "2: 'Memo' is no type");
  EXPECT_EQ(described("COL1=a Integer Width\n"), words + "2: the width of a column does not fit");
  EXPECT_EQ(described("COL1=a Integer\nCOL2=A Integer\n"), words + "3: there are two columns 'A'");
  EXPECT_EQ(described("Format=FixedLength\nCOL1=a Integer\n"), words + "3: the column 'a' has no width");
  EXPECT_EQ(described("Format=CSVDelimited\n"), words + "2: no column is told");
}

TEST_F(TextLink, without_a_file_or_its_description_is_told_when_it_is_used) {
  EXPECT_EQ(poured("a integer").substr(0, 4), "3625");
  put("schema.ini", "[other.csv]\nCOL1=a Integer\n");
  EXPECT_EQ(poured("a integer"), "3625 No schema.ini describes the text file 'trips.csv'");
  put("schema.ini", "[trips.csv]\nCOL1=a Integer\n");
  EXPECT_EQ(poured("a integer").substr(0, 4), "3011");
}

// A pipe without a writer: who opens it waits for ever.
TEST_F(TextLink, reads_and_appends_to_plain_files_only) {
  const std::string columns = "Origin integer, Destination integer, Mining DOUBLE";
  for (const std::string name : {"schema.ini", "trips.csv"}) {
    const std::string path = (directory / name).string();
    EXPECT_EQ(read(pairs_to_read, "1,2,0.5\r\n"), "1 2 0.5|");
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(fault_of([&] { database.Execute("insert into csvtable select * from sosec"); }), 75) << name;
    EXPECT_EQ(poured(columns), "75 Path/File access error: " + path);
    std::filesystem::remove(path);
    std::filesystem::create_symlink("/dev/zero", path);
    EXPECT_EQ(poured(columns), "75 Path/File access error: " + path);
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_EQ(poured(columns), "75 Path/File access error: " + path);
    std::filesystem::remove(path);
  }
}

TEST_F(TextLink, needs_a_directory_and_a_free_name) {
  EXPECT_EQ(fault_of([&] {
              database.AppendTableDef({"csvtable", "text; database=/no/such/place", "t.csv"});
            }),
            3044);
  EXPECT_EQ(fault_of([&] { database.AppendTableDef({"commuter", "text; database=/", "t.csv"}); }), 3010);
  link();
  EXPECT_EQ(fault_of([&] { link(); }), 3010);
  EXPECT_EQ(fault_of([&] { database.Execute("CREATE TABLE CSVTABLE (a integer)"); }), 3010);
}

TEST_F(TextLink, is_dropped_and_leaves_the_file) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "         1       2.5\r\n");
  link();
  database.Execute("Drop TABLE CSVTable");
  EXPECT_EQ(bytes(), "         1       2.5\r\n");
  EXPECT_EQ(fault_of([&] { database.Execute("Drop TABLE csvtable"); }), 3078);
}

TEST_F(TextLink, outlives_the_connection_as_a_row) {
  link();
  workspace.handler_ended();
  database.Close();
  EXPECT_EQ(ask("SELECT name || '|' || source FROM table_links"), "csvtable|trips.csv");
  EXPECT_EQ(ask("SELECT count(*) FROM sqlite_schema WHERE name = 'csvtable'"), "0");
  database = workspace.OpenDatabase(file.string());
  database.Execute("Drop TABLE csvtable");
  EXPECT_EQ(fault_of([&] { database.Execute("Drop TABLE csvtable"); }), 3078);
}

TEST_F(TextLink, goes_and_comes_back_with_a_rollback) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "");
  workspace.BeginTrans();
  link();
  database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter");
  workspace.Rollback();
  EXPECT_EQ(fault_of([&] { database.Execute("Drop TABLE csvtable"); }), 3078);
  link();
  workspace.BeginTrans();
  database.Execute("Drop TABLE csvtable");
  workspace.Rollback();
  database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter where index = 7");
  EXPECT_TRUE(bytes().ends_with("         7     13.05\r\n"));
}

TEST_F(TextLink, rounds_a_number_to_its_width_and_never_cuts_it) {
  const auto written = [this](const std::string& number) {
    put("schema.ini", zones_to_write);
    put("trips.csv", "");
    ignoring_faults([&] { database.Execute("Drop TABLE csvtable"); });
    link();
    database.Execute("UPDATE Commuter set sigma = " + number + " where index = 1");
    const int fault = fault_of(
        [&] { database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter where index = 1"); });
    return fault == 0 ? bytes() : std::to_string(fault) + bytes();
  };
  EXPECT_EQ(written("0.5"), "         1       0.5\r\n");
  EXPECT_EQ(written("-0.5"), "         1      -0.5\r\n");
  EXPECT_EQ(written("NULL"), "         1          \r\n");
  EXPECT_EQ(written("1234567890"), "         11234567890\r\n");
  EXPECT_EQ(written("12345678901"), "3349");
  EXPECT_EQ(written("-1234567890"), "3349");
  EXPECT_EQ(written("1/3"), "         10.33333333\r\n");
  EXPECT_EQ(written("-2/3"), "         1-0.6666667\r\n");
  EXPECT_EQ(written("9.66666666666"), "         19.66666667\r\n");
  EXPECT_EQ(written("9.99999999999"), "         1        10\r\n");
  EXPECT_EQ(written("123456789.6"), "         1 123456790\r\n");
  EXPECT_EQ(written("9999999999.6"), "3349");
  EXPECT_EQ(written("1/10^12"), "         1         0\r\n");
}

TEST_F(TextLink, leaves_the_file_as_it_was_when_a_line_does_not_fit) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "         5         6");
  link();
  database.Execute("UPDATE Commuter set sigma = 12345678901 where index = 7");
  EXPECT_EQ(fault_of([&] { database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter"); }),
            3349);
  EXPECT_EQ(bytes(), "         5         6");
  database.Execute("INSERT INTO csvtable SELECT index, sigma from Commuter where index = 1");
  EXPECT_EQ(bytes(), "         5         6\r\n         1     11.35\r\n");
}

TEST_F(TextLink, writes_commas_a_heading_and_words_in_quotes) {
  put("schema.ini",
      "[trips.csv]\nColNameHeader=True\nCOL1=Zone Integer\nCOL2=Sales Double\nCOL3=Name Text\n");
  put("trips.csv", "");
  link();
  database.Execute("UPDATE Commuter set sigma = NULL where index = 1");
  database.Execute("INSERT INTO csvtable SELECT index, sigma, 'a \"b\"' from Commuter where index < 2");
  EXPECT_EQ(bytes(), "\"Zone\",\"Sales\",\"Name\"\r\n0,11.27,\"a \"\"b\"\"\"\r\n1,,\"a \"\"b\"\"\"\r\n");
}

TEST_F(TextLink, refuses_a_word_for_a_number_and_a_change_of_a_row) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "         1         2\r\n");
  link();
  EXPECT_EQ(fault_of([&] { database.Execute("INSERT INTO csvtable SELECT index, 'x' from Commuter"); }),
            3421);
  EXPECT_EQ(fault_of([&] { database.Execute("INSERT INTO csvtable SELECT sigma, sigma from Commuter"); }),
            3421);
  EXPECT_EQ(fault_of([&] { database.Execute("DELETE * from csvtable"); }), 3251);
  EXPECT_EQ(bytes(), "         1         2\r\n");
}

TEST_F(TextLink, is_out_of_reach_of_what_a_person_types) {
  put("schema.ini", zones_to_write);
  put("trips.csv", "         1         2\r\n");
  link();
  EXPECT_NE(fault_of([&] { database.ExecuteOn("Commuter", "UPDATE csvtable set Sales = 1"); }), 0);
}

TEST_F(TextLink, tells_how_far_a_load_and_an_export_are) {
  put("schema.ini", zones_to_write);
  std::string file;
  for (int i = 0; i < 20000; ++i) file += "         1         2\r\n";
  put("trips.csv", file);
  link();
  database.Execute("CREATE TABLE sosec (Zone integer, Sales DOUBLE)");
  int tellings = 0;
  std::int64_t last_done = 0;
  workspace.progress = [&](std::int64_t done, std::int64_t total) {
    ++tellings;
    EXPECT_GT(done, last_done);
    EXPECT_LE(done, total);
    last_done = done;
  };
  database.Execute("insert into sosec select * from csvtable");
  EXPECT_EQ(tellings, 2);
  last_done = 0;
  database.Execute("INSERT INTO csvtable SELECT Zone, Sales from sosec");
  EXPECT_EQ(tellings, 4);
  last_done = 0;
  std::int64_t rows = 0;
  database.OpenRecordset("sosec").for_each([&](const RecordView&) { ++rows; });
  EXPECT_EQ(rows, 20000);
  EXPECT_EQ(tellings, 6);
}

TEST_F(TextLink, joins_two_tables_of_ten_thousand_zones_at_once) {
  std::string zones;
  for (int i = 1; i <= 10000; ++i) {
    std::string line = std::to_string(i) + "," + std::to_string(i % 10) + "\n";
    zones += line;
  }
  read("[trips.csv]\nCOL1=Zone Integer\nCOL2=Sales Double\n", zones, "Zone integer, Sales DOUBLE");
  database.Execute("CREATE TABLE population (Zone integer, Sales DOUBLE)");
  database.Execute("insert into population select * from sosec ");
  put("schema.ini", std::string(zones_to_write) + "COL3=Sales_emp   Double Width 10\r\n");
  put("trips.csv", "");
  database.Execute(
      "INSERT INTO csvtable select population.Zone, population.Sales, sosec.Sales as Sales_emp from "
      "population,  "
      "sosec where population.zone=sosec.zone;");
  EXPECT_EQ(bytes().size(), 10000U * 32);
  EXPECT_TRUE(bytes().starts_with("         1         1         1\r\n         2         2         2\r\n"));
}

}  // namespace
}  // namespace runtime::engine
