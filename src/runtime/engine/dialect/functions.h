// The dialect's operators and functions, registered with the connection.
#pragma once

struct sqlite3;

namespace runtime::engine::dialect {

/// Registers all of them. A function that faults stops its statement and leaves its number in `*fault`, which
/// must outlive the connection. Returns the store's code.
int register_functions(sqlite3* handle, int* fault);

}  // namespace runtime::engine::dialect
