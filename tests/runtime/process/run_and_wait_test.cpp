#include "runtime/process/run_and_wait.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "runtime/process/command.h"
#include "temporary_directory.h"

namespace runtime::process {
namespace {

using std::filesystem::path;
using testing_aids::bytes_of;
using testing_aids::put;
using testing_aids::TemporaryDirectory;

void allow_running(const path& file) {
  std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

// A Windows program as far as its headers go.
std::string windows_program(const std::string& machine) {
  return "MZ" + std::string(58, '\0') + std::string("\x40\0\0\0PE\0\0", 8) + machine + std::string(64, '\0');
}

const std::string machine_32("\x4C\x01", 2);
const std::string machine_64("\x64\x86", 2);

// An application directory, another one that is current, and a third that is the whole PATH.
class RunAndWait : public testing::Test {
 protected:
  RunAndWait()
      : application(root.path() / "application"),
        current(root.path() / "current"),
        on_path(root.path() / "bin") {
    for (const path& directory : {application, current, on_path})
      std::filesystem::create_directory(directory);
    std::filesystem::current_path(current);
    setenv("PATH", on_path.c_str(), 1);
  }
  ~RunAndWait() override { setenv("PATH", path_before.c_str(), 1); }

  void install(const path& file) { std::filesystem::copy_file(STAND_IN, file); }
  void install_script(const path& file, const std::string& script) {
    put(file, script);
    allow_running(file);
  }
  void tell(const std::string& steps) { put(current / "stand_in.txt", steps); }
  int run(const std::string& program) { return run_and_wait(program, application); }

  // Lets a script be the wine of this machine; it writes down what it was asked to run.
  void install_wine() {
    std::filesystem::create_directories(root.path() / "wine/bin");
    install_script(root.path() / "wine/bin/wine", "#!/bin/sh\necho \"$#:$1\" > wine.txt\nexit 7\n");
    std::filesystem::create_symlink(root.path() / "wine/bin/wine", on_path / "wine");
  }

  std::string path_before = std::getenv("PATH");
  TemporaryDirectory root;
  path application;
  path current;
  path on_path;
};

TEST_F(RunAndWait, gives_the_exit_code) {
  install(application / "CC.EXE");
  for (const int code : {0, 1, 3, 255}) {
    tell("exit " + std::to_string(code) + "\n");
    EXPECT_EQ(run("CC.EXE"), code);
  }
}

TEST_F(RunAndWait, gives_eight_bits_of_an_exit_code) {
  install(application / "CC.EXE");
  tell("exit 259\n");
  EXPECT_EQ(run("CC.EXE"), 3);
  tell("exit 256\n");
  EXPECT_EQ(run("CC.EXE"), 0);
}

TEST_F(RunAndWait, counts_a_program_ended_by_a_signal_as_failed) {
  install(application / "CC.EXE");
  tell("crash\n");
  EXPECT_EQ(run("CC.EXE"), 128 + SIGABRT);
}

TEST_F(RunAndWait, starts_the_program_in_the_current_directory) {
  install(application / "CC.EXE");
  tell("directory where.txt\nwrite err.txt 1,no zone 7\\r\\n\nappend err.txt more\n");
  EXPECT_EQ(run("CC.EXE"), 0);
  EXPECT_EQ(bytes_of("where.txt"), current.string());
  EXPECT_EQ(bytes_of("err.txt"), "1,no zone 7\r\nmore");
}

TEST_F(RunAndWait, finds_a_name_without_regard_to_case) {
  install(application / "cc.exe");
  tell("exit 5\n");
  EXPECT_EQ(run("CC.EXE"), 5);
}

TEST_F(RunAndWait, looks_into_the_application_directory_then_the_current_one_then_along_the_path) {
  const auto leaves = [](const std::string& code) { return "#!/bin/sh\nexit " + code + "\n"; };
  install_script(on_path / "output.exe", leaves("3"));
  EXPECT_EQ(run("output.exe"), 3);
  install_script(current / "output.exe", leaves("2"));
  EXPECT_EQ(run("output.exe"), 2);
  install_script(application / "OUTPUT.exe", leaves("1"));
  EXPECT_EQ(run("output.exe"), 1);
}

TEST_F(RunAndWait, passes_by_a_directory_of_the_same_name) {
  std::filesystem::create_directory(application / "CC.EXE");
  install(current / "CC.EXE");
  tell("exit 5\n");
  EXPECT_EQ(run("CC.EXE"), 5);
}

TEST_F(RunAndWait, goes_along_a_path_with_gaps) {
  setenv("PATH", (":" + (root.path() / "missing").string() + "::" + on_path.string() + ":").c_str(), 1);
  install(on_path / "CC.EXE");
  EXPECT_EQ(run("CC.EXE"), 0);
  unsetenv("PATH");
  EXPECT_EQ(run("CC.EXE"), -1);
}

TEST_F(RunAndWait, is_minus_one_for_what_cannot_be_started) {
  put(application / "locked.exe", bytes_of(STAND_IN));
  put(application / "text.exe", "exit 0\n");
  allow_running(application / "text.exe");
  put(application / "empty.exe", "");
  allow_running(application / "empty.exe");
  std::filesystem::create_directory(application / "directory.exe");
  for (const char* program : {"missing.exe", "", "locked.exe", "text.exe", "empty.exe", "directory.exe"}) {
    EXPECT_EQ(run(program), -1) << program;
  }
}

TEST_F(RunAndWait, gives_the_program_no_arguments_and_no_shell) {
  install_script(application / "a;exit 9 $HOME.exe", "#!/bin/sh\nexit $#\n");
  EXPECT_EQ(run("a;exit 9 $HOME.exe"), 0);
}

TEST_F(RunAndWait, ends_with_the_process_though_its_child_lives_on) {
  install(application / "CC.EXE");
  tell("child 60000\nexit 4\n");
  EXPECT_EQ(run("CC.EXE"), 4);
  const pid_t child = std::stoi(bytes_of("child.txt"));
  EXPECT_EQ(kill(child, 0), 0) << "the child has ended";
  kill(child, SIGKILL);
}

TEST_F(RunAndWait, lets_one_program_follow_another) {
  install(application / "CC.EXE");
  tell("copy second.txt stand_in.txt\nexit 1\n");
  put("second.txt", "exit 2\n");
  EXPECT_EQ(run("CC.EXE"), 1);
  EXPECT_EQ(run("CC.EXE"), 2);
}

TEST_F(RunAndWait, calls_back_on_this_thread_while_the_program_runs) {
  install(application / "CC.EXE");
  tell("sleep 300\nexit 6\n");
  int calls = 0;
  const auto count = [&calls, caller = std::this_thread::get_id()] {
    EXPECT_EQ(std::this_thread::get_id(), caller);
    ++calls;
  };
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(run_and_wait("CC.EXE", application, count), 6);
  const auto pauses = (std::chrono::steady_clock::now() - start) / std::chrono::milliseconds(20);
  EXPECT_GE(calls, 2);
  EXPECT_LE(calls, pauses);
}

TEST_F(RunAndWait, lets_an_exception_through_once_the_program_has_ended) {
  install(application / "CC.EXE");
  tell("sleep 100\nwrite done.txt yes\n");
  EXPECT_THROW(run_and_wait("CC.EXE", application, [] { throw std::runtime_error("enough"); }),
               std::runtime_error);
  EXPECT_EQ(bytes_of("done.txt"), "yes");
}

// Standard output lies in a file while it lives, and a second file is open under a number of its own.
class Handles {
 public:
  static constexpr int own = 9;

  Handles() {
    std::fflush(stdout);
    put(output_, STDOUT_FILENO);
    put(file_, own);
  }
  Handles(const Handles&) = delete;
  Handles& operator=(const Handles&) = delete;
  ~Handles() {
    dup2(standard_, STDOUT_FILENO);
    close(standard_);
    close(own);
  }

 private:
  static void put(const char* name, int number) {
    const int opened = open(name, O_WRONLY | O_CREAT, 0600);
    dup2(opened, number);
    close(opened);
  }

  static constexpr const char* output_ = "output.txt";
  static constexpr const char* file_ = "nine.txt";
  const int standard_ = dup(STDOUT_FILENO);
};

TEST_F(RunAndWait, gives_the_program_its_own_handles) {
  install_script(application / "CC.EXE", "#!/bin/sh\necho told\necho more >&9\n");
  {
    const Handles handles;
    EXPECT_EQ(run("CC.EXE"), 0);
  }
  EXPECT_EQ(bytes_of("output.txt"), "told\n");
  EXPECT_EQ(bytes_of("nine.txt"), "more\n");
}

// Whoever starts this program may have told it to ignore the ends of children, and that outlives the start.
class ChildrenIgnored {
 public:
  ChildrenIgnored() : before_(std::signal(SIGCHLD, SIG_IGN)) {}
  ChildrenIgnored(const ChildrenIgnored&) = delete;
  ChildrenIgnored& operator=(const ChildrenIgnored&) = delete;
  ~ChildrenIgnored() { std::signal(SIGCHLD, before_); }

 private:
  void (*before_)(int);
};

TEST_F(RunAndWait, gives_the_exit_code_where_the_ends_of_children_are_ignored) {
  install(application / "CC.EXE");
  const ChildrenIgnored ignored;
  for (const int code : {0, 5}) {
    tell("exit " + std::to_string(code) + "\n");
    EXPECT_EQ(run("CC.EXE"), code);
    EXPECT_EQ(run_and_wait("CC.EXE", application, [] {}), code);
  }
  EXPECT_EQ(std::signal(SIGCHLD, SIG_IGN), SIG_IGN) << "it is not as it was before";
}

TEST_F(RunAndWait, lets_a_program_ask_for_the_exit_codes_of_its_own) {
  install_script(application / "CC.EXE", "#!/bin/sh\ntrap 'echo told > told.txt' CHLD\n/bin/true\nexit 0\n");
  const ChildrenIgnored ignored;
  EXPECT_EQ(run("CC.EXE"), 0);
  EXPECT_EQ(bytes_of("told.txt"), "told\n");
}

TEST_F(RunAndWait, leaves_a_windows_program_to_the_system_without_wine) {
  for (const std::string& machine : {machine_32, machine_64, std::string("\x64\xAA", 2)}) {
    put(application / "CC.EXE", windows_program(machine));
    EXPECT_EQ(command_for(application / "CC.EXE"), Command{application / "CC.EXE"});
  }
}

TEST_F(RunAndWait, hands_a_64_bit_windows_program_to_wine) {
  install_wine();
  put(application / "CC.EXE", windows_program(machine_64));
  EXPECT_EQ(run("cc.exe"), 7);
  EXPECT_EQ(bytes_of("wine.txt"), "1:" + (application / "CC.EXE").string() + "\n");
}

TEST_F(RunAndWait, starts_a_32_bit_windows_program_only_where_wine_can_run_it) {
  install_wine();
  put(application / "CC.EXE", windows_program(machine_32));
  EXPECT_EQ(run("CC.EXE"), -1);
  EXPECT_EQ(bytes_of("wine.txt"), "(none)");
  const path library = root.path() / "wine/lib/wine/i386-windows";
  std::filesystem::create_directories(library);
  put(library / "README", "");
  EXPECT_EQ(run("CC.EXE"), -1) << "the directory alone comes with a wine for 64 bits, too";
  put(library / "ntdll.dll", "");
  EXPECT_EQ(run("CC.EXE"), 7);
}

TEST_F(RunAndWait, starts_no_windows_program_with_damaged_or_foreign_headers) {
  install_wine();
  const std::string whole = windows_program(machine_64);
  for (const std::string& bytes :
       {std::string("MZ"), whole.substr(0, 62), whole.substr(0, 67), whole.substr(0, 69),
        "MZ" + std::string(200, '\xFF'), windows_program(std::string("\x64\xAA", 2))}) {
    put(application / "CC.EXE", bytes);
    EXPECT_EQ(run("CC.EXE"), -1) << bytes.size();
  }
  EXPECT_EQ(bytes_of("wine.txt"), "(none)");
}

}  // namespace
}  // namespace runtime::process
