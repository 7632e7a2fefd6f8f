// What a model says when it does not accept its input.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace model {

/// Input that the model does not accept, or a file that it cannot write. `what()` is one sentence that
/// names the file, the line where there is one, and the reason; it becomes the verdict's second value.
class Refusal : public std::runtime_error {
 public:
  Refusal(const std::string& file, const std::string& reason) : std::runtime_error(file + ": " + reason) {}

  /// `line` counts from 1.
  Refusal(const std::string& file, std::size_t line, const std::string& reason)
      : std::runtime_error(file + " line " + std::to_string(line) + ": " + reason) {}
};

}  // namespace model
