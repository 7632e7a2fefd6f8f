// The fixture of tests that let stand-ins run in the place of the three model programs.
#pragma once

#include "commuter_page.h"

namespace testing_aids {

class CommuterChain : public CommuterPage {
 protected:
  CommuterChain() {
    app.put_stand_in("commuter/CC.EXE");
    app.put_stand_in("commuter/OUTPUT1.EXE");
    std::filesystem::create_directory(app.file("commuter/seen"));
    programs_do("", "", "");
  }

  /// Tells what the three programs do in turn, each after it has left the verdict 0: steps of the stand-in,
  /// one a line.
  void programs_do(const std::string& first, const std::string& second, const std::string& third) {
    put_steps("stand_in.txt", "first", first, "after_first.txt");
    put_steps("after_first.txt", "second", second, "after_second.txt");
    put_steps("after_second.txt", "third", third, "after_second.txt");
  }

  /// The same for the program at one place alone, 1 to 3.
  void program_does(int place, const std::string& steps) {
    programs_do(place == 1 ? steps : "", place == 2 ? steps : "", place == 3 ? steps : "");
  }

  /// Which programs were run so far, by their places.
  std::string programs_run() const {
    std::string all;
    for (const char* place : {"first", "second", "third"}) {
      if (std::filesystem::exists(app.file(std::string("commuter/seen/") + place))) {
        all += (all.empty() ? "" : " ") + std::string(place);
      }
    }
    return all;
  }

  /// Answers Yes to the summary and presses OK on the box behind it.
  void run() { press_and_answer({"Yes", "OK"}); }

  /// The last box behind the summary.
  std::string verdict() const { return shown().size() < 2 ? "(none)" : shown().back(); }

  /// What stands after an end that forgets the picks, with the current directory as told.
  static std::string first_step_again(const std::string& directory) {
    return "forms:\nopen files:\nnew levels: 0\ndirectory: ." + directory +
           "\npicks:\nmenus: Inputs Run spec_timdist spec_comm\n";
  }

  static constexpr const char* completed = "Analysis Completed [OK]";

 private:
  void put_steps(const std::string& file, const std::string& place, const std::string& steps,
                 const std::string& next) {
    app.put_file("commuter/" + file, "directory seen/" + place + "\nwrite err.txt 0\\r\\n\ncopy " + next +
                                         " stand_in.txt\n" + steps + "\n");
  }
};

}  // namespace testing_aids
