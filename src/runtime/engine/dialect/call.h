// How the store calls a function of ours; for this room only.
#pragma once

#include <vector>

#include "runtime/value.h"

struct sqlite3_context;
struct sqlite3_value;

namespace runtime::engine::dialect {

using Arguments = std::vector<Value>;
using Function = Value (*)(const Arguments&);

/// Gives the store what `function` makes of the values. The context's user data is the int that takes the
/// number of a fault, for no exception may pass through the store.
void call_with(Function function, sqlite3_context* context, int count, sqlite3_value** values);

template <Function function>
void call(sqlite3_context* context, int count, sqlite3_value** values) {
  call_with(function, context, count, values);
}

}  // namespace runtime::engine::dialect
