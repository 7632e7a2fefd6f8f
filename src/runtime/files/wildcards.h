// Patterns of file names.
#pragma once

#include <string_view>

namespace runtime::files {

/// Whether a name holds "*" or "?".
bool has_wildcard(std::string_view name);

/// Whether `pattern` matches the whole of `name`, without regard to the case of A to Z: "*" stands for any
/// number of characters, "?" for one or, before a dot or at the end, for none. A dot in front of a wildcard
/// also matches the end of a name, so that "sig*.*" matches "sig7". Nothing else has a meaning of its own.
bool matches(std::string_view pattern, std::string_view name);

}  // namespace runtime::files
