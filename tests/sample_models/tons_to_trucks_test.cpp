#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/resource.h>
#endif

#include "sample_models/refused_file.h"

namespace model_test {
namespace {

// Two zones 50 miles wide and 200 miles apart. A truck takes 10 tons on 100 days a year, so that 1,000 tons a
// year are a truck a day. Half of what is carried far goes by truck: from 100 miles on a share of 0.5, and on
// 50 miles, half of that way, 0.75.
//
// Farm products: 4,000 tons stay in zone 1, which is 3 trucks; 4,000 and 250 go to zone 2, 2.125 trucks.
// Metals: 1 ton goes from 2 to 1, which is 0.0005 trucks.
class TonsToTrucks : public testing::Test {
 protected:
  TonsToTrucks() {
    std::filesystem::create_directory(place.path() / "truck");
    std::filesystem::create_directory(place.path() / "freight");
    write("truck/ttc.txt", "freight/\r\n 2 \r\n");
    write("truck/tontotruck.txt", "  1  10  0.5  100\r\n  6  10  0.5  100\r\n");
    write("truck/Dist.txt", "1 1 50\r\n1 2 200\r\n2 1 200\r\n2 2 50\r\n");
    commodities("1 1 1 4000\r\n1 2 1 4000\r\n1 2 1 250\r\n2 1 6 1\r\n");
  }

  void write(const std::string& name, const std::string& bytes) const { place.write(name, bytes); }

  /// The analyst's file and the copy of it.
  void commodities(const std::string& bytes) const {
    write("freight/grain.txt", bytes);
    write("truck/commodity.txt", bytes);
  }

  std::string verdict() const {
    EXPECT_EQ(place.run(TONS_PROGRAM, "truck"), 0);
    return place.read("truck/Err.txt");
  }

