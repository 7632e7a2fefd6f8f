// Where the store's return codes become faults; for this room only.
#pragma once

#include <filesystem>
#include <string>

#include "runtime/fault.h"

namespace runtime::engine {

/// The fault of a failed call. `code` is the extended return code, `message` the store's own words.
Fault fault_of(int code, const std::string& message, const std::filesystem::path& file);

}  // namespace runtime::engine
