#include "database/text_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <functional>
#include <sstream>

#include "database/value_lines.h"
#include "failing_buffer.h"
#include "faults.h"
#include "runtime/engine/workspace.h"
#include "temporary_directory.h"

namespace database {
namespace {

namespace fs = std::filesystem;
using testing_aids::bytes_of;
using testing_aids::fault_of;
using testing_aids::put;

std::string pairs(std::int64_t zones) {
  std::ostringstream stream;
  write_pair_skeleton(stream, zones);
  return stream.str();
}

std::string zone_lines(std::int64_t zones) {
  std::ostringstream stream;
  write_zone_skeleton(stream, zones);
  return stream.str();
}

/// FNV-1a of 64 bits.
std::uint64_t hash_of(const std::string& bytes) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return hash;
}

TEST(PairSkeleton, has_an_empty_line_and_a_line_for_each_pair) {
  EXPECT_EQ(pairs(1), "\r\n 1 ,           1 \r\n");
  EXPECT_EQ(pairs(2),
            "\r\n 1 ,           1 \r\n 1 ,           2 \r\n 2 ,           1 \r\n 2 ,           2 \r\n");
  EXPECT_EQ(pairs(3),
            "\r\n 1 ,           1 \r\n 1 ,           2 \r\n 1 ,           3 \r\n"
            " 2 ,           1 \r\n 2 ,           2 \r\n 2 ,           3 \r\n"
            " 3 ,           1 \r\n 3 ,           2 \r\n 3 ,           3 \r\n");
  const auto twelve = pairs(12);
  EXPECT_NE(twelve.find("\r\n 2 ,           11 \r\n 2 ,           12 \r\n 3 ,           1 \r\n"),
            std::string::npos);
  EXPECT_TRUE(twelve.ends_with("\r\n 12 ,          11 \r\n 12 ,          12 \r\n"));
}

TEST(PairSkeleton, of_a_thousand_zones_is_what_line_by_line_printing_gives) {
  std::string expected = "\r\n";
  for (int origin = 1; origin <= 1000; ++origin) {
    std::string head = " " + std::to_string(origin) + " ,";
    head.resize(14, ' ');
    for (int destination = 1; destination <= 1000; ++destination)
      expected.append(head).append(" ").append(std::to_string(destination)).append(" \r\n");
  }
  EXPECT_EQ(hash_of(pairs(1000)), hash_of(expected));
}

TEST(PairSkeleton, tells_how_far_it_is) {
  std::ostringstream stream;
  std::string told;
  write_pair_skeleton(stream, 3, [&told](std::int64_t done, std::int64_t total) {
    told += std::to_string(done) + "/" + std::to_string(total) + " ";
  });
  EXPECT_EQ(told, "3/9 6/9 9/9 ");
}

TEST(ZoneSkeleton, has_an_empty_line_and_a_line_for_each_zone) {
  EXPECT_EQ(zone_lines(1), "\r\n 1 \r\n");
  EXPECT_EQ(zone_lines(12),
            "\r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n 7 \r\n 8 \r\n 9 \r\n 10 \r\n 11 \r\n 12 \r\n");
}

TEST(Skeleton, that_does_not_reach_the_disk_is_a_fault) {
  const auto whole = pairs(3).size();
  for (std::size_t room = 0; room < whole; ++room) {
    testing_aids::FailingBuffer buffer(room, ENOSPC);
    std::ostream stream(&buffer);
    EXPECT_EQ(fault_of([&] { write_pair_skeleton(stream, 3); }), 61) << room;
  }
  testing_aids::FailingBuffer buffer(5, EIO);
  std::ostream stream(&buffer);
  EXPECT_EQ(fault_of([&] { write_zone_skeleton(stream, 3); }), 57);
}

TEST(ColumnLine, is_worded_as_its_form_words_it) {
  EXPECT_EQ(column_to_read(3, "distance"), "COL3=distance DOUBLE");
  EXPECT_EQ(column_to_write(3, "Mining"), "COL3=Mining Double Width 10");
  EXPECT_EQ(workers_column_to_write(3, "Sales"), "COL3=Sales_emp   Double Width 10");
}

TEST(Templates, describe_the_leading_columns) {
  const fs::path templates = TEMPLATES;
  EXPECT_EQ(bytes_of(templates / "schema.inp"),
            "[trips.csv]\r\nColNameHeader=False\r\nFormat=CSVDelimited\r\nCOL1=Origin Integer\r\n"
            "COL2=Destination Integer\r\n");
  EXPECT_EQ(bytes_of(templates / "schema2.inp"),
            "[trips.csv]\r\nColNameHeader=False\r\nFormat=FixedLength\r\nCOL1=Origin Integer Width 10\r\n"
            "COL2=Destination Integer Width 10\r\n");
  EXPECT_EQ(bytes_of(templates / "schema3.inp"),
            "[trips.csv]\r\nColNameHeader=False\r\nFormat=CSVDelimited\r\nCOL1=Zone Integer\r\n");
  EXPECT_EQ(bytes_of(templates / "schema4.inp"),
            "[trips.csv]\r\nColNameHeader=False\r\nFormat=FixedLength\r\nCOL1=Zone Integer Width 10\r\n");
}

/// An application directory with the installed database and templates.
class Bridge : public ::testing::Test {
 protected:
  Bridge() {
    fs::copy_file(PROJECT_DATABASE, "zelmor.mdb");
    fs::copy(TEMPLATES, directory_.path());
    fs::create_directory("out");
    database_ = workspace_.OpenDatabase("zelmor.mdb");
  }

