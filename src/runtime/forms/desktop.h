// What the desktop gives a running program: its directory, its files, its database workspace, the error
// object, message boxes, and the edge at which every handler starts and ends.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "runtime/engine/workspace.h"
#include "runtime/fault.h"
#include "runtime/files/files.h"

class QMdiArea;
class QWidget;

namespace runtime::forms {

class FormBase;

/// Buttons, icons and replies of a box, by the platform's numbers; a style is their sum.
inline constexpr int ok_only = 0;
inline constexpr int yes_no = 4;
inline constexpr int critical = 16;
inline constexpr int question = 32;
inline constexpr int exclamation = 48;
inline constexpr int reply_ok = 1;
inline constexpr int reply_yes = 6;
inline constexpr int reply_no = 7;

class Desktop {
 public:
  /// `application_directory` holds the executable and all files of the installation.
  explicit Desktop(std::string application_directory);
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  const std::string app_path;
  ErrObject err;
  files::Files files;
  engine::Workspace workspace;
  /// The title of a box without one of its own.
  std::string program_title = "Quelar";
  /// The main window: boxes belong to it, so that they outlive the work form that opened them.
  QWidget* main_window = nullptr;
  /// Where the work forms' windows live.
  QMdiArea* mdi_area = nullptr;
  /// The name by which every data control opens the project database, relative to the current directory.
  std::string database_name;
  /// The loaded work forms, in the order in which they were loaded.
  std::vector<FormBase*> loaded_forms;

  /// Shows a box and waits for its answer. `style` is the sum of buttons and icon; returns the reply's
  /// number.
  int MsgBox(const std::string& prompt, int style = ok_only, const std::string& title = {});

  /// Asks for a line of text; "" when it is cancelled.
  std::string InputBox(const std::string& prompt, const std::string& title = {});
  void beep();

  enum class Pointer { normal, hourglass };
  /// The pointer over every window of the program.
  void set_pointer(Pointer pointer);

  /// The edge of every handler: a fault that no trap took ends in the run-time error report, and when the
  /// outermost handler ends, what was written is made durable; when that faults, too, both are told. Does
  /// nothing while resting().
  void run_event(const std::function<void()>& handler);
  /// The same for what a person sets off. Drops it, too, while a box waits for its answer: a press that an
  /// assistive tool makes, or a menu outside the window, passes by the box. Takes the remark away.
  void run_person_event(const std::function<void()>& handler);

  /// For `Rest` alone.
  void begin_rest() { ++rests_; }
  void end_rest() { --rests_; }
  /// Whether work is under way inside which no handler runs.
  bool resting() const { return rests_ > 0; }

  /// Whether what a person does is taken: false while resting() and while a box waits for its answer.
  bool hears_a_person() const;

  /// Makes durable what the handler under way has written so far, unless a level of it guards that. After a
  /// fault the forms hold once more what they stored.
  void make_durable();

  /// Says in the status line what a handler does not tell by a box, until the next one that a person sets
  /// off; a second remark stands behind the first.
  void remark(const std::string& words);

  /// Ends the program when the outermost handler has ended and what it wrote is durable, or its failure told.
  void end_program(int exit_code);

  /// Starts an external program by its bare name and waits for its end, with no time limit. Meanwhile the
  /// windows repaint, and what the analyst does is dropped. Returns the exit code, or -1.
  int run_program(const std::string& program);

  /// Reports a fault and ends the program: the one place where a report does not let it go on. What handlers
  /// before this one wrote is stored already.
  void end_with_report(const Fault& fault);

  /// True while a handler is under way.
  bool busy() const { return depth_ > 0; }

  /// How many faults were reported so far.
  int reports() const { return reports_; }
  /// How often it beeped so far, which no screen can show.
  int beeps() const { return beeps_; }

 private:
  void report(const Fault& fault);
  void end_of_handler();
  void settle(const std::function<void()>& commit);
  void show_remark(const std::string& words);
  void tell_of_wait(bool is_waiting);

  int depth_ = 0;
  int rests_ = 0;
  std::string words_before_wait_;
  int reports_ = 0;
  int beeps_ = 0;
  std::string remark_;
  std::optional<int> exit_code_;  // once the program is to end
};

}  // namespace runtime::forms
