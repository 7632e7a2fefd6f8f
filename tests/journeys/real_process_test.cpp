// The program as it is installed: its own process, killed in the middle of a run and started again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QProcess>
#include <QTest>

#include "installation.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

/// The installed program with an analyst inside who walks the road of a commuter analysis. A process group of
/// its own, so that a model program that outlives it goes with it.
class RealProcess {
 public:
  explicit RealProcess(const testing_aids::Installation& app) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_GENERIC_PLUGINS", "analyst");
    environment.insert("QT_PLUGIN_PATH", ANALYST_PLUGINS);
    environment.insert("HOME", QString::fromStdString(app.file("home").string()));
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) environment.remove(name);
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
  void kill_at_once() {
    process_.kill();
    process_.waitForFinished();
  }
  /// Its exit code, -1 when it crashed or went on for too long.
  int ends_with() {
    if (!process_.waitForFinished(time_limit) || process_.exitStatus() != QProcess::NormalExit) return -1;
    return process_.exitCode();
  }
  std::string said() { return process_.readAllStandardOutput().toStdString(); }
  std::string complained() { return process_.readAllStandardError().toStdString(); }

 private:
  static constexpr int time_limit = 60000;
  QProcess process_;
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

}  // namespace
