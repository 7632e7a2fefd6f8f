// Another program that works on the project database at the same time.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace testing_aids {

/// Has a lock on the database as long as it lives, unless it lets go.
class OtherProgram {
 public:
  /// One that reads: nobody may make a change durable.
  static constexpr const char* reads = "BEGIN; SELECT count(*) FROM zones";
  /// One that is about to write: nobody else may.
  static constexpr const char* writes = "BEGIN IMMEDIATE";

  OtherProgram(const std::filesystem::path& file, const char* what_it_does) {
    sqlite3_open(file.string().c_str(), &database_);
    EXPECT_EQ(sqlite3_exec(database_, what_it_does, nullptr, nullptr, nullptr), SQLITE_OK);
  }
  ~OtherProgram() { sqlite3_close(database_); }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  void let_go() { sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr); }

 private:
  sqlite3* database_ = nullptr;
};

/// The fixture `Page` for what a screen writes while another program writes, too.
template <typename Page>
class BesideOtherProgram : public Page {
 protected:
  BesideOtherProgram() { this->program.desktop.workspace.lock_wait = std::chrono::milliseconds(10); }

  /// Does what a person does, with these answers to its boxes, while the other program does not let go: it is
  /// told, once.
  void expect_refusal(const std::vector<std::string>& answers, const std::function<void()>& action) {
    const OtherProgram other(this->app.file("zelmor.mdb"), OtherProgram::writes);
    prepare(answers);
    this->analyst.will_press("OK");
    action();
    EXPECT_EQ(this->analyst.boxes().size(), answers.size() + 1);
    EXPECT_THAT(this->analyst.last_box().text, ::testing::StartsWith("Run-time error '3260':"));
  }

  /// The same with another program that lets go while it is waited for: nothing is told.
  void expect_wait(const std::vector<std::string>& answers, const std::function<void()>& action) {
    OtherProgram other(this->app.file("zelmor.mdb"), OtherProgram::writes);
    auto& waiting = this->program.desktop.workspace.waiting;
    int waits = 0;
    const auto before = std::exchange(waiting, [&](bool is_waiting) {
      if (!is_waiting) return;
      ++waits;
      other.let_go();
    });
    prepare(answers);
    action();
    waiting = before;
    EXPECT_EQ(waits, 1);
    EXPECT_EQ(this->analyst.boxes().size(), answers.size());
  }

 private:
  void prepare(const std::vector<std::string>& answers) {
    this->analyst.forget_boxes();
    for (const std::string& answer : answers) this->analyst.will_press(answer);
  }
};

}  // namespace testing_aids
