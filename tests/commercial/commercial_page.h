// The fixture of tests that press "Run Commercial Analysis", with a stand-in in the place of the model.
#pragma once

#include "commuter/commuter_page.h"

namespace testing_aids {

class CommercialPage : public CommuterPage {
 protected:
  CommercialPage() {
    run_button = "Command2";
    model_directory = "truck";
    app.put_stand_in("truck/output.exe");
    program_does("write Err.txt 0\\r\\n\n");
  }

  /// Steps of the stand-in, one a line.
  void program_does(const std::string& steps) const { app.put_file("truck/stand_in.txt", steps); }

  void open_commercial_page() {
    save_time_files();
    analyst.choose("Spec_commercial");
    analyst.forget_boxes();
  }

  /// The page with the least that a run asks for: mining trips and an output file, no reliability.
  void make_ready() {
    open_commercial_page();
    pick("Command1(2)", mining);
    pick("Command5", "results/trucks.txt");
    analyst.click("Option4(2)");
  }

  void make_ready_with_districts() {
    make_ready();
    analyst.click("Check1");
    pick("Command7", "sample/districts.txt");
  }

  /// What stands after an end that forgets the picks, with the current directory as told.
  static std::string first_step_again(const std::string& directory = {}) {
    return "forms:\nopen files:\nnew levels: 0\ndirectory: ." + directory +
           "\npicks:\nmenus: Inputs Run spec_timdist spec_comm\n";
  }

  static constexpr const char* completed = "Analysis Completed [OK]";
  static constexpr const char* mining = "sample/trips_Mining.txt";
  static constexpr const char* summary_of_mining =
      "The Number of Zones= 24\nThe Number of Districts= 0\nThe industries areMining\n"
      "Do you wish to continue? [Yes, No]";
};

}  // namespace testing_aids
