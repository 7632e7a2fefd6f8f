// The program as it is installed: its own process, killed in the middle of a run or of an entry and started
// again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QProcess>
#include <QTest>

#include "installation.h"

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

/// The installed program with an analyst inside who walks the road of a commuter analysis, or enters
/// distances and times for a number of zones. A process group of its own, so that a model program that
/// outlives it goes with it.
class RealProcess {
 public:
  explicit RealProcess(const testing_aids::Installation& app, int zones = 0) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_GENERIC_PLUGINS", "analyst");
    environment.insert("QT_PLUGIN_PATH", ANALYST_PLUGINS);
    environment.insert("HOME", QString::fromStdString(app.file("home").string()));
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) environment.remove(name);
    if (zones > 0) environment.insert("ANALYST_ZONES", QString::number(zones));
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::SeparateChannels);
    process_.setChildProcessModifier([] { setpgid(0, 0); });
    process_.start(QString::fromStdString(app.file("quelar").string()), QStringList());
    process_.waitForStarted();
    group_ = static_cast<pid_t>(process_.processId());
  }
  RealProcess(const RealProcess&) = delete;
  RealProcess& operator=(const RealProcess&) = delete;
  ~RealProcess() {
    if (group_ > 0) kill(-group_, SIGKILL);
    process_.waitForFinished();
  }

  bool waits_until_there_is(const fs::path& file) {
    return QTest::qWaitFor([&] { return fs::exists(file); }, time_limit);
  }
  bool waits_until_it_has(const fs::path& file) {
    return QTest::qWaitFor([&] { return fs::exists(file) && fs::file_size(file) > 0; }, time_limit);
  }
  bool waits_until_it_says(const char* words) {
    return QTest::qWaitFor([&] { return (said_ += process_.readAllStandardOutput()).contains(words); },
                           time_limit);
  }
  void kill_at_once() {
    process_.kill();
    process_.waitForFinished();
  }
  /// Its exit code, -1 when it crashed or went on for too long.
  int ends_with() {
    if (!process_.waitForFinished(time_limit) || process_.exitStatus() != QProcess::NormalExit) return -1;
    return process_.exitCode();
  }
  qint64 process_id() const { return process_.processId(); }
  std::string said() { return (said_ += process_.readAllStandardOutput()).toStdString(); }
  std::string complained() { return process_.readAllStandardError().toStdString(); }

 private:
  static constexpr int time_limit = 60000;
  QProcess process_;
  QByteArray said_;
  pid_t group_ = 0;
};

class InstalledProgram : public ::testing::Test {
 protected:
  InstalledProgram() {
    fs::copy_file(QUELAR, app.file("quelar"));
    fs::create_directory(app.file("home"));
  }

  testing_aids::Installation app;
};

constexpr const char* boxes_of_a_good_run =
    "The Number of Zones= 24\nThe Number of Districts= 0\nThe occupations are Sales\n"
    "Do you wish to continue?\nAnalysis Completed\n";

TEST_F(InstalledProgram, runs_an_analysis_and_exits) {
  RealProcess quelar(app);
  EXPECT_EQ(quelar.ends_with(), 0) << quelar.complained();
  EXPECT_EQ(quelar.said(), boxes_of_a_good_run);
  EXPECT_THAT(app.bytes("results/sales.txt"), HasSubstr("The improvement saves the commuters of the study"));
}

TEST_F(InstalledProgram, writes_nothing_outside_its_directory) {
  RealProcess quelar(app);
  EXPECT_EQ(quelar.ends_with(), 0) << quelar.complained();
  EXPECT_THAT(app.names_in("home"), IsEmpty());
}

TEST_F(InstalledProgram, killed_in_the_middle_of_a_run_keeps_what_was_saved_and_starts_again) {
  app.put_stand_in("CC.EXE");
  app.put_file("commuter/stand_in.txt", "directory started.txt\nsleep 60000\n");
  {
    RealProcess quelar(app);
    ASSERT_TRUE(quelar.waits_until_there_is(app.file("commuter/started.txt"))) << quelar.complained();
    quelar.kill_at_once();
  }
  EXPECT_THAT(app.rows("PRAGMA integrity_check"), ElementsAre("ok"));
  EXPECT_THAT(app.rows("SELECT * FROM timdist"), ElementsAre(app.file("sample/distance.txt").string() +
                                                             "|sample/base_time.txt|sample/imp_time.txt"));
  fs::remove(app.file("CC.EXE"));
  RealProcess again(app);
  EXPECT_EQ(again.ends_with(), 0) << again.complained();
  EXPECT_EQ(again.said(), boxes_of_a_good_run);
  EXPECT_THAT(app.bytes("results/sales.txt"), HasSubstr("The improvement saves the commuters of the study"));
}