  StudyDirectory place;
};

TEST_F(TonsToTrucks, makes_a_file_of_trips_for_each_industry_that_has_some) {
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt"), with_crlf(R"(         1         1         3
         1         2     2.125
         2         1         0
         2         2         0
)"));
  EXPECT_EQ(place.read("freight/grain_Manufacturing_trip.txt"), with_crlf(R"(         1         1         0
         1         2         0
         2         1    0.0005
         2         2         0
)"));
  EXPECT_FALSE(place.has("freight/grain_Mining_trip.txt"));
  EXPECT_FALSE(place.has("freight/grain_Service_trip.txt"));
}

TEST_F(TonsToTrucks, report_takes_the_trips_that_it_makes) {
  EXPECT_EQ(verdict(), "0\r\n");
  std::filesystem::copy_file(place.path() / "freight/grain_Agriculture_trip.txt",
                             place.path() / "truck/trktrp1.txt");
  write("truck/outpar.txt", " 2 \r\n0             0\r\nNONE\r\nreport\r\n 1 \r\n1\r\n");
  write("truck/sig1.txt", " 2 \r\n");
  write("truck/cost1.txt", " 400           40            600           1             0 \r\n");
  write("truck/base_time.txt", "1 1 60\r\n1 2 240\r\n2 1 240\r\n2 2 60\r\n");
  write("truck/imp_time.txt", "1 1 60\r\n1 2 240\r\n2 1 240\r\n2 2 60\r\n");
  EXPECT_EQ(place.run(TRUCK_REPORT_PROGRAM, "truck"), 0);
  EXPECT_EQ(place.read("truck/Err.txt"), "0\r\n");
  // 3 trips of an hour and 2.125 trips of four, at 60 dollars an hour.
  EXPECT_NE(place.read("truck/report.txt")
                .find("Agriculture       5.1  112.2    134.6     134.6          0.0         690.00"),
            std::string::npos)
      << place.read("truck/report.txt");
}

TEST_F(TonsToTrucks, trips_of_an_earlier_conversion_are_removed) {
  write("freight/grain_Mining_trip.txt", "old");
  write("freight/grain_Agriculture_trip.txt", std::string(1000, 'x'));
  write("freight/wheat_Mining_trip.txt", "another file's");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_FALSE(place.has("freight/grain_Mining_trip.txt"));
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt").size(), 4U * 32);
  EXPECT_TRUE(place.has("freight/wheat_Mining_trip.txt"));
}

TEST_F(TonsToTrucks, refused_tons_leave_the_trips_of_an_earlier_conversion) {
  write("freight/grain_Agriculture_trip.txt", "old");
  commodities("1 1 1 4000\r\n1 1 1 many\r\n");
  EXPECT_EQ(verdict(), "1, commodity.txt line 2: 'many' is not a number\r\n");
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt"), "old");
}

TEST_F(TonsToTrucks, absolute_directory_is_taken_as_it_stands) {
  const StudyDirectory elsewhere;
  elsewhere.write("coal.v2.txt", place.read("truck/commodity.txt"));
  write("truck/ttc.txt", (elsewhere.path() / "").string() + "\r\n 2 \r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(elsewhere.has("coal.v2_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, empty_directory_is_the_one_above) {
  write("ore", place.read("truck/commodity.txt"));
  write("truck/ttc.txt", "\r\n 2 \r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("ore_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, of_equal_files_the_first_by_name_gives_the_name) {
  write("freight/barley.txt", place.read("truck/commodity.txt"));
  write("freight/apples.txt", "1 1 1 4000\r\n1 2 1 4000\r\n1 2 1 250\r\n2 1 6 2\r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("freight/barley_Agriculture_trip.txt"));
  EXPECT_FALSE(place.has("freight/grain_Agriculture_trip.txt"));
  EXPECT_FALSE(place.has("freight/apples_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, name_without_blanks_goes_before_others) {
  write("freight/a copy.txt", place.read("truck/commodity.txt"));
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("freight/grain_Agriculture_trip.txt"));
  EXPECT_FALSE(place.has("freight/a copy_Agriculture_trip.txt"));
  place.remove("freight/grain.txt");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("freight/a copy_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, copy_itself_gives_no_name) {
  write("truck/ttc.txt", "truck/\r\n 2 \r\n");
  EXPECT_EQ(verdict(), "1, ttc.txt line 1: the commodity file is not in '../truck/'\r\n");
  write("truck/ore.txt", place.read("truck/commodity.txt"));
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("truck/ore_Agriculture_trip.txt"));
  EXPECT_FALSE(place.has("truck/commodity_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, file_of_the_copys_name_in_another_directory_gives_it) {
  place.remove("freight/grain.txt");
  write("freight/commodity.txt", place.read("truck/commodity.txt"));
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_TRUE(place.has("freight/commodity_Agriculture_trip.txt"));
}

TEST_F(TonsToTrucks, trips_take_their_places_together_or_not_at_all) {
  write("freight/grain_Agriculture_trip.txt", "old");
  write("freight/grain_Mining_trip.txt", "old");
  std::filesystem::create_directory(place.path() / "freight/grain_Manufacturing_trip.txt");
  EXPECT_EQ(verdict(), "1, ../freight/grain_Manufacturing_trip.txt: the file cannot be written\r\n");
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt"), "old");
  EXPECT_EQ(place.read("freight/grain_Mining_trip.txt"), "old");
  EXPECT_FALSE(place.has("freight/grain_Agriculture_trip.txt.part"));
  EXPECT_FALSE(place.has("freight/grain_Manufacturing_trip.txt.part"));
}

TEST_F(TonsToTrucks, values_keep_to_their_columns) {
  write("truck/tontotruck.txt", "  1  1  1  1\r\n");
  commodities("1 1 1 1234567.88888\r\n1 2 1 9999999999.4\r\n2 1 1 0.33333\r\n2 2 1 0.00004\r\n");
  EXPECT_EQ(verdict(), "0\r\n");
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt"), with_crlf(R"(         1         11234567.89
         1         29999999999
         2         1    0.3333
         2         2         0
)"));
}

#ifdef __linux__
// The system ends a program that writes beyond a limit which nobody watches, as a kill would: neither a cut
// file nor a verdict of success may be found then.
TEST_F(TonsToTrucks, cut_trips_do_not_stay_when_no_verdict_can_be_written) {
  write("freight/grain_Agriculture_trip.txt", "old");
  const rlimit small{100, RLIM_INFINITY};
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  setrlimit(RLIMIT_FSIZE, &small);
  const int exit_code = place.run(TONS_PROGRAM, "truck");
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_NE(exit_code, 0);
  EXPECT_EQ(place.read("truck/Err.txt"), "1, the program did not reach its end\r\n");
  EXPECT_EQ(place.read("freight/grain_Agriculture_trip.txt"), "old");
}

TEST_F(TonsToTrucks, trips_that_do_not_fit_on_the_disk_are_refused) {
  std::filesystem::create_symlink("/dev/full", place.path() / "freight/grain_Manufacturing_trip.txt.part");
  EXPECT_EQ(verdict(), "1, ../freight/grain_Manufacturing_trip.txt: the file cannot be written\r\n");
}

TEST_F(TonsToTrucks, fails_when_its_verdict_does_not_fit_on_the_disk) {
  std::filesystem::create_symlink("/dev/full", place.path() / "truck/Err.txt");
  EXPECT_EQ(place.run(TONS_PROGRAM, "truck"), 1);
}
#endif

class TonsRefusal : public TonsToTrucks, public testing::WithParamInterface<RefusedFile> {};

TEST_P(TonsRefusal, names_the_file_the_line_and_the_reason) {
  const auto& refused = GetParam();
  if (refused.file == "commodity.txt" && refused.bytes) {
    commodities(*refused.bytes);
  } else {
    spoil(place, {"truck/" + refused.file, refused.bytes, refused.sentence});
  }
  EXPECT_EQ(verdict(), "1, " + refused.sentence + "\r\n");
  EXPECT_FALSE(place.has("freight/grain_Agriculture_trip.txt"));
}

const std::string no_crlf = "the line does not end in carriage return and line feed";

INSTANTIATE_TEST_SUITE_P(
    request, TonsRefusal,
    testing::Values(RefusedFile{"ttc.txt", {}, "ttc.txt: the file is missing or cannot be opened"},
                    RefusedFile{"ttc.txt", "freight/\r\n", "ttc.txt line 2: the line is missing"},
                    RefusedFile{"ttc.txt", "freight/\r\n 0 \r\n",
                                "ttc.txt line 2: ' 0 ' is not a whole number from 1 to 9999"},
                    RefusedFile{"ttc.txt", "freight/\r\n 2 \r\n 2 \r\n",
                                "ttc.txt line 3: the file has more lines than it may have"},
                    RefusedFile{"ttc.txt", "no,such,place/\r\n 2 \r\n",
                                "ttc.txt line 1: the commodity file is not in '../no such place/'"},
                    RefusedFile{"ttc.txt", "truck/Dist.txt\r\n 2 \r\n",
                                "ttc.txt line 1: the commodity file is not in '../truck/Dist.txt'"}));

INSTANTIATE_TEST_SUITE_P(
    factors, TonsRefusal,
    testing::Values(
        RefusedFile{"tontotruck.txt", {}, "tontotruck.txt: the file is missing or cannot be opened"},
        RefusedFile{"tontotruck.txt", "", "tontotruck.txt line 1: the line is missing"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  100\n", "tontotruck.txt line 1: " + no_crlf},
        RefusedFile{"tontotruck.txt", "  1  10    100\r\n",
                    "tontotruck.txt line 1: the line must hold 4 numbers and holds 3"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  100\r\n  9  10  0.5  100\r\n",
                    "tontotruck.txt line 2: the commodity must be a whole number from 1 to 8"},
        RefusedFile{"tontotruck.txt", "  1.5  10  0.5  100\r\n",
                    "tontotruck.txt line 1: the commodity must be a whole number from 1 to 8"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  100\r\n  1  10  0.5  100\r\n",
                    "tontotruck.txt line 2: the commodity stands twice"},
        RefusedFile{"tontotruck.txt", "  1  0  0.5  100\r\n",
                    "tontotruck.txt line 1: the tons per truck must be greater than 0"},
        RefusedFile{"tontotruck.txt", "  1  10  1.5  100\r\n",
                    "tontotruck.txt line 1: the truck share must be from 0 to 1"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  0\r\n",
                    "tontotruck.txt line 1: the days a year must be greater than 0 and at most 366"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  367\r\n",
                    "tontotruck.txt line 1: the days a year must be greater than 0 and at most 366"},
        RefusedFile{"tontotruck.txt", "  1  10  0.5  100\r\n",
                    "commodity.txt line 4: commodity 6 has no factors"}));

INSTANTIATE_TEST_SUITE_P(
    tons, TonsRefusal,
    testing::Values(
        RefusedFile{"commodity.txt", {}, "commodity.txt: the file is missing or cannot be opened"},
        RefusedFile{"commodity.txt", "", "commodity.txt: the file is empty"},
        RefusedFile{"commodity.txt", "1 1 1 4000", "commodity.txt line 1: " + no_crlf},
        RefusedFile{"commodity.txt", "1 1 4000\r\n",
                    "commodity.txt line 1: the line must hold 4 numbers and holds 3"},
        RefusedFile{"commodity.txt", "1 1 1 40\x1b[31m\t00\x7f\r\n",
                    "commodity.txt line 1: '40[31m00' is not a number"},
        RefusedFile{"commodity.txt", "1 1 1 1E308\r\n1 1 1 1E308\r\n",
                    "commodity.txt: the trips from 1 to 1 do not fit in 10 columns"},
        RefusedFile{"commodity.txt", "1 1 1 -4000\r\n", "commodity.txt line 1: '-4000' is negative"},
        RefusedFile{"commodity.txt", "3 1 1 4000\r\n",
                    "commodity.txt line 1: the zone must be a whole number from 1 to 2"},
        RefusedFile{"commodity.txt", "1 0 1 4000\r\n",
                    "commodity.txt line 1: the zone must be a whole number from 1 to 2"},
        RefusedFile{"commodity.txt", "1 1 9 4000\r\n",
                    "commodity.txt line 1: the commodity must be a whole number from 1 to 8"},
        RefusedFile{"commodity.txt", "2 1 1 4000\r\n1 1 1 4000\r\n",
                    "commodity.txt line 2: origin 1 stands behind origin 2"},
        RefusedFile{"commodity.txt", "1 1 1 0\r\n", "commodity.txt: none of the tons go by truck"},
        RefusedFile{"commodity.txt", "2 1 1 2E13\r\n",
                    "commodity.txt: the trips from 2 to 1 do not fit in 10 columns"}));

INSTANTIATE_TEST_SUITE_P(
    distances, TonsRefusal,
    testing::Values(RefusedFile{"Dist.txt", {}, "Dist.txt: the file is missing or cannot be opened"},
                    RefusedFile{"Dist.txt", "1 1 50\r\n2 1 200\r\n", "Dist.txt line 2: pair 1 2 is missing"},
                    RefusedFile{"Dist.txt", "1 1 50\r\n1 2 200\r\n2 1 200\r\n2 2 50\r\n1 1 50\r\n",
                                "Dist.txt line 5: the file has more lines than it may have"}));

}  // namespace
}  // namespace model_test
