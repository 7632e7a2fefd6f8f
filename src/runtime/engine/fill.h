// The filling of one field with what an analyst typed; for this room only.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "runtime/engine/database.h"

namespace runtime::engine {

/// See Database::Fill().
void fill(Connection& connection, const std::string& table, std::string_view field, std::string_view value,
          std::span<const KeyRange> keys);

}  // namespace runtime::engine