TEST_F(InstalledProgram, does_not_start_where_another_one_is_at_work) {
  app.put_stand_in("CC.EXE");
  app.put_file("commuter/stand_in.txt", "directory started.txt\nsleep 60000\n");
  RealProcess first(app);
  ASSERT_TRUE(first.waits_until_there_is(app.file("commuter/started.txt"))) << first.complained();
  RealProcess second(app);
  EXPECT_EQ(second.ends_with(), 1) << second.complained();
  EXPECT_THAT(second.said(), HasSubstr("Quelar is already at work in this directory:\n" + app.path()));
  EXPECT_THAT(second.said(), HasSubstr("process " + std::to_string(first.process_id())));
  first.kill_at_once();
}

/// Killed in the middle of an entry, so large that it takes a while.
class KilledEntry : public InstalledProgram {
 protected:
  KilledEntry() { app.sql("UPDATE zones SET numdstrct = 0"); }

  /// Kills the program when it has begun what the analyst says, and a file tells that it is at work.
  void kill_in(int zones, const char* words, const char* file) {
    RealProcess quelar(app, zones);
    ASSERT_TRUE(quelar.waits_until_it_says(words)) << quelar.complained();
    ASSERT_TRUE(quelar.waits_until_it_has(app.file(file))) << quelar.complained();
    quelar.kill_at_once();
    EXPECT_THAT(quelar.said(), EndsWith(std::string(words) + "\n"));
  }

  /// The program itself meets first what the kill has left.
  void expect_that_an_entry_can_be_made() {
    RealProcess again(app, 2);
    ASSERT_EQ(again.ends_with(), 0) << again.complained();
    for (const char* name : {"distance.txt", "base_time.txt", "imp_time.txt"}) {
      EXPECT_EQ(app.bytes(name), "1 1 7.5\r\n1 2 7.5\r\n2 1 7.5\r\n2 2 7.5\r\n") << name;
    }
    EXPECT_THAT(app.rows("PRAGMA integrity_check"), ElementsAre("ok"));
    EXPECT_THAT(app.names_in("."),
                ElementsAre("base_time.txt", "commuter", "distance.txt", "home", "imp_time.txt", "quelar",
                            "results", "sample", "schema.ini", "schema.inp", "schema2.inp", "schema3.inp",
                            "schema4.inp", "timdist.csv", "trips.csv", "truck", "zelmor.mdb"));
  }

  std::size_t size_of(const char* name) const { return fs::file_size(app.file(name)); }

  static constexpr const char* journal = "zelmor.mdb-journal";
};

TEST_F(KilledEntry, in_the_skeleton_can_be_made_again) {
  constexpr std::size_t zones = 2000;
  kill_in(zones, "opening the grid", "trips.csv");
  constexpr std::size_t shortest_line = 19;
  EXPECT_LT(size_of("trips.csv"), zones * zones * shortest_line);
  expect_that_an_entry_can_be_made();
}

TEST_F(KilledEntry, in_the_load_of_the_grid_can_be_made_again) {
  kill_in(700, "opening the grid", journal);
  EXPECT_TRUE(fs::exists(app.file(journal)));
  expect_that_an_entry_can_be_made();
}

TEST_F(KilledEntry, in_a_fill_can_be_made_again) {
  kill_in(700, "filling", journal);
  EXPECT_TRUE(fs::exists(app.file(journal)));
  expect_that_an_entry_can_be_made();
}

TEST_F(KilledEntry, in_the_save_leaves_the_former_file_and_can_be_made_again) {
  constexpr std::size_t zones = 700;
  app.put_file("distance.txt", "former");
  kill_in(zones, "saving", "distance.txt.quelar_part");
  constexpr std::size_t shortest_line = 9;
  EXPECT_LT(size_of("distance.txt.quelar_part"), zones * zones * shortest_line);
  EXPECT_EQ(app.bytes("distance.txt"), "former");
  expect_that_an_entry_can_be_made();
}

}  // namespace
