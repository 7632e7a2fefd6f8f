// One wrong file and what a program says about it.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "sample_models/study_directory.h"

namespace model_test {

/// `bytes` take the place of the file's own; without them the file is missing.
struct RefusedFile {
  std::string file;
  std::optional<std::string> bytes;
  std::string sentence;
};

inline void PrintTo(const RefusedFile& refused, std::ostream* out) {
  *out << refused.sentence;
}

/// Spoils the file in `study`.
inline void spoil(const StudyDirectory& study, const RefusedFile& refused) {
  if (refused.bytes) {
    study.write(refused.file, *refused.bytes);
  } else {
    study.remove(refused.file);
  }
}

}  // namespace model_test
