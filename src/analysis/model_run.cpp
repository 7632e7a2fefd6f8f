#include "analysis/model_run.h"

#include <chrono>
#include <utility>

#include "analysis/verdict.h"
#include "shell/module1.h"

namespace analysis {

ModelRun::ModelRun(Program& program, std::string file, std::string verdict_file)
    : program_(program),
      file_(std::move(file)),
      verdict_file_(std::move(verdict_file)),
      before_(time_of_verdict()) {}

std::optional<ModelRun::Time> ModelRun::time_of_verdict() const {
  return program_.desktop.files.time_of(verdict_file_);
}

int ModelRun::exit_code() {
  start_ = Time::clock::now();
  return shell::RunAndWait(program_, file_);
}

bool ModelRun::is_older_than_the_start() const {
  // Some disks keep times in steps of two seconds, so a file that was written anew may bear its former time.
  constexpr std::chrono::seconds coarsest_step{2};
  const auto now = time_of_verdict();
  if (!now || now != before_) return false;
  const bool is_coarse = now->time_since_epoch() % std::chrono::seconds(1) == Time::duration::zero();
  return !is_coarse || *now + coarsest_step < start_;
}

std::optional<std::string> ModelRun::verdict() {
  const Verdict verdict = read_verdict(program_.desktop.files, verdict_file_);
  std::string remark;
  if (is_older_than_the_start()) {
    remark = file_ + " has left no verdict: " + verdict_file_ + " is older than its start.";
  }
  if (!verdict.has_number)
    remark +=
        (remark.empty() ? "" : " ") + verdict_file_ + " begins with no number, which counts as success.";
  if (!remark.empty()) program_.desktop.remark(remark);
  return verdict.error;
}

}  // namespace analysis