  void load(const char* schema, const std::string& columns, const std::string& skeleton,
            const std::string& fields) {
    files_.FileCopy(schema, live_description);
    files_.open_for_append(1, live_description);
    files_.out(1) << columns;
    files_.Close(1);
    put("trips.csv", skeleton);
    runtime::ignoring_faults([&] { database_.Execute("DROP TABLE sosec"); });
    runtime::ignoring_faults([&] { database_.Execute("DROP TABLE csvtable"); });
    database_.AppendTableDef(csvtable_definition(database_, app_path_));
    database_.Execute("CREATE TABLE sosec (" + fields + ")");
    database_.Execute("insert into sosec select * from csvtable");
  }
  void load_pairs(std::int64_t zones) {
    load("schema.inp", "COL3=Mining DOUBLE\r\n", pairs(zones),
         "Origin integer, Destination integer,Mining DOUBLE");
  }
  void export_mining() {
    runtime::ignoring_faults([&] { database_.Execute("Drop TABLE csvtable"); });
    export_column(files_, database_, app_path_,
                  {write_pairs_template,
                   {column_to_write(3, "Mining")},
                   "INSERT INTO csvtable SELECT origin, destination, Mining from sosec",
                   app_path_ + "\\out\\trips_Mining.txt"});
  }

  testing_aids::TemporaryDirectory directory_;
  std::string app_path_ = directory_.path().string();
  runtime::files::Files files_;
  runtime::engine::Workspace workspace_;
  runtime::engine::Database database_;
};

TEST_F(Bridge, loads_a_row_for_each_pair) {
  load_pairs(12);
  auto rows = database_.OpenRecordset("sosec");
  EXPECT_EQ(rows.RecordCount(), 144);
  rows.MoveLast();
  EXPECT_EQ(rows.field(0), runtime::Value(std::int64_t{12}));
  EXPECT_TRUE(runtime::is_null(rows.field(2)));
}

TEST_F(Bridge, exports_a_column_of_pairs) {
  load_pairs(2);
  database_.Execute("UPDATE sosec set Mining = origin * 10 + destination / 4");
  database_.Execute("UPDATE sosec set Mining = NULL where origin = 2 and destination = 1");
  export_mining();
  EXPECT_EQ(bytes_of("out/trips_Mining.txt"),
            "         1         1     10.25\r\n         1         2      10.5\r\n"
            "         2         1          \r\n         2         2      20.5\r\n");
  EXPECT_EQ(bytes_of("trips.csv"), "(none)");
  EXPECT_EQ(bytes_of("schema.ini"), bytes_of("schema2.inp") + "COL3=Mining Double Width 10\r\n");
}

TEST_F(Bridge, exports_one_and_twelve_zones) {
  for (const int zones : {1, 12}) {
    load_pairs(zones);
    database_.Execute("UPDATE sosec set Mining = 0.5");
    std::string expected;
    for (int origin = 1; origin <= zones; ++origin) {
      for (int destination = 1; destination <= zones; ++destination) {
        const auto from = std::to_string(origin);
        const auto to = std::to_string(destination);
        expected += std::string(10 - from.size(), ' ') + from + std::string(10 - to.size(), ' ') + to +
                    "       0.5\r\n";
      }
    }
    export_mining();
    EXPECT_EQ(bytes_of("out/trips_Mining.txt"), expected) << zones;
  }
}

TEST_F(Bridge, writes_a_thousand_zones_as_printing_line_by_line_does) {
  load_pairs(1000);
  database_.Execute("UPDATE sosec set Mining = (origin * 1000 + destination) / 8");
  export_mining();
  std::ostringstream values;
  std::deque<ValueLines> files;
  files.emplace_back(values, "distance.txt", 2);
  write_value_lines(files, database_.OpenRecordset("sosec"));
  std::string trips;
  std::string distances;
  for (int origin = 1; origin <= 1000; ++origin) {
    for (int destination = 1; destination <= 1000; ++destination) {
      const double value = (origin * 1000 + destination) / 8.0;
      std::array<char, 40> line{};
      std::snprintf(line.data(), line.size(), "%10d%10d%10.15g\r\n", origin, destination, value);
      trips += line.data();
      std::snprintf(line.data(), line.size(), "%d %d %.15g\r\n", origin, destination, value);
      distances += line.data();
    }
  }
  EXPECT_EQ(hash_of(bytes_of("out/trips_Mining.txt")), hash_of(trips));
  EXPECT_EQ(hash_of(values.str()), hash_of(distances));
}

TEST_F(Bridge, exports_residents_and_workers_of_the_zones_that_both_tables_have) {
  load("schema3.inp", "COL2=Sales DOUBLE\r\n", zone_lines(3), "Zone integer,Sales DOUBLE");
  database_.Execute("CREATE TABLE population (Zone integer,Sales DOUBLE)");
  database_.Execute("insert into population select * from sosec ");
  database_.Execute("UPDATE population set Sales = 100 * zone");
  database_.Execute("UPDATE sosec set Sales = zone where zone < 3");
  database_.Execute("DELETE * from population where zone = 2");
  database_.Execute("Drop TABLE csvtable");
  export_column(
      files_, database_, app_path_,
      {write_zones_template,
       {column_to_write(2, "Sales"), workers_column_to_write(3, "Sales")},
       "INSERT INTO csvtable select population.Zone, population.Sales, sosec.Sales as Sales_emp from "
       "population,  sosec where population.zone=sosec.zone;",
       app_path_ + "\\out\\commute _Sales.txt"});
  EXPECT_EQ(bytes_of("out/commute _Sales.txt"),
            "         1       100         1\r\n         3       300          \r\n");
}

TEST_F(Bridge, replaces_the_file_of_an_earlier_export) {
  load_pairs(1);
  put("out/trips_mining.TXT", "older");
  export_mining();
  EXPECT_EQ(testing_aids::names_in("out"), "trips_Mining.txt");
  EXPECT_EQ(bytes_of("out/trips_Mining.txt"), "         1         1          \r\n");
}

TEST_F(Bridge, without_its_template_faults_before_anything_else) {
  load_pairs(1);
  fs::remove("schema2.inp");
  EXPECT_EQ(fault_of([&] { export_mining(); }), 53);
  EXPECT_EQ(bytes_of("trips.csv"), pairs(1));
}

TEST_F(Bridge, into_a_directory_that_is_gone_faults_and_can_be_done_again) {
  load_pairs(1);
  fs::remove("out");
  EXPECT_EQ(fault_of([&] { export_mining(); }), 76);
  fs::create_directory("out");
  export_mining();
  EXPECT_EQ(bytes_of("out/trips_Mining.txt"), "         1         1          \r\n");
}

TEST_F(Bridge, writes_a_line_for_each_pair_into_each_file) {
  load("schema.inp", "COL3=a DOUBLE\r\nCOL4=b DOUBLE\r\n", pairs(2),
       "Origin integer, Destination integer,a DOUBLE, b DOUBLE");
  database_.Execute("UPDATE sosec set a = origin / 4, b = 1/3 where destination = 2");
  std::ostringstream a;
  std::ostringstream b;
  std::deque<ValueLines> files;
  files.emplace_back(a, "a.txt", 2);
  files.emplace_back(b, "b.txt", 3);
  write_value_lines(files, database_.OpenRecordset("sosec"));
  EXPECT_EQ(a.str(), "1 1 \r\n1 2 0.25\r\n2 1 \r\n2 2 0.5\r\n");
  EXPECT_EQ(b.str(), "1 1 \r\n1 2 0.333333333333333\r\n2 1 \r\n2 2 0.333333333333333\r\n");
}

}  // namespace
}  // namespace database
