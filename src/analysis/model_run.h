// One start of a model program and what it leaves as its verdict.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "forms/program.h"

namespace analysis {

using forms::Program;

/// Made where the model's directory is the current one, before the program starts: how the verdict file
/// stands then tells afterwards whether this program wrote it.
class ModelRun {
 public:
  /// `file`: the program's bare name. `verdict_file`: what it leaves in the current directory.
  ModelRun(Program& program, std::string file, std::string verdict_file);

  /// Runs the program and gives its exit code, or -1 when it can't be started.
  int exit_code();

  /// As read_verdict(). A verdict that this program has not written, or one that begins with no number, is
  /// taken as it stands, and a remark says so.
  std::optional<std::string> verdict();

 private:
  using Time = std::filesystem::file_time_type;

  std::optional<Time> time_of_verdict() const;
  bool is_older_than_the_start() const;

  Program& program_;
  const std::string file_;
  const std::string verdict_file_;
  const std::optional<Time> before_;
  Time start_ = {};
};

}  // namespace analysis
