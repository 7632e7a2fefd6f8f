// The name of the analyst's file, which the front end copies without it.
#pragma once

#include <filesystem>

namespace model {

/// The path without extension of the file in `directory`, other than `copy` itself, whose bytes are those of
/// `copy`; of several, the first by name, those without blanks before all others. Throws Refusal, as a fault
/// of the file `named_in`, when the directory has none.
std::filesystem::path original_of(const std::filesystem::path& copy, const std::filesystem::path& directory,
                                  const std::string& named_in);

}  // namespace model
